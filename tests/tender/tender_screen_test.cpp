// A tender as the server at the terminal lives it: the real windows on Qt's offscreen platform, in
// virtual time, driven by keyboard, by finger and by what a screen reader calls things. A story's
// look tells of everything that can be read in the window that has the keyboard, and that nothing
// is cut off or without a name, at both sizes.
#include "support/qt/qt_station.h"
#include "support/qt/screen_checks.h"
#include "telling.h"
#include "tender/XCreader1.h"
#include "tender/Xcharge1.h"

#include <QAccessible>
#include <QFrame>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace {

/// A control's name and what one can see of it.
std::string described(QWidget &control)
{
    QString text;
    if (auto *label = qobject_cast<QLabel *>(&control))
        text = label->text();
    else if (auto *button = qobject_cast<QAbstractButton *>(&control))
        text = QStringLiteral("(%1) %2 %3")
                   .arg(support::accessibleNameOf(control), button->text(),
                        button->palette().buttonText().color().name()) +
               QLatin1String(button->isChecked() ? " checked" : "");
    else if (auto *box = qobject_cast<QLineEdit *>(&control))
        text = QStringLiteral("[%1] %2 points on %3")
                   .arg(box->displayText())
                   .arg(box->font().pointSize())
                   .arg(box->grab().toImage().pixelColor(4, 20).name());
    else
        text = control.property("edge").toString();
    return (control.objectName() + u' ' + text).toStdString() +
           (control.isEnabled() ? "" : " disabled") + (control.hasFocus() ? " focus" : "");
}

struct Paints : QObject {
    int count = 0;
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

class ScreenTelling : public support::Telling {
public:
    ScreenTelling()
    {
        verbs.insert({
            {"click", [&](W w) { did(w.all, support::click(name(w))); }},
            {"press",
             [&](W w) {
                 support::press(Qt::Key(QKeySequence(name(w))[0].key()),
                                w.all == "Space" ? QStringLiteral(" ") : QString());
             }},
            {"type", [&](W w) { support::type(name(w)); }},
            {"keys",
             [&](W w) {
                 for (const char digit : w.all)
                     did(w.all, support::click(QStringLiteral("Digit ") + QLatin1Char(digit)));
             }},
            {"focus", [&](W w) { support::controlNamed(name(w))->setFocus(); }},
            {"tabs",
             [&](W w) {
                 for (int n = std::stoi(w.all); n > 0; --n) {
                     support::press(Qt::Key_Tab);
                     seen +=
                         "tab " + QApplication::focusWidget()->objectName().toStdString() + "\n";
                 }
             }},
            {"paints",
             [&](W w) {
                 EXPECT_GE(paints.count, std::stoi(w.first));
                 EXPECT_LE(std::exchange(paints.count, 0), std::stoi(w.rest));
             }},
            {"reader", [&](W) { reader.show(); }},
            {"close", [&](W) { screen.close(); }},
            {"unpainted", [&](W) { screen.setUpdatesEnabled(false); }},
            {"show", [&](W w) { screen.findChild<QWidget *>(name(w))->show(); }},
            {"hide", [&](W w) { screen.findChild<QWidget *>(name(w))->hide(); }},
            {"read", [&](W w) { seen += described(*support::controlNamed(name(w))) + "\n"; }},
            {"look", [&](W) { look(); }},
        });
        story.station.time.everyTurn = [] { QCoreApplication::processEvents(); };
        screen.resize(1024, 768);
        screen.installEventFilter(&paints);
    }

