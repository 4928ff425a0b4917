#include "tender/local_request.h"

#include "platform/hardening.h"
#include "records/card_helpers.h"
#include "records/delimited.h"
#include "records/status_words.h"

#include <algorithm>

namespace tender {

using namespace records;

std::string localFolder(const ProcessValues &values)
{
    return values.paymentDirectory + "LocalTran\\";
}

LeftOver leftOverOf(const ProcessValues &values, std::string_view name)
{
    const std::string station = Trim(values.StationName);
    constexpr std::size_t kStamp = 12; // MMDDYYHHMMSS
    if (toLower(Left(name, station.size())) != toLower(station) ||
        name.size() <= station.size() + kStamp)
        return LeftOver::None;
    const std::string_view stamp = name.substr(station.size(), kStamp);
    const std::string ending = toLower(name.substr(station.size() + kStamp));
    if (stamp.find_first_not_of("0123456789") != std::string_view::npos)
        return LeftOver::None;
    if (ending == ".tmp" || ending == ".req")
        return LeftOver::Request;
    return ending == ".ans" ? LeftOver::Answer : LeftOver::None;
}

LocalFiles localFiles(const ProcessValues &values, const platform::DateTime &now)
{
    const std::string name = localFolder(values) + Trim(values.StationName) +
                             Format(now, "MMDDYY") + Format(now, "HHMMSS") + ".";
    return {name + "tmp", name + "req", name + "ans"};
}

LocalRequest::~LocalRequest()
{
    for (std::string *text : {&number, &cardText, &verify})
        platform::wipe(*text);
}

std::string orDefault(const std::string &text, const char *fallback)
{
    return isBlank(text) ? std::string(fallback) : text;
}

/// Built in one string: a list of the values would be one more copy of the card.
std::string requestLine(const LocalRequest &request)
{
    std::string line;
    platform::keepSecret(line);
    const auto add = [&line](std::string_view value, const char *fallback) {
        line.append(line.empty() ? "\"" : ",\"");
        line.append(isBlank(value) ? fallback : value).append("\"");
    };
    add(request.charge ? "C6" : "C1", "");
    add(request.server, "9999");
    add(request.receipt, "999");
    add(request.number, "99999999999999");
    add(request.cardText, "9999");
    add(request.amount, "1.00");
    add("99999", "");
    const std::string verify = Trim(request.verify);
    if (request.typed && !verify.empty() && verify != "000")
        add(verify, "");
    std::replace(line.begin(), line.end(), '\0', ' ');
    line.append("\r\n");
    return line;
}

std::string localAmount(std::string_view amount)
{
    return Val(amount).isZero() ? "1.00" : Format(amount, "#######.##");
}

std::string answerText(std::string_view content)
{
    return withoutCardNumbers(DelimitedReader(content).next());
}

bool namesOutcome(std::string_view answer)
{
    return !answer.empty() &&
           std::string_view("YND").find(answer.front()) != std::string_view::npos;
}

std::string outcomeWord(std::string_view answer)
{
    return Left(answer, 1) == "Y" ? kApproved : kDeclined;
}

} // namespace tender
