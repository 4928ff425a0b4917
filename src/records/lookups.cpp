#include "records/lookups.h"

#include "records/delimited.h"
#include "records/employee_record.h"

#include <algorithm>

namespace records {

namespace {

constexpr std::size_t kLastNamedRow = 11;

void keepName(ProcessValues &values, const EmployeeRecord &employee)
{
    values.EmployeeFullName = employee.text(kEmployeeName);
    values.EmployeeShortName = shortName(values.EmployeeFullName);
}

/// False when the line has fewer than three values.
bool readRow(const std::string &line, ManagerRow &row)
{
    DelimitedReader reader(line);
    for (std::string *value : {&row.cardNumber, &row.name, &row.endDate}) {
        if (reader.atEnd())
            return false;
        *value = reader.next();
    }
    return true;
}

} // namespace

void Fetch_EmpName(App &app)
{
    ProcessValues &values = app.values;
    if (isBlank(values.EmployeeNumber))
        return;
    values.EmployeeFullName = "XXXXXX";
    const std::string path = values.timeClockDirectory + "Data\\Zemployee.dat";
    if (!app.files.exists(path))
        return;
    // A failure ends only the search; the slip then has no name.
    const platform::ErrorsIgnored ignored(app.run);
    platform::SlotFile file(app.files, path, EmployeeRecord::kSize);
    if (!done(file.open(platform::SlotUse::Read)) || !done(file.lock()))
        return;
    const std::string wanted = Trim(values.EmployeeNumber);
    const long count = file.count();
    for (long slot = 1; slot <= count && !app.ending(); ++slot) {
        EmployeeRecord employee;
        if (done(file.read(slot, employee.data())) && employee.text(kEmployeeNumber) == wanted) {
            keepName(values, employee);
            break;
        }
    }
    file.unlock();
}

std::string shortName(const std::string &name)
{
    const std::size_t blank = name.find(' ');
    return blank == std::string::npos ? Left(name, 5) : Left(name, blank + 1);
}

void Get_AsstMgr(App &app)
{
    ProcessValues &values = app.values;
    for (std::size_t row = 1; row <= 10; ++row)
        values.ManagerTable[row] = {"xxxxxxxxxx", "Not Assigned", "01/01/2001"};
    if (values.Remotedir.empty())
        values.Remotedir = "c:\\Lumbrio\\";
    const platform::ErrorsIgnored ignored(app.run);
    const std::string path = values.Remotedir + "ini\\3\\ButtonAM.dat";
    std::string content;
    if (!app.files.exists(path) || !done(app.files.read(path, content)))
        return;
    const std::vector<std::string> lines = platform::splitLines(content);
    const std::size_t used = std::min(lines.size(), values.ManagerTable.size());
    for (std::size_t i = 0; i < used; ++i) {
        ManagerRow row;
        if (readRow(lines[i], row))
            values.ManagerTable[i] = row;
    }
}

std::string managerName(const ProcessValues &values, const std::string &code)
{
    for (std::size_t row = 1; row <= kLastNamedRow; ++row) {
        if (values.ManagerTable[row].cardNumber == code)
            return values.ManagerTable[row].name;
    }
    return "Not Found";
}

} // namespace records
