// The next start removes what a killed program left; what may be in use stays.
#include "records/left_overs.h"
#include "support/test_station.h"

namespace {

using namespace records;
using platform::isWorkOf;
using platform::Maker;

const Maker kOurs = {"FRONT-BAR", "TndrCC"};

TEST(WorkNames, ShowTheirMakerWhateverStationAndFileAreCalled)
{
    const std::vector<Maker> makers = {kOurs, {"BAR", "TndrCC"}, {"FRONT-BAR", "TndrMGR"}};
    for (const Maker &mine : makers)
        for (const char *ending : {".new", ".part"}) {
            const std::string name = platform::workName("Xsend.ans.FRONT", mine, ending);
            for (const Maker &other : makers)
                EXPECT_EQ(isWorkOf(name, other), &mine == &other) << name << " " << other.station;
            EXPECT_FALSE(isWorkOf(name + "x", mine));
        }
    EXPECT_FALSE(isWorkOf(platform::workName("a", {}), {})) << "nobody's";
}

TEST(LeftOvers, AreRemovedOnlyUnderTheLockOfTheRoleAndOnlyOurs)
{
    const std::vector<std::string> folders = {
        "C:\\Lumbrio\\",     "C:\\Main\\",  "C:\\Main\\Data\\CCDATA\\",
        "F:\\Share\\data\\", "F:\\Share\\", "C:\\Pay\\LocalTran\\"};
    support::TestStation station;
    const std::string theirs = platform::workName("Xsend.ans", {"BAR", "TndrCC"});
    const auto startProgram = [](App &app) {
        app.values.Maindir = "C:\\Main\\";
        app.values.Remotedir = "F:\\Share\\";
        app.values.paymentDirectory = "C:\\Pay\\";
        takeRoleLock(app);
        return clearLeftOvers(app).size();
    };
    for (const std::string &folder : folders) {
        station.put(folder + theirs, "");
        support::TestStation killed(&station);
        killed.disk.failOn("rename", "", platform::Outcome::Broken);
        killed.disk.failOn("remove", "", platform::Outcome::Broken);
        const platform::ErrorsIgnored ignored(killed.run);
        killed.files.replaceWhole(folder + "Xsend.ans", "token");
        ASSERT_EQ(station.files.list(folder).size(), 2U);
    }
    App first(station.services);
    support::TestStation again(&station);
    App second(again.services);
    first.values.Maindir = "C:\\Main\\";
    takeRoleLock(first);
    EXPECT_EQ(startProgram(second), 0U) << "the first may be at work";
    EXPECT_FALSE(holdsRoleLock(second));
    first.roleLock.release();
    EXPECT_EQ(startProgram(second), folders.size());
    EXPECT_TRUE(holdsRoleLock(second));
    for (const std::string &folder : folders)
        EXPECT_TRUE(station.has(folder + theirs) && station.files.list(folder).size() == 1U)
            << folder;
    EXPECT_TRUE(station.has("C:\\Main\\Data\\TndrCC.lock"));
}

} // namespace
