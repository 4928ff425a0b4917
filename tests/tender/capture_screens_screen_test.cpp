// The two screens that take a card by hand, as fingers, keyboards and readers use them: manual card
// entry and the manager's approval.
#include "support/qt/qt_station.h"
#include "support/qt/screen_checks.h"
#include "tender/ManagerApproval.h"
#include "tender/Xcharge2.h"

#include <QLineEdit>

#include <gtest/gtest.h>

namespace {

using namespace support;

constexpr const char *kNumber = "Credit Card Number";
constexpr const char *kExpires = "Expires, Enter MMYY";
constexpr const char *kCode = "Manager's card or code";

template <class Control = QWidget> Control &named(const char *name)
{
    return *qobject_cast<Control *>(controlNamed(QString::fromLatin1(name)));
}

bool yellow(const char *name)
{
    return named(name).grab().toImage().pixelColor(4, 20) == QColor(0xff, 0xf5, 0x9d);
}

void keys(const char *digits)
{
    for (const char digit : std::string_view(digits))
        EXPECT_TRUE(click(QStringLiteral("Digit %1").arg(QLatin1Char(digit))));
}

class CaptureScreens : public testing::Test {
protected:
    CaptureScreens()
    {
        app.values.Remotedir = "C:\\Lumbrio\\";
        app.values.ManagerTable[3] = {"4111111111111111", "Rosalind Oak", "01/15/2030"};
    }

    /// Opens the screen, which `act` must close.
    void open(platform::Screen &screen, const std::function<void()> &act)
    {
        station.time.after(500, [&] {
            for (const QSize size : kScreenSizes)
                EXPECT_EQ(clippedControls(screen, size), "");
            EXPECT_EQ(badlyNamedControls(screen), "");
            act();
            EXPECT_TRUE(screen.unloaded() || station.run.ending());
            screen.unload();
        });
        screen.runModal();
    }

    QtStation station;
    records::App app{station.services};
};

TEST_F(CaptureScreens, KeypadAndKeyboardFillTheNamedBoxUpToItsLength)
{
    tender::Xcharge2 screen(app);
    open(screen, [&] {
        EXPECT_TRUE(yellow(kNumber));
        keys("41112");
        type(QStringLiteral("a-3 4"));
        EXPECT_TRUE(click(QStringLiteral("Backspace"))); // the 4
        EXPECT_EQ(named<QLineEdit>(kNumber).text(), QStringLiteral("411123"));
        EXPECT_TRUE(click(QStringLiteral("Clear card number")));
        keys("123456789");
        named(kExpires).setFocus();
        EXPECT_TRUE(yellow(kExpires) && !yellow(kNumber));
        keys("09289");
        press(Qt::Key_Return);
        EXPECT_FALSE(click(QStringLiteral("Process"))) << "nine digits are no card";
        press(Qt::Key_Tab);
        named("Cancel").setFocus();
        keys("12345"); // go on into the box that had the keyboard last
        named(kNumber).setFocus();
        keys("01234567890");
        EXPECT_EQ(clippedControls(screen, kScreenSizes[0]), "") << "when full";
        named(kExpires).setFocus();
        EXPECT_TRUE(click(QStringLiteral("Backspace")));
        EXPECT_FALSE(named("Process").isEnabled());
        type(QStringLiteral("7"));
        press(Qt::Key_Return);
    });
    const auto card = screen.typedCard().value_or(tender::TypedCard{});
    EXPECT_EQ(card.number + "/" + card.expiry + "/" + card.verify, "1234567890123456789/0927/1234");
}

TEST_F(CaptureScreens, TheFontIsRememberedByItsFileAndNeverStopsATender)
{
    const auto sizeThenSwitch = [&](const char *caption) {
        tender::Xcharge2 screen(app);
        int points = 0;
        open(screen, [&] {
            points = named<QLineEdit>(kNumber).font().pointSize();
            EXPECT_TRUE(click(QString::fromLatin1(caption))) << caption;
            EXPECT_NE(named<QLineEdit>(kNumber).font().pointSize(), points);
            keys("4111111111");
            click(QStringLiteral("Cancel"));
        });
        EXPECT_FALSE(screen.typedCard());
        return points;
    };
    EXPECT_EQ(sizeThenSwitch("Small Font"), 48);
    EXPECT_TRUE(station.has("C:\\Lumbrio\\XCfont.dat"));
    EXPECT_EQ(sizeThenSwitch("Large Font"), 10);
    station.disk.failOn("open", "XCfont.dat", platform::Outcome::Denied);
    EXPECT_EQ(sizeThenSwitch("Small Font"), 48);
}

TEST_F(CaptureScreens, ASwipeIsOneTryAndArrivesWholeWhereverTheKeyboardIs)
{
    const QString swipe = QStringLiteral("%B4111111111111111^OAK/ROSALIND MRS     ^28091010000?"
                                         ";4111111111111111=28091010?");
    const QString stranger = QString(swipe).replace(u'4', u'5');
    for (const char *focused : {kCode, "Cancel"}) {
        tender::ManagerApproval screen(app, {"Approve this card OFFLINE", "$48.50"});
        open(screen, [&] {
            named(focused).setFocus();
            type(stranger);
            EXPECT_EQ(named<QLineEdit>(kCode).text(), stranger);
            EXPECT_EQ(named<QLineEdit>(kCode).displayText(), QString(80, u'*'));
            press(Qt::Key_Return);
            type(QStringLiteral(" "));
            press(Qt::Key_Return); // nothing was read: no try
            EXPECT_TRUE(named("Not a manager's card or code. 2 tries left.").isVisible());
            EXPECT_EQ(app.values.managerResult, "NO") << "until somebody approves";
            type(swipe);
            press(Qt::Key_Return);
        });
        EXPECT_EQ(app.values.managerResult, "Rosalind Oak");
    }
}

TEST_F(CaptureScreens, ThreeWrongTriesCancelEscapeAndTheEndAllRefuse)
{
    const auto wrongTries = [] {
        for (const char *code : {"1", "12", "123"}) {
            keys(code);
            press(Qt::Key_Return);
        }
    };
    const std::function<void()> ways[] = {wrongTries, [] { click(QStringLiteral("Cancel")); },
                                          [] { press(Qt::Key_Escape); },
                                          [this] { station.run.end(); }};
    for (const auto &way : ways) {
        app.values.managerResult = "Somebody Before";
        tender::ManagerApproval screen(app, {"Approve a tip over the limit", ""});
        open(screen, way);
        EXPECT_EQ(app.values.managerResult, "NO");
    }
}

} // namespace