    std::string tell(const std::string &script) override
    {
        listen(script);
        story.station.time.after(100'000, [this] { story.station.run.end(); });
        screen.show();
        while (!story.station.run.ending())
            story.station.run.yield();
        seen += "ended at " + std::to_string(story.station.time.milliseconds()) + ", state " +
                screen.findChild<QLabel *>(QStringLiteral("stateWord"))->text().toStdString() +
                ", " + described(*screen.findChild<QFrame *>(QStringLiteral("stateEdge"))) +
                ", manager " + story.app.values.managerResult + ", clerk " +
                story.app.values.CCdata.text(records::CCServer) + ", code " +
                story.app.values.CCdata.text(records::CApprovalCode) +
                (story.station.has(TenderStory::kMarker) ? ", marker\n" : "\n");
        for (const std::string &file : story.left())
            seen += story.station.get(TenderStory::kLocalTran + file);
        for (const std::string &box : story.station.dialogs.shown)
            seen += "box " + box + "\n";
        for (const char *file : {"CCnoPrint.dat", "XCfont.dat", "Xsend.ans"}) {
            const std::string path = std::string("C:\\Lumbrio\\") + file;
            if (story.station.has(path))
                seen += "== " + path + "\n" + story.station.get(path);
        }
        const std::string trace = story.processTrace();
        for (const char *secret : {"4111111111111111", "7193"})
            EXPECT_EQ(trace.find(secret), std::string::npos);
        return seen + std::to_string(story.pending().size()) + " records, " +
               std::to_string(story.station.system.started.size()) + " starts\n" + story.slips();
    }

private:
    using TenderStory = support::TenderStory;

    static QString name(W w) { return QString::fromStdString(w.all); }
    void did(const std::string &what, bool done) { seen += done ? "" : "cannot " + what + "\n"; }
    /// What has come and gone since the last look.
    void look()
    {
        QWidget *modal = QApplication::activeModalWidget();
        QWidget *window = modal != nullptr     ? modal
                          : reader.isVisible() ? static_cast<QWidget *>(&reader)
                                               : &screen;
        std::vector<std::string> now;
        if (window->isVisible()) {
            for (const QSize size : support::kScreenSizes)
                EXPECT_EQ(support::clippedControls(*window, size), "") << size.width();
            EXPECT_EQ(support::badlyNamedControls(*window), "");
            window->resize(support::kScreenSizes[0]);
            now.push_back(window->windowTitle().toStdString() +
                          ", with dots: " + support::elidedLabels(*window));
            for (auto *control : window->findChildren<QWidget *>())
                if (control->isVisible() && !control->objectName().isEmpty())
                    now.push_back(described(*control));
        }
        const std::vector<std::string> before = std::exchange(looked, now);
        seen += "== at " + std::to_string(story.station.time.milliseconds()) + ", manager " +
                story.app.values.managerResult + "\n";
        for (const auto &[sign, these, others] : {std::tuple("- ", before, now), {"", now, before}})
            for (const std::string &line : these)
                if (std::find(others.begin(), others.end(), line) == others.end())
                    seen += sign + line + "\n";
    }

    std::vector<std::string> looked;
    tender::Xcharge1 screen{story.app, story.printer};
    tender::XCreader1 reader{story.app};
    Paints paints;
};

TEST(CheckBox, IsRememberedWhenAScreenReaderTogglesIt)
{
    constexpr const char *kFlag = "C:\\Lumbrio\\CCnoPrint.dat";
    support::TenderStory story;
    story.takeCardsHere();
    story.station.put(kFlag, "");
    story.station.time.everyTurn = [] { QCoreApplication::processEvents(); };
    tender::Xcharge1 screen{story.app, story.printer};
    screen.show();
    story.pass(1000);
    QWidget *box = support::controlNamed(QStringLiteral("Do not print a RECEIPT for Customer"));
    EXPECT_TRUE(qobject_cast<QAbstractButton *>(box)->isChecked());
    for (const bool checked : {false, true, false}) {
        QAccessible::queryAccessibleInterface(box)->actionInterface()->doAction(
            QAccessibleActionInterface::toggleAction());
        EXPECT_EQ(qobject_cast<QAbstractButton *>(box)->isChecked(), checked);
        EXPECT_EQ(story.station.has(kFlag), checked);
    }
    story.station.run.end();
}

TEST(PartialApproval, ShowsWhatIsPaidAndWhatIsOwedAsLargeAsTheAmount)
{
    support::TenderStory story;
    story.request("\"12\",\"1043\",\"7\",\"22345.66\"\r\n");
    story.paymentAnswers(support::approvedResult() + "APPROVEDAMOUNT=12345.67\r\n"
                                                     "ADDITIONALFUNDSREQUIRED=9999.99\r\n");
    story.station.time.everyTurn = [] { QCoreApplication::processEvents(); };
    tender::Xcharge1 screen{story.app, story.printer};
    screen.show();
    while (!story.station.run.ending())
        story.station.run.yield();
    const auto &amount = *screen.findChild<QLineEdit *>(QStringLiteral("Text4"));
    for (const char *read : {"Approved: $12,345.67", "Still owed: $9,999.99"}) {
        const QWidget *part = support::controlNamed(QString::fromLatin1(read));
        ASSERT_NE(part, nullptr) << read;
        EXPECT_EQ(part->font(), amount.font()) << read;
    }
    for (const QSize size : support::kScreenSizes)
        EXPECT_EQ(support::clippedControls(screen, size), "") << size.width();
}

TEST(Screens, ShowWhatTheirGoldenFilesSay)
{
    support::expectStories<ScreenTelling>("tender/screens", 23);
}

} // namespace
