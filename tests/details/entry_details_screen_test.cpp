// The screen of one entry as a manager's fingers, keyboard and screen reader use it.
#include "details/PrinterChoice.h"
#include "details/XchargeEntryDetals.h"
#include "support/card_text.h"
#include "support/qt/qt_station.h"
#include "support/qt/screen_checks.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>

#include <set>

namespace {

using namespace records;
using namespace support;

constexpr const char *kFile = "F:\\Lumbrio\\CCPending.dat";
constexpr const char *kNumber = "4111111111111111";
constexpr const char *kTrack = "%B4111^OAK?";

struct EntryScreen : testing::Test {
    EntryScreen()
    {
        app.values.Remotedir = "F:\\Lumbrio\\";
        station.dialogs.person = [this](const std::string &box, const auto &captions) {
            boxes += box + "\n";
            return captions.empty() ? "with marlend" : "Ok";
        };
    }
    ~EntryScreen() override { EXPECT_FALSE(station.run.failed()) << boxes; }

    /// Shows the second of three sales.
    void open(const std::string &changes = {})
    {
        const std::string slot = slotOf(std::string("CCName=WILHELMINA BLACKTHORN-ROWAN;") +
                                        "CCTabAmt=48.50;CCDescription=" + kTrack + ";" + changes);
        station.put(kFile, slot + slot + slot);
        screen.reset(new details::XchargeEntryDetals(app, printer, {}));
        screen->open(kFile, 2, "PEND");
        station.advance(600); // until all commands are there
    }
    template <class Control = QLineEdit> Control &named(const char *name)
    {
        return *screen->findChild<Control *>(QLatin1String(name));
    }
    std::string shown(const char *name) { return named(name).text().toStdString(); }
    /// Tip and status of the second sale on the disk.
    std::string saved()
    {
        const CardRecord sale = recordsIn(station.get(kFile))[1];
        return sale.text(CCTip) + " " + sale.text(CCAdjStatus);
    }
    /// Whether a screen reader finds the text, be it in a control that is hidden.
    bool spoken(const char *text)
    {
        QString all;
        for (auto *one : screen->findChildren<QLineEdit *>())
            all += QAccessible::queryAccessibleInterface(one)->text(QAccessible::Value);
        return all.contains(QLatin1String(text));
    }

