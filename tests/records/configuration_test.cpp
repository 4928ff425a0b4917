// "LumbrioINI.dat", "CCard.dat" and the flag files: what a station believes about itself when they
// are whole, and when they are not.
#include "records/configuration.h"
#include "support/test_files.h"
#include "support/test_station.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

using namespace records;
using platform::ErrorsIgnored;
using platform::Outcome;
using support::TestStation;

constexpr const char *kIni = "C:\\Lumbrio\\LumbrioINI.dat";
constexpr const char *kOptions = "C:\\Lumbrio\\CCard.dat";

class Configuration : public testing::Test {
protected:
    /// The file of a station, with one field changed.
    std::string ini(int field = 1, const std::string &text = "The Harbour Table") const
    {
        LumbrioConfig config;
        std::fill(config.data().begin(), config.data().end(), ' ');
        for (const auto &[number, value] : {std::pair(6, "D:\\Station\\"),
                                            {8, "  Receipt"},
                                            {27, "1234"},
                                            {33, "Kept as it is"},
                                            {40, "F:\\Lumbrio\\"},
                                            {49, " F:\\Lumbrio\\"},
                                            {95, "18.5"}})
            config.set(configField(number), value);
        config.set(configField(field), text);
        return std::string(config.view());
    }

    TestStation station;
    App app{station.services};
    ProcessValues &values = app.values;
};

TEST_F(Configuration, TakesItsValuesTrimmedAndCarriesTheReservedFields)
{
    for (const char *behind : {"", "a longer record of a later version"}) {
        values = {};
        station.put(kIni, ini() + behind);
        Get_INI(app);
        EXPECT_EQ(values.Maindir, "D:\\Station\\");
        EXPECT_EQ(values.Remotedir, "F:\\Lumbrio\\");
        EXPECT_EQ(values.timeClockDirectory, "F:\\Lumbrio\\");
        EXPECT_EQ(values.ReceiptPrinterName, "Receipt");
        EXPECT_EQ(values.config.raw(kReceiptPrinterName), "Receipt             ");
        EXPECT_EQ(values.config.value(kGratuityPercent), Val("18.5"));
        EXPECT_EQ(values.config.raw(configField(33)).substr(0, 15), "Kept as it is  ");
        EXPECT_EQ(station.get(kIni), ini() + behind) << "it is the point of sale's";
    }
}

TEST_F(Configuration, OfAShortFileEndsWhereTheFileEnds)
{
    struct Case {
        std::string content;
        const char *Maindir, *Remotedir, *printer;
    };
    const Case cases[] = {
        {support::testFile("broken/records/configuration_of_1000_bytes.dat"), "D:\\Station\\", "",
         "Receipt"},
        {support::testFile("broken/records/configuration_cut_in_Remotedir.dat"), "D:\\Station\\",
         "F:\\Lumb", "Receipt"},
        {"", "", "", ""},
        {std::string(2300, '\0'), "", "", ""},
    };
    for (const Case &c : cases) {
        values = {};
        values.config.set(kGratuityPercent, "99");
        station.put(kIni, c.content);
        Get_INI(app);
        EXPECT_EQ(values.Maindir, c.Maindir);
        EXPECT_EQ(values.Remotedir, c.Remotedir);
        EXPECT_EQ(values.ReceiptPrinterName, c.printer);
        EXPECT_TRUE(values.config.isEmpty(kGratuityPercent)) << "left from an earlier reading";
    }
}

TEST_F(Configuration, OfAMissingFileKeepsEverythingButMaindir)
{
    station.put(kIni, ini());
    Get_INI(app);
    station.erase(kIni);
    Get_INI(app);
    EXPECT_EQ(values.Maindir, "C:\\Lumbrio\\");
    EXPECT_EQ(values.Remotedir, "F:\\Lumbrio\\");
    EXPECT_EQ(values.config.value(kGratuityPercent), Val("18.5"));
}

TEST_F(Configuration, WithoutDirectoriesFallsBackToTheStationsOwn)
{
    station.put(kIni, ini(6, ""));
    Get_INI(app);
    EXPECT_EQ(values.Maindir, "");
    Get_CCini(app);
    EXPECT_EQ(values.Maindir, "c:\\Lumbrio\\");

    station.put(kIni, ini(49, ""));
    Get_INI(app);
    EXPECT_EQ(values.Remotedir, "");
    fillEmptyDirectories(app);
    EXPECT_EQ(values.Maindir, "D:\\Station\\");
    EXPECT_EQ(values.Remotedir, "C:\\Lumbrio\\");

    station.put(kIni, ini(49, "F:\\NoBackslash"));
    Get_INI(app);
    EXPECT_EQ(values.Remotedir, "F:\\NoBackslash") << "not repaired";
}

TEST_F(Configuration, ShowsTheOwnerCodeInItsMask)
{
    for (const auto &[code, shown] : {std::pair("1234", "1234."),
                                      {"12.345", "12.35"},
                                      {"Harbour 7", "Harbour 7"},
                                      {"", ""},
                                      {"0", "."}}) {
        station.put(kIni, ini(27, code));
        Get_INI(app);
        Get_INI(app);
        EXPECT_EQ(values.config.text(kOwnerCode), shown) << code;
        EXPECT_EQ(versionToolTip(values.config),
                  std::string("INTERNAL VERSION (MOST RECENT) IS 5.68.") + shown + "688");
    }
}

