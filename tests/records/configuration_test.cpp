// "LumbrioINI.dat", "CCard.dat" and the flag files: what a station believes about itself when they
// are whole, and when they are not.
#include "records/configuration.h"
#include "records/trace.h"
#include "support/golden_table.h"
#include "support/test_station.h"

namespace {

using namespace records;

constexpr const char *kIni = "C:\\Lumbrio\\LumbrioINI.dat";
constexpr const char *kOptions = "C:\\Lumbrio\\CCard.dat";
constexpr const char *kAllYes = "x\r\n\r\n0\r\n0\r\n0\r\n0\r\n0\r\n-1\r\n2\r\n-1\r\n";

/// The bytes of a broken file, or the file of a station with one field changed by "number=text".
std::string configuration(const std::string &change)
{
    if (change.starts_with("broken/"))
        return support::testFile(change);
    LumbrioConfig config;
    std::fill(config.data().begin(), config.data().end(), ' ');
    for (const auto &[number, value] : {std::pair(6, "D:\\Station\\"),
                                        {8, "  Receipt"},
                                        {27, "1234"},
                                        {40, "F:\\Clock\\"},
                                        {49, " F:\\Lumbrio\\"},
                                        {95, "18.5"}})
        config.set(configField(number), value);
    if (change.find('=') != std::string::npos)
        config.set(configField(std::stoi(change)), change.substr(change.find('=') + 1));
    return std::string(config.view());
}

struct Configuration : testing::Test {
    Configuration() { values.Remotedir = "F:\\Lumbrio\\"; }

    support::TestStation station;
    App app{station.services};
    ProcessValues &values = app.values;
};

TEST_F(Configuration, IsReadTrimmedAndAsFarAsTheFileGoes)
{
    support::expectTable("records/configurations.txt", [&](const std::string &input) {
        values = {};
        values.config.set(kGratuityPercent, "99"); // left from an earlier reading
        station.put(kIni, configuration(input));
        Get_INI(app);
        Get_INI(app);
        return std::vector{values.Maindir,
                           values.Remotedir,
                           values.timeClockDirectory,
                           values.ReceiptPrinterName.value_or("none"),
                           values.config.text(kGratuityPercent),
                           versionToolTip(values.config),
                           values.config.text(configField(33))};
    });
}

TEST_F(Configuration, ThatIsMissingOrWithoutDirectoriesFallsBackToTheStationsOwn)
{
    station.put(kIni, configuration("49="));
    Get_INI(app);
    station.erase(kIni);
    Get_INI(app);
    EXPECT_EQ(values.Maindir, "C:\\Lumbrio\\");
    EXPECT_EQ(values.config.value(kGratuityPercent), Val("18.5")) << "all else stays";
    values.Maindir.clear();
    Get_CCini(app);
    EXPECT_EQ(values.Maindir, "c:\\Lumbrio\\");
    fillEmptyDirectories(app);
    EXPECT_EQ(values.Remotedir, "C:\\Lumbrio\\");
}

TEST_F(Configuration, ThatIsEmptyIsNotKeptLockedFromThePointOfSale)
{
    station.put(kIni, "");
    station.time.after(300, [&] {
        support::TestStation pointOfSale(&station);
        platform::SlotFile file(pointOfSale.files, kIni, LumbrioConfig::kSize);
        EXPECT_TRUE(done(file.open(platform::SlotUse::Rewrite)) && done(file.lock()));
        file.write(1, configuration(""));
    });
    Get_INI(app);
    EXPECT_EQ(values.Maindir, "D:\\Station\\");
}

TEST_F(Configuration, HasOptionsThatOnlyMinusOneTurnsOn)
{
    support::expectTable("records/card_options.txt", [&](const std::string &input) {
        values = {};
        station.put(kOptions, input);
        Get_CCini(app);
        return std::vector{values.paymentDirectory, std::to_string(values.PrintTipLine),
                           std::to_string(values.NoPartialSupport),
                           std::to_string(values.PreApproveTip)};
    });
    station.put(kOptions, kAllYes);
    Get_CCini(app);
    station.disk.failOn("read", "CCard.dat", platform::Outcome::Broken);
    Get_CCini(app);
    loadSetupFlags(app);
    EXPECT_TRUE(values.PrintTipLine && values.PreApproveTip && values.NoPartialSupport == 2)
        << "a file that cannot be read changes nothing";
    EXPECT_FALSE(station.run.ending());
}

TEST_F(Configuration, HasAChargeAtOnceFlagThatCountsOnlyOnTheServer)
{
    for (const auto &[flag, chargeAtOnce] : {std::pair("F:\\Lumbrio\\DATA\\ccNOpreAUTH.dat", -1),
                                             {"C:\\Lumbrio\\Data\\CCnoPREauth.dat", 0},
                                             {"F:\\Lumbrio\\CCnoPREauth.dat", 0}}) {
        values.TndrNOpreAUTH = 0;
        station.put(flag, "");
        station.erase(kOptions);
        loadSetupFlags(app);
        EXPECT_EQ(values.TndrNOpreAUTH, 0) << "without options";
        station.put(kOptions, kAllYes);
        loadSetupFlags(app);
        EXPECT_EQ(values.TndrNOpreAUTH, chargeAtOnce) << flag;
        station.erase(flag);
    }
    station.erase(kOptions);
    loadSetupFlags(app);
    EXPECT_EQ(station.time.milliseconds(), 0U) << "a restaurant without options waits for none";
}

TEST_F(Configuration, OfHowACardIsChargedOutlivesAShortFailureOfTheShare)
{
    station.put("F:\\Lumbrio\\Data\\CCnoPREauth.dat", "");
    station.put(kOptions, kAllYes);
    for (const auto &[operation, path] :
         {std::pair("look", "CCnoPREauth.dat"), {"look", "CCard.dat"}, {"read", "CCard.dat"}}) {
        for (const bool passes : {true, false}) {
            values.TndrNOpreAUTH = 0;
            values.PrintTipLine = false;
            station.erase(kLastProcessFile);
            const auto end = [&] { station.disk.failOn(operation, path, platform::Outcome::Done); };
            station.disk.failOn(operation, path, platform::Outcome::Broken);
            if (passes)
                station.time.after(500, end);
            loadSetupFlags(app);
            Get_CCini(app);
            end();
            const std::string trace = station.getIfThere(kLastProcessFile);
            EXPECT_EQ(trace.find("  OPTIONS NOT READ - device or network error - ") == trace.npos,
                      passes)
                << operation << path << trace;
            EXPECT_TRUE(!passes || (values.TndrNOpreAUTH == -1 && values.PrintTipLine));
        }
    }
}

} // namespace
