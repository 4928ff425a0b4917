// Names for numbers: the employee on a slip and the manager in the trace; and the exact lines of
// that trace, which never stops anything.
#include "records/employee_record.h"
#include "records/lookups.h"
#include "records/trace.h"
#include "support/golden_table.h"
#include "support/test_station.h"

#include <span>

namespace {

using namespace records;

constexpr const char *kEmployees = "F:\\Clock\\Data\\Zemployee.dat";
constexpr const char *kManagerTrace = "F:\\Lumbrio\\data\\AsstTrace0125.dat";
constexpr const char *kManagers = "F:\\Lumbrio\\ini\\3\\ButtonAM.dat";

struct ManagerAndEmployees : testing::Test {
    ManagerAndEmployees()
    {
        app.values.Remotedir = "F:\\Lumbrio\\";
        app.values.timeClockDirectory = "F:\\Clock\\";
    }

    static std::string employee(const std::string &number, const std::string &name)
    {
        EmployeeRecord record;
        std::fill(record.data().begin(), record.data().end(), ' ');
        record.set(kEmployeeNumber, number);
        record.set(kEmployeeName, name);
        return std::string(record.view());
    }

    /// Full and short name after looking the number up, with names of the one before in place.
    std::string names(const std::string &number)
    {
        app.values.EmployeeFullName = "Earlier One";
        app.values.EmployeeShortName = "Earlier ";
        app.values.EmployeeNumber = number;
        Fetch_EmpName(app);
        return app.values.EmployeeFullName + "/" + app.values.EmployeeShortName;
    }

    support::TestStation station;
    App app{station.services};
};

TEST_F(ManagerAndEmployees, FindTheFirstEmployeeOfTheTrimmedNumberAndNeverStopATender)
{
    station.put(kEmployees, employee("1", "Anna Bell") + employee("7", "  Rosalind Test Smith") +
                                employee("7", "Second Seven") +
                                employee("9", "Nina Last").substr(0, 560)); // a cut file
    support::expectTable("records/employees.txt",
                         [this](const std::string &number) { return std::vector{names(number)}; });
    support::TestStation other(&station);
    platform::SlotFile held(other.files, kEmployees, EmployeeRecord::kSize);
    ASSERT_TRUE(done(held.open(platform::SlotUse::Read)) && done(held.lock()));
    EXPECT_EQ(names("1"), "XXXXXX/Earlier ");
    EXPECT_FALSE(station.run.ending());
}

TEST_F(ManagerAndEmployees, FindManagersInRowsOneToElevenAndABadLineSpoilsOnlyItsOwnRow)
{
    // Without a file: row 11 is empty, so that no code at all finds a manager without a name.
    app.values.Remotedir.clear();
    Get_AsstMgr(app);
    EXPECT_EQ(app.values.Remotedir, "c:\\Lumbrio\\");
    EXPECT_EQ(managerName(app.values, ""), "");

    app.values.Remotedir = "F:\\Lumbrio\\";
    station.put(kManagers, support::testFile("broken/records/manager_list_with_bad_lines.dat"));
    Get_AsstMgr(app);
    std::string rows;
    for (const ManagerRow &row : std::span(app.values.ManagerTable).first(7))
        rows += row.cardNumber + "|" + row.name + "|" + row.endDate + "\n";
    EXPECT_EQ(rows, support::testFile("golden/records/managers.txt"));
    EXPECT_EQ(managerName(app.values, "card11"), "Manager 11");
    for (const char *code : {"1111", "card12", "CARD11"}) // rows 0 and 12, and another case
        EXPECT_EQ(managerName(app.values, code), "Not Found") << code;
}

TEST_F(ManagerAndEmployees, HaveATraceWithItsExactLinesThatOnlyAMissingFolderLoses)
{
    app.values.StationName = "FRONT-BAR";
    app.values.ManagerTable[3] = {"4711", "Paula Manager", "01/01/2030"};
    Write_AsstMgr(app, "Main");
    EXPECT_FALSE(station.has(kManagerTrace) || station.run.ending());
    station.folder("F:\\Lumbrio\\Data");
    app.values.managerCode = "4711";
    Write_AsstMgr(app, "View All Tables Screen");
    support::TestStation other(&station);
    platform::SlotFile held(other.files, kManagerTrace, 500);
    ASSERT_TRUE(done(held.open(platform::SlotUse::Read)) && done(held.lock()));
    app.values.managerCode = "4712";
    Write_AsstMgr(app, "Main"); // a refused lock loses no line
    EXPECT_EQ(station.get(kManagerTrace), support::testFile("golden/records/manager_trace.txt"));
}

} // namespace
