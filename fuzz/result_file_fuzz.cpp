// The payment application's result file: whatever it contains, the record keeps its fields, and
// only a line that says so approves.
#include "memory_station.h"
#include "tender/result_reader.h"

using namespace records;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string content = fuzz::textOf(data, size);
    fuzz::MemoryStation station;
    CardRecord &CCdata = station.app.values.CCdata;
    CCdata.set(CCReceipt, "1043");
    CCdata.set(CCTabAmt, "48.50");
    station.put(tender::kDefaultResultFile, content);
    const auto lines = tender::readResultFile(station.app, tender::kDefaultResultFile).lines;

    bool approves = false;
    bool owes = false;
    for (const std::string &line : lines) {
        approves = approves || startsWith(Trim(line), "RESULT=S");
        owes = owes || startsWith(Trim(line), "ADDITIONALFUNDSREQUIRED=");
    }
    fuzz::require(approves || Left(CCdata.raw(CResponse), 1) != "S");
    fuzz::require(owes || CCdata.isEmpty(CCaditionalFUNDS));
    fuzz::require(CCdata.text(CCReceipt) == "1043" && CCdata.text(CCTabAmt) == "48.50");
    fuzz::require(station.get("C:\\Lumbrio\\ResponseBACKUP.txt") == content);
    fuzz::require(platform::splitLines(tender::resultDebugFile(CCdata)).size() == 22);
    return 0;
}
