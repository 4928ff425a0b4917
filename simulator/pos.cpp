#include "simulator/pos.h"

#include "records/configuration.h"
#include "records/delimited.h"
#include "records/lumbrio_config.h"
#include "records/text.h"
#include "simulator/sandbox.h"

#include <algorithm>

namespace simulator {

namespace {

using Names = std::vector<std::string>;

const Names kBlock = {"Tab amount", "Approval code", "Receipt",   "Card",          "Server",
                      "Table",      "Routing id",    "Card name", "Payment result"};

Names namesFor(std::size_t lines)
{
    Names names = {"Result"};
    if (lines == 11) // declined by the payment application: the first word is repeated at the end
        names.push_back("Result, again");
    names.insert(names.end(), kBlock.begin(), kBlock.end());
    if (lines == 13)
        names.insert(names.end(), {"Partial", "Approved part", "Still owed"});
    return names;
}

} // namespace

Place placeOf(platform::Files &files)
{
    Place place{files, kSandboxMaindir, kSandboxRemotedir, {}};
    std::string content;
    const std::string path = place.Maindir + "LumbrioINI.dat";
    records::LumbrioConfig config;
    if (files.exists(path) && done(files.read(path, content, records::LumbrioConfig::kSize)))
        std::copy(content.begin(), content.end(), config.data().begin());
    if (!config.isEmpty(records::kMaindir))
        place.Maindir = config.text(records::kMaindir);
    if (!config.isEmpty(records::kRemotedir))
        place.Remotedir = config.text(records::kRemotedir);
    const std::string options = place.Maindir + "CCard.dat";
    content.clear();
    if (files.exists(options))
        files.read(options, content);
    place.paymentDirectory = records::paymentDirectory(records::parseCardOptions(content));
    return place;
}

bool leaveRequest(const Place &place, const TenderRequest &request)
{
    const std::string audit = place.Maindir + "XAudit.DAT";
    place.files.removeIfThere(place.Maindir + "Xsend.ans");
    place.files.removeIfThere(audit);
    if (request.audit)
        place.files.write(audit, records::quotedLine(*request.audit));
    return done(place.files.write(
        place.Maindir + "Xsend.req",
        records::quotedValues({request.table, request.receipt, request.server, request.amount})));
}

std::vector<std::string> readAnswer(const Place &place)
{
    std::vector<std::string> values;
    std::string content;
    const std::string path = place.Maindir + "Xsend.ans";
    if (!place.files.exists(path) || !done(place.files.read(path, content)))
        return values;
    for (const std::string &line : platform::splitLines(content)) {
        const bool quoted = line.size() >= 2 && line.front() == '"' && line.back() == '"';
        values.push_back(quoted ? line.substr(1, line.size() - 2) : line);
    }
    return values;
}

std::vector<AnswerLine> namedAnswer(const std::vector<std::string> &answer)
{
    const Names names = namesFor(answer.size());
    std::vector<AnswerLine> lines;
    for (std::size_t i = 0; i < answer.size(); ++i)
        lines.emplace_back(i < names.size() ? names[i] : "?", records::Trim(answer[i]));
    return lines;
}

std::string readableAnswer(const std::vector<std::string> &answer)
{
    constexpr std::size_t kNameWidth = 16;
    std::string text;
    for (auto &[name, value] : namedAnswer(answer)) {
        std::string padded = name;
        padded.resize(kNameWidth, ' ');
        text.append("  ").append(padded).append(value).append("\n");
    }
    return text.empty() ? "  no answer\n" : text;
}

bool tenderIsSeen()
{
    const std::string platform = environmentValue("QT_QPA_PLATFORM");
    return platform.empty() ? hasDisplay() : platform != "offscreen" && platform != "minimal";
}

ChildProcess startServer(const Place &place, const std::string &drivesFolder)
{
    return ChildProcess(place.files.realPath(place.paymentDirectory + "Xchrgsrv.exe"), {"/", "T"},
                        {"LUMBRIO_DRIVES=" + drivesFolder}, false);
}

ChildProcess startTender(const std::string &tndrcc, const std::string &drivesFolder,
                         bool outputSeen, bool forceOffscreen)
{
    std::vector<std::string> changes = {"LUMBRIO_DRIVES=" + drivesFolder};
    if (forceOffscreen || (!hasDisplay() && environmentValue("QT_QPA_PLATFORM").empty()))
        changes.emplace_back("QT_QPA_PLATFORM=offscreen");
    return ChildProcess(tndrcc, {}, changes, outputSeen);
}

} // namespace simulator
