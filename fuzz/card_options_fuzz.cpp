// "CCard.dat": any content gives options, and a payment directory that a name can be appended to.
#include "memory_station.h"
#include "records/configuration.h"

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
    if (content.find("-1") == std::string::npos && content.find("-01") == std::string::npos &&
        content.find("-0") == std::string::npos)
        fuzz::require(!values.PrintTipLine && !values.PreApproveTip);
    return 0;
}
