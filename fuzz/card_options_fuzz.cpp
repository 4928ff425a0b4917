// "CCard.dat": any content gives options, and a payment directory that a name can be appended to.
#include "memory_station.h"
#include "records/configuration.h"

#include <algorithm>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string content = fuzz::textOf(data, size);
    fuzz::MemoryStation station;
    station.put("C:\\Lumbrio\\CCard.dat", content);
    records::Get_CCini(station.app);
    records::loadSetupFlags(station.app);
    const records::ProcessValues &values = station.app.values;
    const char last = values.paymentDirectory.back();
    fuzz::require(last == '\\' || last == '/');
    fuzz::require(values.TndrNOpreAUTH == 0);
    std::string unquoted = content; // a quote may be anywhere in a value
    unquoted.erase(std::remove(unquoted.begin(), unquoted.end(), '"'), unquoted.end());
    if (unquoted.find("-1") == std::string::npos && unquoted.find("-0") == std::string::npos)
        fuzz::require(!values.PrintTipLine && !values.PreApproveTip);
    return 0;
}
