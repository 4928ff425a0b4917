#include "tender/evidence.h"

#include "platform/hardening.h"
#include "records/card_helpers.h"
#include "records/delimited.h"
#include "records/exchange_file.h"
#include "records/kept_records.h"
#include "records/trace.h"
#include "tender/local_request.h"

#include <array>
#include <cstdint>

namespace tender {

using namespace records;

namespace {

void tellBoth(App &app, const std::string &line)
{
    traceProcess(app, {"  " + line});
    traceLog(app, {line});
}

/// Empty when it cannot be read.
std::string markOf(App &app, const std::string &path)
{
    std::string content;
    platform::DateTime when;
    const bool read = done(app.files.modified(path, when)) &&
                      done(app.files.readNoLink(path, content, kExchangeLimit));
    return read ? resultMark(content, when) : std::string();
}

void putAside(App &app, const std::string &path)
{
    const std::size_t dot = path.rfind('.');
    const std::string aside =
        app.files.freeName(path.substr(0, dot) + "-" + stampOf(app.clock.now()), path.substr(dot));
    const platform::Outcome outcome = app.files.rename(path, aside);
    tellBoth(app, "A RESULT THAT NO TENDER HAS DEALT WITH - " + path +
                      (done(outcome) ? " - is now " + aside
                                     : std::string(" - stays: ") + platform::textOf(outcome)));
}

/// The request holds a card number in clear, so it must not stay.
void removeDeadRequest(App &app, const std::string &path)
{
    std::string content;
    const platform::Outcome read = app.files.readNoLink(path, content, kExchangeLimit);
    DelimitedReader reader(content);
    std::array<std::string, 6> values; // kind, server, receipt, number, track, amount
    for (std::string &value : values)
        value = withoutControls(Left(reader.next(), CardRecord::kSize));
    tellBoth(app, std::string("REQUEST OF A TENDER THAT WAS ENDED - ") +
                      (done(read) ? "receipt " : "cannot be read - receipt ") +
                      withoutCardNumbers(Left(values[2], CCReceipt.length)) + ", amount " +
                      withoutCardNumbers(Left(values[5], CCTabAmt.length)) + ", card " +
                      maskedNumber(values[3]) + " - " + path);
    platform::wipe(content);
    for (std::string &value : values)
        platform::wipe(value);
    const platform::Outcome outcome = app.files.removeIfThere(path);
    tellBoth(app, std::string("IT IS ") + (done(outcome) ? "REMOVED" : platform::textOf(outcome)));
}

} // namespace

std::string resultTakenFile(const ProcessValues &values)
{
    return values.Maindir + "Data\\ResultTaken.dat";
}

std::string digestOf(std::string_view content)
{
    std::uint64_t digest = 0xcbf29ce484222325ULL; // FNV-1a
    for (const char c : content)
        digest = (digest ^ static_cast<unsigned char>(c)) * 0x100000001b3ULL;
    constexpr std::string_view kDigits = "0123456789abcdef";
    std::string text;
    for (int shift = 60; shift >= 0; shift -= 4)
        text += kDigits[(digest >> static_cast<unsigned>(shift)) & 15U];
    return text;
}

std::string resultMark(std::string_view content, const platform::DateTime &modified)
{
    return quotedValues({std::to_string(content.size()), stampOf(modified), digestOf(content)});
}

void noteTaken(App &app, const std::string &mark)
{
    const platform::ErrorsIgnored ignored(app.run);
    if (mark.empty())
        return;
    stationDataFolder(app);
    app.files.write(resultTakenFile(app.values), mark);
}

void clearResult(App &app, const std::string &path)
{
    const platform::ErrorsIgnored ignored(app.run);
    platform::Found found = platform::Found::Nothing;
    if (done(app.files.look(path, found)) && found == platform::Found::Nothing)
        return;
    std::string taken;
    app.files.read(resultTakenFile(app.values), taken, kExchangeLine);
    if (!taken.empty() && taken == markOf(app, path))
        app.files.removeIfThere(path);
    else
        putAside(app, path);
}

void clearDeadRequests(App &app)
{
    const platform::ErrorsIgnored ignored(app.run);
    const std::string folder = localFolder(app.values);
    std::vector<std::string> names;
    if (const platform::Outcome listed = app.files.list(folder, names);
        !done(listed) && listed != platform::Outcome::NotThere)
        traceProcess(app, {std::string("  DEAD REQUESTS NOT LOOKED FOR - ") +
                           platform::textOf(listed) + " - " + folder});
    for (const std::string &name : names) {
        const LeftOver kind = leftOverOf(app.values, name);
        if (kind == LeftOver::Request)
            removeDeadRequest(app, folder + name);
        else if (kind == LeftOver::Answer)
            clearResult(app, folder + name);
    }
}

std::string keepUnknown(App &app, const std::string &resultPath, const std::string &reason)
{
    const platform::ErrorsIgnored ignored(app.run);
    const CardRecord &CCdata = app.values.CCdata;
    const std::string path =
        app.files.freeName(stationDataFolder(app) + "Unknown-" + stampOf(app.clock.now()), "");
    std::string text = platform::textLine("Result=" + resultPath) +
                       platform::textLine("Reason=" + reason) +
                       platform::textLine("CCNumb=" + CCdata.text(HiddenNumb));
    for (const CardField &field : {CCExpDate, CCName, CCSaleAmt, CCServer, CCTable, CCTabAmt,
                                   CCReceipt, CCDate, CCTime, CCStation, CCSwiped, CCAdjStatus})
        text += platform::textLine(std::string(field.name) + "=" + CCdata.text(field));
    const platform::Outcome outcome = app.files.replaceWhole(path, text);
    std::string content;
    if (done(app.files.readNoLink(resultPath, content, kExchangeLimit)))
        app.files.replaceWhole(path + ".result", content);
    tellBoth(app,
             "OUTCOME UNKNOWN - " + reason + " - " +
                 (done(outcome) ? path : std::string(platform::textOf(outcome)) + " - " + path));
    return done(outcome) || app.files.exists(path) ? path : std::string();
}

} // namespace tender
