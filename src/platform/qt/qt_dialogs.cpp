#include "platform/qt/qt_dialogs.h"

#include "platform/qt/qt_text.h"
#include "platform/qt/screen.h"

#include <QApplication>
#include <QDialog>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace platform {

namespace {

QString titleOf(const std::string &title)
{
    return title.empty() ? QCoreApplication::applicationName() : toQt(title);
}

/// The frame of every box: heading, text, room for a box to type in, and a row of buttons. It
/// answers through QDialog's result; done(kHarmless) stands for Escape and the window's cross.
class Box : public QDialog {
public:
    static constexpr int kHarmless = QDialog::Rejected;

    Box(const QString &title, const QString &text);
    /// In large letters.
    void addFacts(const std::vector<std::pair<std::string, std::string>> &facts);
    void addFile(const QString &path);
    void addField(QWidget &field) { content->addWidget(&field); }
    void addButton(const QString &caption, int result, bool isDefault);
    /// Waits for the answer. A box opened before the end was asked for closes with it. For the
    /// first `unheard` milliseconds it takes no answer: what somebody was still typing or swiping
    /// when it came up must not send it away unread.
    int wait(Run &run, std::uint64_t unheard = 0);
    void reject() override
    {
        if (commands->itemAt(1)->widget()->isEnabled())
            QDialog::reject();
    }

private:
    void hear(bool on);
    void leaveEnterAlone();

    QVBoxLayout *content;
    QHBoxLayout *commands;
};

Box::Box(const QString &title, const QString &text)
    : content(new QVBoxLayout), commands(new QHBoxLayout)
{
    setObjectName(QStringLiteral("Box"));
    setAttribute(Qt::WA_StyledBackground); // for the border, where nobody frames windows
    setWindowTitle(title);
    setAccessibleName(title);
    setAccessibleDescription(text);
    setMinimumWidth(420);

    auto *heading = new QLabel(title);
    heading->setObjectName(QStringLiteral("BoxTitle"));
    heading->setIndent(0);
    auto *message = new QLabel(text);
    message->setObjectName(QStringLiteral("BoxText"));
    message->setTextFormat(Qt::PlainText);
    message->setWordWrap(true);
    message->setMaximumWidth(720);

    content->setContentsMargins(20, 20, 20, 12);
    content->setSpacing(12);
    content->addWidget(message);
    commands->setContentsMargins(20, 0, 20, 20);
    commands->setSpacing(8);
    commands->addStretch();

    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(1, 1, 1, 1);
    all->setSpacing(0);
    all->addWidget(heading);
    all->addLayout(content, 1);
    all->addLayout(commands);
}

void Box::addFacts(const std::vector<std::pair<std::string, std::string>> &facts)
{
    setProperty("look", QStringLiteral("notice"));
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(24);
    grid->setColumnStretch(1, 1);
    for (const auto &[name, text] : facts) {
        const int row = grid->rowCount();
        auto *label = new QLabel(toQt(name));
        auto *value = new QLabel(toQt(text));
        label->setProperty("part", QStringLiteral("hint"));
        value->setProperty("part", QStringLiteral("amount"));
        value->setTextFormat(Qt::PlainText);
        value->setAccessibleName(toQt(std::string(name).append(" ").append(text)));
        grid->addWidget(label, row, 0);
        grid->addWidget(value, row, 1);
    }
    content->addLayout(grid);
}

void Box::addFile(const QString &path)
{
    auto *file = new QLabel(path);
    file->setProperty("part", QStringLiteral("foot"));
    file->setTextFormat(Qt::PlainText);
    file->setWordWrap(true);
    content->addWidget(file);
}

void Box::addButton(const QString &caption, int result, bool isDefault)
{
    auto *button = new QPushButton(caption);
    button->setObjectName(caption);
    button->setProperty("command", isDefault ? QStringLiteral("primary") : QStringLiteral("plain"));
    button->setMinimumSize(120, 52);
    button->setDefault(isDefault);
    connect(button, &QPushButton::clicked, this, [this, result] { done(result); });
    commands->addWidget(button);
}

void Box::hear(bool on)
{
    for (int item = 1; item < commands->count(); ++item) // after the stretch
        commands->itemAt(item)->widget()->setEnabled(on);
}

/// A swipe or a barcode ends in Enter: the command is pressed by a finger, or by the space bar once
/// the Tab key has reached it.
void Box::leaveEnterAlone()
{
    for (QPushButton *button : findChildren<QPushButton *>()) {
        button->setDefault(false);
        button->setAutoDefault(false);
    }
    setFocusPolicy(Qt::StrongFocus);
    setFocus();
}

int Box::wait(Run &run, std::uint64_t unheard)
{
    const std::uint64_t begun = run.milliseconds();
    if (unheard > 0) {
        hear(false);
        leaveEnterAlone();
    }
    const bool openedAtTheEnd = run.ending();
    placeInFront(*this);
    show();
    activateWindow();
    while (isVisible() && (openedAtTheEnd || !run.ending())) {
        run.yield();
        if (unheard > 0 && run.milliseconds() - begun >= unheard) {
            unheard = 0;
            hear(true);
        }
    }
    hideModal(*this);
    return result();
}

constexpr std::uint64_t kUnheard = 1000; // ms

constexpr int resultOf(Answer answer)
{
    return QDialog::Accepted + 1 + static_cast<int>(answer);
}

} // namespace

