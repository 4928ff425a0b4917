#include "simulator/outcome_table.h"

#include "records/text.h"
#include "simulator/sample_values.h"

#include <array>

namespace simulator {

namespace {

enum class Kind {
    Approved,
    Declined,
    DeclinedBare,
    Partial,
    Gift,
    GiftUsedUp,
    Timeout,
    NoAnswer,
    Garbage,
    Empty,
    CompletedLater,
    HalfWritten,
    Late,
    Tagged,
    TaggedDeclined,
    LineFeeds,
    CarriageReturns,
    Huge,
    LongValues,
    Slow,
};

constexpr int kLateSeconds = 12; // well after the operator may cancel
constexpr int kSlowFromCents = 60;

// clang-format off
struct Row {
    Kind kind;
    OutcomeRow shown;
};

constexpr std::array<Row, 19> kRows = {{
    {Kind::Declined, {1, 1, "declined", "declined by the bank"}},
    {Kind::DeclinedBare, {2, 2, "bare decline", "a result file of the one line RESULT=DECLINED"}},
    {Kind::Partial, {3, 3, "partial", "half approved, the rest still owed; declined without partial support"}},
    {Kind::Gift, {4, 4, "gift balance", "approved on a gift card with 25.00 left"}},
    {Kind::GiftUsedUp, {5, 5, "gift used up", "approved on a gift card with 0.00 left"}},
    {Kind::Timeout, {6, 6, "timeout", "RESULT=TIMEOUT: no word from the bank, for the operator to judge"}},
    {Kind::NoAnswer, {7, 7, "no answer", "ends without a result file"}},
    {Kind::Garbage, {8, 8, "garbage", "4096 bytes that are no text"}},
    {Kind::Empty, {9, 9, "empty", "a result file of no bytes"}},
    {Kind::LineFeeds, {10, 10, "line feeds", "approved, lines ended only by LF"}},
    {Kind::HalfWritten, {11, 11, "half-written", "written in place, cut inside the card token, never completed"}},
    {Kind::Late, {12, 12, "late", "approved after 12 s, when the operator may have cancelled"}},
    {Kind::Tagged, {13, 13, "tagged", "a success in the tagged form"}},
    {Kind::TaggedDeclined, {14, 14, "tagged decline", "a failure in the tagged form"}},
    {Kind::CarriageReturns, {15, 15, "carriage returns", "approved, lines ended only by CR"}},
    {Kind::CompletedLater, {16, 16, "completed later", "written in place, cut inside the first line; the rest 0.4 s later"}},
    {Kind::Huge, {17, 17, "huge", "approved, followed by ten megabytes of other lines"}},
    {Kind::LongValues, {18, 18, "long values", "approved, every value longer than its field"}},
    {Kind::Slow, {61, 69, "slow", "approved after 1 to 9 s, by the last digit"}},
}};
// clang-format on

// "48.50"; the cents of an amount that is not below zero.
std::string amountText(std::int64_t cents)
{
    const std::string digits = std::to_string(cents % 100);
    return std::to_string(cents / 100) + (digits.size() < 2 ? ".0" : ".") + digits;
}

struct Card {
    std::string approvalCode;
    std::string account;
    std::string type;
    std::string name;
    std::string token;
    std::string transaction;
};

Card cardFor(const PaymentRequest &request)
{
    static constexpr std::array<const char *, 4> kTypes = {"VISA", "MASTERCARD", "AMEX",
                                                           "DISCOVER"};
    static constexpr std::array<const char *, 4> kNames = {"WILLOW SAMPLE", "CEDAR SAMPLE",
                                                           "HAZEL SAMPLE", "LINDEN SAMPLE"};
    const std::uint64_t seed =
        fingerprint({request.transactionType, request.amount, request.receipt, request.clerk});
    Card card;
    card.approvalCode = approvalCode(seed);
    card.account = "XXXXXXXXXXXX" + padded((seed >> 8U) % 10000, 4);
    card.type = kTypes[(seed >> 24U) % kTypes.size()];
    card.name = kNames[(seed >> 28U) % kNames.size()];
    card.token = "XAW" + padded(seed >> 16U, 10);
    card.transaction = padded(seed >> 12U, 8);
    return card;
}

std::string cardLines(const PaymentRequest &request, const Card &card)
{
    return "SWIPED=True\r\nNAME=" + card.name + "\r\nCLERK=" + request.clerk +
           "\r\nXCACCOUNTID=" + card.token + "\r\nXCTRANSACTIONID=" + card.transaction +
           "\r\nACCOUNT=" + card.account + "\r\nACCOUNTTYPE=" + card.type +
           "\r\nEXPIRATION=1232\r\n";
}

std::string approval(const PaymentRequest &request, const Card &card, std::int64_t cents)
{
    return "RESULT=SUCCESS\r\nTYPE=" + request.transactionType +
           "\r\nAPPROVALCODE=" + card.approvalCode + "\r\n" + cardLines(request, card) +
           "APPROVEDAMOUNT=" + amountText(cents) + "\r\n";
}

std::string refusal(const PaymentRequest &request, std::string_view result,
                    std::string_view description)
{
    return "RESULT=" + std::string(result) + "\r\nTYPE=" + request.transactionType +
           "\r\nDESCRIPTION=" + std::string(description) + "\r\n" +
           cardLines(request, cardFor(request));
}

std::string giftResult(const PaymentRequest &request, std::string_view balance)
{
    Card card = cardFor(request);
    card.type = "GIFT";
    return approval(request, card, centsOf(request.amount)) + "BALANCE=" + std::string(balance) +
           "\r\n";
}

std::string taggedResult(const PaymentRequest &request, bool success)
{
    const Card card = cardFor(request);
    std::string text = "<RESULT>\r\n";
    const auto add = [&text](std::string_view tag, std::string_view value) {
        text.append("<").append(tag).append(">").append(value);
        text.append("</").append(tag).append(">\r\n");
    };
    add("RESULT_SUCCESS", success ? "T" : "F");
    add("RESULT_DESCRIPTION", success ? "APPROVED" : "DECLINED");
    if (success)
        add("RESULT_APPROVALCODE", card.approvalCode);
    add("RESULT_XCACCOUNTID", card.token);
    add("RESULT_XCTRANSACTIONID", card.transaction);
    add("RESULT_XACCOUNT", card.account);
    add("RESULT_ACCOUNTTYPE", card.type);
    add("RESULT_EXPIRATION", "1232");
    if (success)
        add("RESULT_APPROVEDAMOUNT", amountText(centsOf(request.amount)));
    return text + "</RESULT>\r\n";
}

std::string withLineEnds(const std::string &text, char left)
{
    std::string result;
    for (const char c : text)
        if ((c != '\r' && c != '\n') || c == left)
            result += c;
    return result;
}

std::string huge(const PaymentRequest &request)
{
    constexpr std::size_t kTenMegabytes = 10U << 20U;
    const std::string line = "REMARK=" + std::string(120, '.') + "\r\n";
    std::string text = approvedResult(request);
    text.reserve(kTenMegabytes + line.size());
    while (text.size() < kTenMegabytes)
        text += line;
    return text;
}

std::string longValues(const PaymentRequest &request)
{
    Card card = cardFor(request);
    for (std::string *value : {&card.approvalCode, &card.account, &card.type, &card.name,
                               &card.token, &card.transaction})
        value->append(60, 'x');
    return approval(request, card, centsOf(request.amount));
}

void cutInside(PaymentOutcome &outcome, std::string_view key, std::size_t into)
{
    outcome.firstPart = outcome.content.find(key) + into;
}

Kind kindOf(const PaymentRequest &request, std::string_view &name)
{
    const std::int64_t cents = centsOf(request.amount);
    name = "declined";
    if (cents <= 0)
        return Kind::Declined;
    for (const Row &row : kRows)
        if (row.shown.holds(cents)) {
            name = row.shown.name;
            return row.kind;
        }
    name = "approved";
    return Kind::Approved;
}

void fill(PaymentOutcome &outcome, Kind kind, const PaymentRequest &request)
{
    outcome.content = approvedResult(request);
    switch (kind) {
    case Kind::Approved: break;
    case Kind::Declined: outcome.content = declinedResult(request); break;
    case Kind::DeclinedBare: outcome.content = "RESULT=DECLINED\r\n"; break;
    case Kind::Partial:
        outcome.content = request.partialSupport ? partialResult(request) : declinedResult(request);
        break;
    case Kind::Gift: outcome.content = giftResult(request, "25.00"); break;
    case Kind::GiftUsedUp: outcome.content = giftResult(request, "0.00"); break;
    case Kind::Timeout: outcome.content = refusal(request, "TIMEOUT", "NO RESPONSE"); break;
    case Kind::NoAnswer: outcome.delivery = Delivery::None; break;
    case Kind::Garbage: outcome.content = garbage(); break;
    case Kind::Empty: outcome.content.clear(); break;
    case Kind::CompletedLater:
        outcome.delivery = Delivery::FirstPartThenAll;
        cutInside(outcome, "RESULT=", 3);
        break;
    case Kind::HalfWritten:
        outcome.delivery = Delivery::FirstPart;
        cutInside(outcome, "XCACCOUNTID=", 16);
        break;
    case Kind::Late: outcome.waitSeconds = kLateSeconds; break;
    case Kind::Tagged: outcome.content = taggedResult(request, true); break;
    case Kind::TaggedDeclined: outcome.content = taggedResult(request, false); break;
    case Kind::LineFeeds: outcome.content = withLineEnds(outcome.content, '\n'); break;
    case Kind::CarriageReturns: outcome.content = withLineEnds(outcome.content, '\r'); break;
    case Kind::Huge: outcome.content = huge(request); break;
    case Kind::LongValues: outcome.content = longValues(request); break;
    case Kind::Slow:
        outcome.waitSeconds = static_cast<int>(centsOf(request.amount) % 100) - kSlowFromCents;
        break;
    }
}

// Where the next option begins: a slash at the start or after a blank.
std::size_t nextOption(std::string_view arguments, std::size_t from)
{
    for (std::size_t at = arguments.find('/', from); at != std::string_view::npos;
         at = arguments.find('/', at + 1))
        if (at == 0 || arguments[at - 1] == ' ')
            return at;
    return arguments.size();
}

void take(PaymentRequest &request, std::string_view option)
{
    const std::size_t colon = option.find(':');
    const std::string name = records::toLower(records::Trim(option.substr(0, colon)));
    std::string value;
    if (colon != std::string_view::npos)
        value = records::Trim(option.substr(colon + 1));
    if (name == "transactiontype")
        request.transactionType = value;
    else if (name == "amount")
        request.amount = value;
    else if (name == "receipt")
        request.receipt = value;
    else if (name == "clerk")
        request.clerk = value;
    else if (name == "resultfile")
        request.resultFile = value;
    else if (name == "title")
        request.title = value;
    else if (name == "partialapprovalsupport")
        request.partialSupport = records::toLower(value) == "t";
}

} // namespace

PaymentRequest parsePaymentRequest(std::string_view arguments)
{
    PaymentRequest request;
    std::size_t at = nextOption(arguments, 0);
    while (at < arguments.size()) {
        const std::size_t next = nextOption(arguments, at + 1);
        take(request, arguments.substr(at + 1, next - at - 1));
        at = next;
    }
    return request;
}

std::vector<OutcomeRow> outcomeRows()
{
    std::vector<OutcomeRow> rows;
    rows.reserve(kRows.size());
    for (const Row &row : kRows)
        rows.push_back(row.shown);
    return rows;
}

PaymentOutcome decide(const PaymentRequest &request)
{
    PaymentOutcome outcome;
    const Kind kind = kindOf(request, outcome.name);
    fill(outcome, kind, request);
    return outcome;
}

std::string approvedResult(const PaymentRequest &request)
{
    return approval(request, cardFor(request), centsOf(request.amount));
}

std::string declinedResult(const PaymentRequest &request)
{
    return refusal(request, "DECLINED", "DECLINED BY THE BANK");
}

std::string partialResult(const PaymentRequest &request)
{
    const std::int64_t cents = centsOf(request.amount);
    return approval(request, cardFor(request), cents / 2) +
           "ADDITIONALFUNDSREQUIRED=" + amountText(cents - cents / 2) + "\r\n";
}

} // namespace simulator
