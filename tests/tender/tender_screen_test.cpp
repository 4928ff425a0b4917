// A tender as the server at the terminal lives it: the real windows on Qt's offscreen platform, in
// virtual time, driven by keyboard, by finger and by what a screen reader calls things. A story's
// look tells of everything that can change in the window that has the keyboard, and that nothing
// is cut off or without a name, at both sizes.
#include "story/stories.h"
#include "support/qt/qt_station.h"
#include "support/qt/screen_checks.h"
#include "support/tender_stage.h"
#include "tender/Xcharge1.h"

#include <QFrame>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>

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

class TenderScreens : public support::TenderStage {
public:
    TenderScreens()
    {
        story.station.time.everyTurn = [] { QCoreApplication::processEvents(); };
        screen.resize(1024, 768);
        addHandWords();
        addWindowWords();
    }

private:
    void addHandWords()
    {
        word("key", [](Words key) {
            support::press(Qt::Key(QKeySequence(QString::fromStdString(key))[0].key()),
                           key == "Space" ? QStringLiteral(" ") : QString());
        });
        word("type", [](Words text) { support::type(QString::fromStdString(text)); });
        word("digits", [this](Words digits) {
            for (const char digit : digits)
                press(std::string("Digit ") + digit, false);
        });
        word("focus", [this](Words name) {
            if (QWidget *control = find(name))
                control->setFocus();
        });
        word("tabs", [this](Words count) {
            for (int n = std::stoi(count); n > 0; --n) {
                support::press(Qt::Key_Tab);
                tell(QApplication::focusWidget()->objectName().toStdString());
            }
        });
    }
    void addWindowWords()
    {
        word("close", [this](Words) { screen.close(); });
        word("the screen is not painted", [this](Words) { screen.setUpdatesEnabled(false); });
        word("show", [this](Words name) { part(name)->show(); });
        word("hide", [this](Words name) { part(name)->hide(); });
        word("read", [this](Words name) {
            if (QWidget *control = find(name))
                tell(described(*control));
        });
        word("look", [this](Words) { look(); });
        word("fits", [this](Words) { expectFits(window()); });
    }

    QWidget *part(Words name) { return screen.findChild<QWidget *>(QString::fromStdString(name)); }
    QWidget *find(Words name)
    {
        QWidget *control = support::controlNamed(QString::fromStdString(name));
        if (control == nullptr)
            complain("there is no " + name);
        return control;
    }
    void press(Words caption, bool thoughDisabled) override
    {
        const QWidget *control = find(caption);
        if (control != nullptr && control->isEnabled() == thoughDisabled)
            complain(caption + (thoughDisabled ? " is not disabled" : " is disabled"));
        else if (control != nullptr && !thoughDisabled)
            support::click(QString::fromStdString(caption));
    }

    void play() override
    {
        story.station.time.after(100'000, [this] { story.station.run.end(); });
        screen.show();
        while (!story.station.run.ending())
            story.station.run.yield();
    }
    /// The one that has the keyboard.
    QWidget &window()
    {
        QWidget *modal = QApplication::activeModalWidget();
        return modal != nullptr ? *modal : screen;
    }
    void expectFits(QWidget &shown)
    {
        for (const QSize size : support::kScreenSizes)
            if (const std::string cut = support::clippedControls(shown, size); !cut.empty())
                complain("cut off at " + std::to_string(size.width()) + ": " + cut);
        shown.resize(support::kScreenSizes[0]);
    }
    /// No caption, no empty value, and no button that nobody can press.
    static bool canChange(QWidget &control)
    {
        static const QRegularExpression fixed(
            QStringLiteral("aption|^(title|station|hint.|qt_.*|)$|^(Label13_3|Label3_8)$"));
        const QString name = support::accessibleNameOf(control);
        const auto *button = qobject_cast<QAbstractButton *>(&control);
        const std::string text = described(control);
        return !control.objectName().contains(fixed) && !name.startsWith(u"Digit ") &&
               (button == nullptr || button->isEnabled()) && !text.ends_with(' ') &&
               !text.ends_with("—");
    }
    void look()
    {
        QWidget &shown = window();
        expectFits(shown);
        story::Lines lines;
        if (const std::string dots = support::elidedLabels(shown); !dots.empty())
            lines.push_back("dots: " + dots);
        for (auto *control : shown.findChildren<QWidget *>())
            if (control->isVisible() && canChange(*control))
                lines.push_back(described(*control));
        tellChanges(shown.windowTitle().toStdString(), lines);
    }

    std::vector<story::Section> leftBehind() override
    {
        const records::ProcessValues &values = story.app.values;
        std::vector<story::Section> parts = {
            {"end",
             {"at " + std::to_string(story.station.time.milliseconds()) + " ms",
              "state " +
                  screen.findChild<QLabel *>(QStringLiteral("stateWord"))->text().toStdString(),
              described(*screen.findChild<QFrame *>(QStringLiteral("stateEdge"))),
              "manager " + values.managerResult, "clerk " + values.CCdata.text(records::CCServer),
              "code " + values.CCdata.text(records::CApprovalCode),
              "records " + std::to_string(story.pending().size()),
              "starts " + std::to_string(story.station.system.started.size())}},
            {"boxes", boxes()}};
        if (story.station.has(support::TenderStory::kMarker))
            parts[0].lines.emplace_back("marker");
        for (const std::string &file : story.left())
            parts[0].lines.push_back("left " +
                                     story.station.get(support::TenderStory::kLocalTran + file));
        if (story.answered())
            parts[0].lines.push_back("answer " +
                                     story.answer().substr(0, story.answer().find('\r')));
        for (const std::string &line : platform::splitLines(story.slips()))
            if (line.starts_with('['))
                parts[0].lines.push_back("slip " + line);
        for (const char *secret : {"4111111111111111", "7193"})
            if (story.processTrace().find(secret) != std::string::npos)
                complain(std::string("a secret stands in the trace: ") + secret);
        return parts;
    }

    tender::Xcharge1 screen{story.app, story.printer};
};

TEST(Stories, OfTheScreensShowWhatTheirFilesSay)
{
    story::expectStories<TenderScreens>("tender/screens");
}

} // namespace