Answer QtDialogs::ask(const std::string &title, const std::string &text, Buttons buttons)
{
    Box box(titleOf(title), toQt(text));
    Answer harmless = Answer::Ok;
    switch (buttons) {
    case Buttons::Ok: box.addButton(QStringLiteral("OK"), resultOf(Answer::Ok), true); break;
    case Buttons::OkCancel:
        box.addButton(QStringLiteral("OK"), resultOf(Answer::Ok), true);
        box.addButton(QStringLiteral("Cancel"), resultOf(Answer::Cancel), false);
        harmless = Answer::Cancel;
        break;
    case Buttons::YesNo:
        box.addButton(QStringLiteral("Yes"), resultOf(Answer::Yes), true);
        box.addButton(QStringLiteral("No"), resultOf(Answer::No), false);
        harmless = Answer::No;
        break;
    }
    const int result = box.wait(run);
    return result == Box::kHarmless ? harmless
                                    : static_cast<Answer>(result - QDialog::Accepted - 1);
}

void QtDialogs::show(const Notice &notice)
{
    Box box(titleOf(notice.title), toQt(notice.text));
    box.addFacts(notice.facts);
    if (!notice.file.empty())
        box.addFile(toQt(notice.file));
    box.addButton(QStringLiteral("OK"), resultOf(Answer::Ok), true);
    box.wait(run, kUnheard);
}

void QtDialogs::showFailure(const std::string &text)
{
    Box box(titleOf({}), toQt(text));
    box.addButton(QStringLiteral("OK"), resultOf(Answer::Ok), true);
    box.wait(run, kUnheard);
}

std::optional<std::string> QtDialogs::askText(const std::string &title, const std::string &text,
                                              const std::string &initial, bool hidden)
{
    Box box(titleOf(title), toQt(text));
    QLineEdit field(toQt(initial));
    field.setObjectName(QStringLiteral("BoxField"));
    field.setAccessibleName(toQt(text));
    field.setMinimumHeight(46);
    field.setEchoMode(hidden ? QLineEdit::Password : QLineEdit::Normal);
    field.selectAll();
    box.addField(field);
    box.addButton(QStringLiteral("OK"), resultOf(Answer::Ok), true);
    box.addButton(QStringLiteral("Cancel"), resultOf(Answer::Cancel), false);
    field.setFocus();
    if (box.wait(run) != resultOf(Answer::Ok))
        return std::nullopt;
    return fromQt(field.text());
}

} // namespace platform
