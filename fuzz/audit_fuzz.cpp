// "XAudit.DAT": it agrees with the tender's amount if it is the same money, whatever else it
// contains, and its question is one line.
#include "memory_station.h"
#include "records/text.h"
#include "tender/request.h"

using namespace records;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string audit = tender::auditAmount(fuzz::textOf(data, size));
    fuzz::require(audit.find_first_of("\r\n") == std::string::npos);
    for (const char *amount : {"48.50", "12", "0.05"}) {
        Money value;
        if (readNumber(audit, value)) {
            fuzz::require(tender::amountsAgree(audit, amount) == (value.rounded(2) == Val(amount)));
        } else {
            fuzz::require(!tender::amountsAgree(audit, amount) || Val(audit) == Val(amount));
        }
    }
    fuzz::require(tender::auditQuestion(audit, true).find_first_of("\r\n") == std::string::npos);
    return 0;
}
