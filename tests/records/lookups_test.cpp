// Names for numbers: whose name a slip prints, and whose name the manager's trace gets.
#include "records/employee_record.h"
#include "records/lookups.h"
#include "support/test_files.h"
#include "support/test_station.h"

#include <gtest/gtest.h>

namespace {

using namespace records;

constexpr const char *kEmployees = "F:\\Clock\\Data\\Zemployee.dat";
constexpr const char *kManagers = "F:\\Lumbrio\\ini\\3\\ButtonAM.dat";

class Lookups : public testing::Test {
protected:
    Lookups()
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

TEST_F(Lookups, NameTheFirstEmployeeWhoseTrimmedNumberIsTheSameAndNeverStopATender)
{
    station.put(kEmployees, employee("1", "Anna Bell") + employee(" 12 ", "Bartholomew") +
                                employee("7", "  Rosalind Test Smith") + employee("007", "Bo") +
                                employee("7", "Second Seven") +
                                employee("9", "Nina Last").substr(0, 560)); // a cut file
    EXPECT_EQ(names("  7 "), "Rosalind Test Smith/Rosalind ");
    EXPECT_EQ(names("12"), "Bartholomew/Barth");
    EXPECT_EQ(names("007"), "Bo/Bo");
    EXPECT_EQ(names("9"), "Nina Last/Nina ");
    EXPECT_EQ(names("99"), "XXXXXX/Earlier ");
    EXPECT_EQ(names("  "), "Earlier One/Earlier ");
    support::TestStation other(&station);
    platform::SlotFile held(other.files, kEmployees, EmployeeRecord::kSize);
    ASSERT_TRUE(done(held.open(platform::SlotUse::Read)) && done(held.lock()));
    EXPECT_EQ(names("1"), "XXXXXX/Earlier ");
    held.close();
    station.disk.failOn("read", "Zemployee.dat", platform::Outcome::Broken);
    EXPECT_EQ(names("1"), "XXXXXX/Earlier ");
    EXPECT_FALSE(station.run.ending());
}

TEST_F(Lookups, FindManagersInRowsOneToElevenAndABadLineSpoilsItsOwnRowAlone)
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
    for (const ManagerRow &row : app.values.ManagerTable)
        rows += row.cardNumber + "|" + row.name + "|" + row.endDate + "\n";
    EXPECT_EQ(rows, support::testFile("golden/records/managers.txt"));
    EXPECT_EQ(managerName(app.values, "card11"), "Manager 11");
    for (const char *code : {"1111", "card12", "CARD11"}) // rows 0 and 12, and another case
        EXPECT_EQ(managerName(app.values, code), "Not Found") << code;
}

} // namespace
