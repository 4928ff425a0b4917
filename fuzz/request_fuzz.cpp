// The point of sale's request and audit: no value breaks out of its line in the answer, and an
// amount is the same amount after every mask.
#include "memory_station.h"
#include "records/delimited.h"
#include "tender/request.h"

using namespace records;

namespace {

void holdsItsValue(const std::string &amount)
{
    constexpr const char *kMask = "#######.##";
    const std::string masked = Format(amount, kMask);
    fuzz::require(Format(masked, kMask) == masked);
    Money value;
    if (readNumber(amount, value)) {
        fuzz::require(Val(masked) == value.rounded(2));
        fuzz::require(Currency(amount) == Currency(value.rounded(2)));
        fuzz::require(tender::amountsAgree(amount, masked));
    }
    fuzz::require(Val(plainText(Val(amount))) == Val(amount));
    fuzz::require(Val(Format_Money(Val(amount))) == Val(amount).rounded(2));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string content = fuzz::textOf(data, size);
    const tender::TenderRequest request = tender::parseRequest(content);
    CardRecord CCdata;
    Clear_CCdata(CCdata);
    CCdata.set(CCTable, Trim(request.table));
    CCdata.set(CCReceipt, Trim(request.receipt));
    CCdata.set(CCServer, Trim(request.server));
    CCdata.set(CCTabAmt, request.amount);
    const auto lines = platform::splitLines(tender::answerDeclined("Declined", CCdata));
    fuzz::require(lines.size() == 11);
    for (std::size_t i = 2; i < lines.size(); ++i)
        fuzz::require(lines[i].size() >= 12 && lines[i].front() == '"' && lines[i].back() == '"');
    holdsItsValue(request.amount);
    return 0;
}