TEST_F(Configuration, EndsTheProgramWhenAnotherHoldsItUnlessErrorsAreIgnored)
{
    station.put(kIni, ini());
    TestStation other(&station);
    platform::SlotFile held(other.files, kIni, LumbrioConfig::kSize);
    ASSERT_TRUE(done(held.open(platform::SlotUse::Read)) && done(held.lock()));
    {
        const ErrorsIgnored ignored(station.run);
        Get_INI(app);
        EXPECT_EQ(values.Remotedir, "F:\\Lumbrio\\");
    }
    values = {};
    station.dialogs.expect("", std::string("Locking failed: locked by another\n") + kIni,
                           platform::Buttons::Ok, platform::Answer::Ok);
    Get_INI(app);
    EXPECT_TRUE(station.run.ending());
    EXPECT_EQ(values.Remotedir, "");
}

class CardOptionsFile : public Configuration {
protected:
    /// Ten quoted lines as the setup screen writes them.
    static std::string lines(const std::string &tipLine, const std::string &noPartial,
                             const std::string &preApproveTip,
                             const std::string &directory = "c:\\Pay\\")
    {
        std::string text = "\"Xcharge.exe\"\r\n\"" + directory + "\"\r\n";
        for (const std::string &value :
             {std::string("-1"), std::string("0"), std::string("0"), std::string("0"),
              std::string("0"), tipLine, noPartial, preApproveTip})
            text += '"' + value + "\"\r\n";
        return text;
    }

    std::string read(const std::string &content)
    {
        values = {};
        station.put(kOptions, content);
        Get_CCini(app);
        return values.paymentDirectory + (values.PrintTipLine ? " tip line" : "") + " partial " +
               std::to_string(values.NoPartialSupport) +
               (values.PreApproveTip ? " preapproved" : "");
    }
};

TEST_F(CardOptionsFile, CountsNothingButMinusOneAsYes)
{
    EXPECT_EQ(read(lines("-1", "0", "-1")), "c:\\Pay\\ tip line partial 0 preapproved");
    EXPECT_EQ(read(lines("1", "-1", "1")), "c:\\Pay\\ partial -1");
    EXPECT_EQ(read(lines("-1.5", "2", "True")), "c:\\Pay\\ partial 2");
    EXPECT_EQ(read(lines(" -1 ", "", "-1 yes")), "c:\\Pay\\ tip line partial 0 preapproved");
    EXPECT_EQ(read(lines("-1", "0", "0", " d:\\Pay ")), "d:\\Pay\\ tip line partial 0");
    EXPECT_EQ(read(lines("-1", "0", "0", "")), "c:\\Program Files\\X-Charge\\ tip line partial 0");
}

TEST_F(CardOptionsFile, IsReadAsFarAsItGoes)
{
    EXPECT_EQ(read(support::testFile("broken/records/card_options_of_seven_lines.dat")),
              "c:\\Program Files\\X-Charge\\ partial 0");
    EXPECT_EQ(read(support::testFile("broken/records/card_options_without_quotes.dat")),
              "c:\\Program Files\\X-Charge\\ tip line partial 1 preapproved");
    EXPECT_EQ(read(""), "c:\\Program Files\\X-Charge\\ partial 0");
    EXPECT_EQ(read(std::string(5000, '\0')), "c:\\Program Files\\X-Charge\\ partial 0");
}

TEST_F(CardOptionsFile, LeavesTheOptionsWhenItIsMissingOrCannotBeRead)
{
    read(lines("-1", "2", "-1"));
    station.disk.failOn("read", "CCard.dat", Outcome::Broken);
    Get_CCini(app);
    loadSetupFlags(app);
    station.erase(kOptions);
    Get_CCini(app);
    EXPECT_TRUE(values.PrintTipLine);
    EXPECT_EQ(values.NoPartialSupport, 2);
    EXPECT_TRUE(values.PreApproveTip);
    EXPECT_FALSE(station.run.ending());
}

TEST_F(CardOptionsFile, LetsTheChargeAtOnceFlagCountOnTheServerAlone)
{
    struct Case {
        bool options;
        const char *flag;
        int TndrNOpreAUTH, NoPartialSupport;
    };
    const Case cases[] = {
        {true, "F:\\Lumbrio\\DATA\\ccNOpreAUTH.dat", -1, 2},
        {true, "C:\\Lumbrio\\Data\\CCnoPREauth.dat", 0, 2},
        {true, "F:\\Lumbrio\\CCnoPREauth.dat", 0, 2},
        {false, "F:\\Lumbrio\\Data\\CCnoPREauth.dat", 0, 0},
    };
    for (const Case &c : cases) {
        values = {};
        values.Maindir = "C:\\Lumbrio\\";
        values.Remotedir = "F:\\Lumbrio\\";
        station.erase("F:\\Lumbrio");
        station.erase("C:\\Lumbrio");
        station.put(c.flag, "");
        if (c.options)
            station.put(kOptions, lines("-1", "2", "-1"));
        loadSetupFlags(app);
        EXPECT_EQ(values.TndrNOpreAUTH, c.TndrNOpreAUTH) << c.flag;
        EXPECT_EQ(values.NoPartialSupport, c.NoPartialSupport) << c.flag;
    }
}

TEST(FileFormats, TellTheUsedFieldsOfTheConfiguration)
{
    std::istringstream rows(support::documentedFields("`LumbrioINI.dat`"));
    std::size_t number = 0;
    std::size_t offset = 0;
    std::size_t length = 0;
    int told = 0;
    std::string meaning;
    while (rows >> number >> offset >> length && std::getline(rows, meaning)) {
        const ConfigField &field = configField(static_cast<int>(number));
        EXPECT_EQ(field.offset, offset) << meaning;
        EXPECT_EQ(field.length, length) << meaning;
        ++told;
    }
    EXPECT_EQ(told, 13);
}

} // namespace
