#include "simulator/server_table.h"

#include "platform/files.h"
#include "records/card_helpers.h"
#include "records/delimited.h"
#include "simulator/sample_values.h"

#include <algorithm>
#include <array>

namespace simulator {

namespace {

constexpr const char *kSeventhValue = "99999";
constexpr int kByLastDigit = -1;
constexpr std::size_t kInsideTheCode = 4; // the quote, the outcome, two digits

std::string code(const ServerRequest &request)
{
    return approvalCode(
        fingerprint({request.kind, request.amount, request.receipt, request.server}));
}

std::string approval(const ServerRequest &request)
{
    return records::quotedLine("Y" + code(request) + " APPROVED");
}

struct Row {
    OutcomeRow shown;
    std::string (*content)(const ServerRequest &) = approval;
    Delivery delivery = Delivery::Whole;
    std::size_t firstPart = 0;
    int waitSeconds = 0;
};

using Asked = const ServerRequest &;

std::string nothing(Asked)
{
    return {};
}

// clang-format off
constexpr std::array<Row, 12> kRows = {{
    {{1, 1, "declined", "the answer NDECLINED"}, [](Asked) { return records::quotedLine("NDECLINED"); }},
    {{2, 2, "declined, D", "the answer DDO NOT HONOR"}, [](Asked) { return records::quotedLine("DDO NOT HONOR"); }},
    {{7, 7, "no answer", "the request is taken and never answered"}, nothing, Delivery::None},
    {{8, 8, "garbage", "4096 bytes that are no text"}, [](Asked) { return garbage(); }},
    {{9, 9, "empty", "an answer file of no bytes"}, nothing},
    {{11, 11, "half-written", "written in place, cut inside the approval code, never completed"},
     approval, Delivery::FirstPart, kInsideTheCode},
    {{12, 12, "late", "approved after 12 s, when the operator may have cancelled"}, approval, Delivery::Whole, 0, 12},
    {{13, 13, "small letter", "approved with a small y, which a tender takes for a decline"},
     [](Asked asked) { return records::quotedLine("y" + code(asked) + " APPROVED"); }},
    {{14, 14, "unknown", "the answer ?TRY AGAIN, whose letter is no outcome"}, [](Asked) { return records::quotedLine("?TRY AGAIN"); }},
    {{16, 16, "completed later", "written in place, cut before the outcome; the rest 0.4 s later"},
     approval, Delivery::FirstPartThenAll, 1},
    {{18, 18, "long text", "approved, the text longer than its field"},
     [](Asked asked) { return records::quotedLine("Y" + code(asked) + std::string(200, 'x')); }},
    {{61, 69, "slow", "approved after 1 to 9 s, by the last digit"}, approval, Delivery::Whole, 0, kByLastDigit},
}};
// clang-format on

// A run of digits as long as a card's, in whatever value it came.
std::string withoutLongNumbers(std::string text)
{
    constexpr std::size_t kShownAtMost = 9;
    for (std::size_t from = text.find_first_of("0123456789"); from != std::string::npos;) {
        const std::size_t to = std::min(text.find_first_not_of("0123456789", from), text.size());
        if (to - from > kShownAtMost)
            std::fill(text.begin() + static_cast<std::ptrdiff_t>(from),
                      text.begin() + static_cast<std::ptrdiff_t>(to), 'X');
        from = text.find_first_of("0123456789", to);
    }
    return text;
}

} // namespace

bool isWholeRequest(std::string_view content)
{
    return content.find_first_of("\r\n") != std::string_view::npos;
}

std::optional<ServerRequest> parseServerRequest(std::string_view content)
{
    const std::string_view line = content.substr(0, content.find_first_of("\r\n"));
    records::DelimitedReader reader(line);
    std::vector<std::string> values;
    while (!reader.atEnd())
        values.push_back(reader.next());
    if (values.size() < 7 || values.size() > 8 || (values[0] != "C1" && values[0] != "C6") ||
        values[6] != kSeventhValue)
        return std::nullopt;
    return ServerRequest{values[0], values[1], values[2], values[5],
                         records::maskedNumber(values[3])};
}

std::vector<OutcomeRow> serverRows()
{
    std::vector<OutcomeRow> rows;
    rows.reserve(kRows.size());
    for (const Row &row : kRows)
        rows.push_back(row.shown);
    return rows;
}

PaymentOutcome decide(const ServerRequest &request)
{
    const std::int64_t cents = centsOf(request.amount);
    if (cents <= 0)
        return {"declined", records::quotedLine("NINVALID AMOUNT")};
    for (const Row &row : kRows)
        if (row.shown.holds(cents))
            return {row.shown.name, row.content(request), row.delivery, row.firstPart,
                    row.waitSeconds == kByLastDigit ? static_cast<int>(cents % 10)
                                                    : row.waitSeconds};
    return {"approved", approval(request)};
}

PaymentOutcome refuse()
{
    return {"not understood", records::quotedLine("NINVALID REQUEST")};
}

std::string readableStep(const ServerRequest &request, std::string_view ending)
{
    return withoutLongNumbers(request.kind + " " + request.amount + " receipt=" + request.receipt +
                              " server=" + request.server) +
           " card=" + request.shownCard + ": " + std::string(ending);
}

} // namespace simulator
