// Names for numbers: whose name a slip prints, and whose name the manager's trace gets.
#include "records/employee_record.h"
#include "records/lookups.h"
#include "support/test_files.h"
#include "support/test_station.h"

#include <gtest/gtest.h>

namespace {

using namespace records;
using platform::Outcome;
using support::TestStation;

constexpr const char *kEmployees = "F:\\Clock\\Data\\Zemployee.dat";
constexpr const char *kManagers = "F:\\Lumbrio\\ini\\3\\ButtonAM.dat";

class Lookups : public testing::Test {
protected:
    Lookups()
    {
        app.values.Remotedir = "F:\\Lumbrio\\";
        app.values.timeClockDirectory = "F:\\Clock\\";
        station.put(kEmployees, employee("1", "Anna Bell") + employee(" 12 ", "Bartholomew") +
                                    employee("7", "  Rosalind Test Smith") + employee("007", "Bo") +
                                    employee("7", "Second Seven"));
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

    TestStation station;
    App app{station.services};
};

TEST_F(Lookups, NameTheFirstEmployeeWhoseTrimmedNumberIsTheSame)
{
    EXPECT_EQ(names("7"), "Rosalind Test Smith/Rosalind ");
    EXPECT_EQ(names("  7 "), "Rosalind Test Smith/Rosalind ");
    EXPECT_EQ(names("12"), "Bartholomew/Barth");
    EXPECT_EQ(names("007"), "Bo/Bo");
    EXPECT_EQ(names("99"), "XXXXXX/Earlier ");
    EXPECT_EQ(names(""), "Earlier One/Earlier ");
    EXPECT_EQ(names("  "), "Earlier One/Earlier ");
    EXPECT_EQ(shortName(""), "");
}

TEST_F(Lookups, ReadTheLastEmployeeOfACutFile)
{
    const std::string cut = employee("1", "Anna Bell") + employee("9", "Nina Last").substr(0, 560);
    station.put(kEmployees, cut);
    EXPECT_EQ(names("9"), "Nina Last/Nina ");
    station.put(kEmployees, cut.substr(0, 1060)); // no employee any more, and not the one before
    EXPECT_EQ(names("9"), "XXXXXX/Earlier ");
    station.put(kEmployees, "");
    EXPECT_EQ(names("1"), "XXXXXX/Earlier ");
}

TEST_F(Lookups, OfEmployeesNeverStopATender)
{
    TestStation other(&station);
    platform::SlotFile held(other.files, kEmployees, EmployeeRecord::kSize);
    ASSERT_TRUE(done(held.open(platform::SlotUse::Read)) && done(held.lock()));
    EXPECT_EQ(names("1"), "XXXXXX/Earlier ");
    held.close();
    station.disk.failOn("read", "Zemployee.dat", Outcome::Broken);
    EXPECT_EQ(names("1"), "XXXXXX/Earlier ");
    station.erase(kEmployees);
    EXPECT_EQ(names("1"), "XXXXXX/Earlier ");
    EXPECT_FALSE(station.run.ending());
}

TEST_F(Lookups, FillTheManagersFromRowZeroToFifteen)
{
    std::string lines;
    for (int i = 0; i < 17; ++i)
        lines += "\"card" + std::to_string(i) + "\",\"Manager " + std::to_string(i) +
                 "\",\"01/01/2030\"\r\n";
    station.put(kManagers, lines);
    Get_AsstMgr(app);
    for (int i = 0; i < 16; ++i)
        EXPECT_EQ(app.values.ManagerTable[static_cast<std::size_t>(i)].name,
                  "Manager " + std::to_string(i));
    EXPECT_EQ(managerName(app.values, "card1"), "Manager 1");
    EXPECT_EQ(managerName(app.values, "card11"), "Manager 11");
    // The first line of the file and what stands behind row 11 are never found.
    EXPECT_EQ(managerName(app.values, "card0"), "Not Found");
    EXPECT_EQ(managerName(app.values, "card12"), "Not Found");
    EXPECT_EQ(managerName(app.values, "CARD1"), "Not Found");
}

TEST_F(Lookups, LetABadManagerLineSpoilItsOwnRowAlone)
{
    station.put(kManagers, support::testFile("broken/records/manager_list_with_bad_lines.dat"));
    Get_AsstMgr(app);
    const std::string expected[] = {
        "1111/First Line/01/01/2030",         "2222/Second Line/01/01/2030",
        "xxxxxxxxxx/Not Assigned/01/01/2001", "xxxxxxxxxx/Not Assigned/01/01/2001",
        "5555/Fifth Line/01/01/2030",         "xxxxxxxxxx/Not Assigned/01/01/2001"};
    for (std::size_t i = 0; i < std::size(expected); ++i) {
        const ManagerRow &row = app.values.ManagerTable[i];
        EXPECT_EQ(row.cardNumber + "/" + row.name + "/" + row.endDate, expected[i]) << i;
    }
}

TEST_F(Lookups, OfManagersHaveDefaultsInTheirTenRows)
{
    app.values.Remotedir.clear();
    Get_AsstMgr(app);
    EXPECT_EQ(app.values.Remotedir, "c:\\Lumbrio\\");
    EXPECT_EQ(app.values.ManagerTable[0].name, "");
    EXPECT_EQ(app.values.ManagerTable[10].name, "Not Assigned");
    EXPECT_EQ(managerName(app.values, "xxxxxxxxxx"), "Not Assigned");
    // Row 11 is empty, so that no code at all finds a manager without a name.
    EXPECT_EQ(managerName(app.values, ""), "");

    station.put("c:\\Lumbrio\\ini\\3\\ButtonAM.dat", "\"1\",\"A\",\"B\"\r\n");
    station.disk.failOn("read", "ButtonAM.dat", Outcome::Broken);
    Get_AsstMgr(app);
    EXPECT_FALSE(station.run.ending());
}

} // namespace
