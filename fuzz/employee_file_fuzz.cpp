// "Zemployee.dat" and "ButtonAM.dat": the number looked up is the first 20 bytes, the rest is the
// file. A name is found or it is "XXXXXX", and its short form is its beginning.
#include "memory_station.h"
#include "records/lookups.h"

using namespace records;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string all = fuzz::textOf(data, size);
    const std::string number = Left(all, 20);
    const std::string content = all.substr(number.size());
    fuzz::MemoryStation station;
    ProcessValues &values = station.app.values;
    station.put("C:\\Lumbrio\\Data\\Zemployee.dat", content);
    values.EmployeeNumber = number;
    Fetch_EmpName(station.app);
    fuzz::require(values.EmployeeFullName.size() <= 30);
    fuzz::require(startsWith(values.EmployeeFullName, values.EmployeeShortName));
    if (isBlank(number))
        fuzz::require(values.EmployeeFullName.empty());
    else if (values.EmployeeFullName != "XXXXXX")
        fuzz::require(content.find(Trim(number)) != std::string::npos);

    station.put("C:\\Lumbrio\\ini\\3\\ButtonAM.dat", content);
    Get_AsstMgr(station.app);
    for (const ManagerRow &row : values.ManagerTable)
        fuzz::require(row.endDate.find_first_of("\r\n") == std::string::npos);
    managerName(values, number);
    return 0;
}