    std::string boxes;
    QtStation station;
    App app{station.services};
    printing::Printer printer{station.printers};
    std::unique_ptr<details::XchargeEntryDetals, platform::Screen::Later> screen;
};

TEST_F(EntryScreen, ATipByKeypadKeyboardAndQuickTipIsShownAtOnceAndSavedByEnterAlone)
{
    open();
    type(QStringLiteral("9,x")); // over the 0
    EXPECT_EQ(shown("Text4"), "9,x");
    EXPECT_TRUE(named<QLabel>("tipFault").isVisible() && !named<QLabel>("Label3_1").isVisible());
    EXPECT_TRUE(click(QStringLiteral("Done")) && !screen->unloaded()) << boxes;
    EXPECT_EQ(clippedControls(*screen, kScreenSizes[0]), "");
    for (const char *key : {"Backspace", "Digit 5", "Digit 0", "Backspace"})
        EXPECT_TRUE(click(QString::fromLatin1(key)));
    EXPECT_NE(controlNamed(QStringLiteral("New Total: $58.00")), nullptr);
    EXPECT_EQ(shown("Text1_12") + " " + shown("Text1_19"), "9.5 Adjusted - Pending");
    press(Qt::Key_Tab);
    press(Qt::Key_Space); // the tab
    EXPECT_TRUE(click(QStringLiteral("Quick tip 18%, even total: 8.5")));
    press(Qt::Key_Tab);
    press(Qt::Key_Space); // the first quick tip
    for (const bool byEnter : {false, true}) {
        EXPECT_EQ(shown("Text4"), "4.85");
        named("Text4").setFocus();
        press(byEnter ? Qt::Key_Return : Qt::Key_Escape);
        EXPECT_TRUE(screen->unloaded());
        EXPECT_EQ(saved(), byEnter ? "4.85 Adjusted - Pending" : "0 Not Adjusted");
        open();
        press(Qt::Key_PageDown);
        EXPECT_FALSE(click(QStringLiteral("Next entry"))) << "there are three";
        EXPECT_TRUE(click(QStringLiteral("Previous entry")));
        type(QStringLiteral("4.85")); // over the 0, after an arrow too
    }
}

TEST_F(EntryScreen, HiddenCardDataIsNowhereUntilItsPasswordIsGivenAndGoesWithTheWindow)
{
    open();
    EXPECT_FALSE(spoken(kNumber) || spoken(kTrack));
    EXPECT_TRUE(click(QStringLiteral("View Card #")));
    EXPECT_TRUE(spoken(kNumber) && !spoken(kTrack) && !named("Text2").isVisible());
    named<QTabWidget>("pages").setCurrentIndex(1);
    EXPECT_TRUE(
        click(QStringLiteral("The Track Read Line has been hidden. Please Click Here to view it")));
    EXPECT_TRUE(spoken(kTrack));
    screen->close(); // the cross
    EXPECT_FALSE(spoken(kNumber) || spoken(kTrack));
}

TEST_F(EntryScreen, FitsWhateverTheEntryAndEnterPressesNoDangerousCommand)
{
    for (const char *entry : {"GCbalance=99999.99;CCtype=MASTERCARD;CCTip=10000.25;"
                              "CCReceipt=12345678901234567890;CCServer=1234567890;"
                              "CCTable=1234567890",
                              "CCTabAmt=12345.67;CCApprovedAmt=12345.67;CCstatus=Declined",
                              "CCGiftFlag=GS;CCaditionalFUNDS=1248.50"}) { // a partial approval
        open(entry);
        named<QPushButton>("Label3_0").click();
        EXPECT_EQ(screenFaults(*screen), "") << entry;
    }
    type(QStringLiteral("5"));
    EXPECT_FALSE(click(QStringLiteral("Digit 5"))) << "a locked tip";
    EXPECT_EQ(shown("Text4") + shown("Text1_23"), "0$1,248.50");
    EXPECT_EQ(named("Text4").grab().toImage().pixelColor(6, 20), QColor(0xff, 0x80, 0x80));
    for (const char *command : {"Delete This Entry ", "UnDelete - Move to Pending List"}) {
        controlNamed(QString::fromLatin1(command))->setFocus();
        press(Qt::Key_Return);
        EXPECT_FALSE(screen->unloaded()) << command;
    }
}

TEST_F(EntryScreen, BesideAnotherManagerTakesNoTypingAndClosesWithoutASave)
{
    app.values.lookOnly = true;
    open();
    type(QStringLiteral("5"));
    EXPECT_TRUE(click(QStringLiteral("View Card #")));
    named<QAbstractButton>("Command1").click(); // the track line
    std::set<std::string> active;
    for (const int page : {0, 1, 2, 3}) {
        named<QTabWidget>("pages").setCurrentIndex(page);
        for (auto *box : screen->findChildren<QLineEdit *>())
            EXPECT_TRUE(box->isReadOnly()) << box->objectName().toStdString();
        for (auto *command : screen->findChildren<QPushButton *>())
            if (command->isVisible() && command->isEnabled())
                active.insert(command->objectName().toStdString());
    }
    EXPECT_EQ(active, (std::set<std::string>{"Label3_0", "SSCommand1", "SSCommand3", "SSCommand7",
                                             "SSCommand8", "SSCommand9_0",
                                             "SSCommand9_1"})); // to look, to print, to leave
    named("Text4").setFocus();
    press(Qt::Key_Return);
    EXPECT_TRUE(screen->unloaded());
    EXPECT_EQ(saved(), "0 Not Adjusted");
}

// A screen reader may ask where the rows are before the window has its look.
TEST_F(EntryScreen, ThePrintersToChooseFromStandBelowEachOtherHighEnoughForAFinger)
{
    details::PrinterChoice choice(app, {"Bar", "Kitchen", "Office"}, "Kitchen");
    const auto &printers = *choice.findChild<QListWidget *>();
    const auto row = [&](int index) { return printers.visualItemRect(printers.item(index)); };
    EXPECT_TRUE(row(1).isValid());
    choice.show();
    station.advance(100);
    EXPECT_GE(row(0).height(), 44);
    EXPECT_GT(row(1).top(), row(0).bottom());
    EXPECT_GT(row(2).top(), row(1).bottom());
}

TEST_F(EntryScreen, ASlipGoesToThePrinterThatWasChosen)
{
    open();
    named<QTabWidget>("pages").setCurrentIndex(2);
    station.time.after(200, [&] {
        auto *printers = qobject_cast<QListWidget *>(controlNamed(QStringLiteral("Printers")));
        printers->setCurrentRow(1);
        EXPECT_TRUE(click(QStringLiteral("Print")));
    });
    EXPECT_TRUE(click(QStringLiteral("Customer")));
    ASSERT_EQ(station.printers.collected.size(), 1U);
    EXPECT_EQ(station.printers.collected[0].printer, "Office Laser");
}

} // namespace
