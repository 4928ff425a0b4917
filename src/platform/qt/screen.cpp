#include "platform/qt/screen.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QFile>
#include <QKeyEvent>
#include <QPalette>
#include <QScreen>
#include <QStyle>
#include <QWindow>

#include <utility>

/// A library's resources must be asked for outside every namespace.
static void loadAssets()
{
    Q_INIT_RESOURCE(assets);
}

namespace platform {

namespace {

QPalette colours()
{
    constexpr QRgb kGround = 0xffeef1f4;
    constexpr QRgb kText = 0xff1c2733;
    constexpr QRgb kQuietText = 0xff5b6b7b;
    constexpr QRgb kDisabledText = 0xff9aa5b1;
    constexpr QRgb kBlue = 0xff1f6feb;
    QPalette palette(QColor::fromRgb(kGround));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, QColor::fromRgb(kText));
        palette.setColor(QPalette::Disabled, role, QColor::fromRgb(kDisabledText));
    }
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Button, Qt::white);
    palette.setColor(QPalette::PlaceholderText, QColor::fromRgb(kQuietText));
    palette.setColor(QPalette::Highlight, QColor::fromRgb(kBlue));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    return palette;
}

} // namespace

namespace {

/// A finger that taps twice means one window. When the first tap opens or closes one, the second
/// would press what has come to lie below it: a key of the keypad, the "Done" of a list.
class SecondTaps : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *target, QEvent *event) override
    {
        if (!target->isWidgetType())
            return false;
        const QWidget *window = static_cast<QWidget *>(target)->window();
        if (event->type() == QEvent::MouseButtonPress)
            tapped = window;
        return event->type() == QEvent::MouseButtonDblClick && tapped != window;
    }

private:
    const QWidget *tapped = nullptr; // to compare; it may be gone
};

} // namespace

namespace {

/// The window that was given the keyboard last. The system confirms it at a later turn of the loop
/// only: until then no window is active, or one that has to make room, and a box asked for at once
/// would come up below.
QPointer<QWidget> &keyboardGivenTo()
{
    static QPointer<QWidget> window;
    return window;
}

void giveKeyboard(QWidget &window)
{
    keyboardGivenTo() = &window;
    window.activateWindow();
}

/// Notes the window that really has the keyboard now.
void keyboardMoved(const QWindow *to)
{
    if (to != nullptr)
        keyboardGivenTo().clear();
}

} // namespace

void applyTheme(QApplication &application)
{
    application.installEventFilter(new SecondTaps(&application));
    QObject::connect(&application, &QGuiApplication::focusWindowChanged, &keyboardMoved);
    constexpr double kPlainText = 11; // points
    loadAssets();
    QFont font = QApplication::font();
    font.setPointSizeF(kPlainText);
    QApplication::setFont(font);
    QApplication::setPalette(colours());
    QFile sheet(QStringLiteral(":/theme.qss"));
    if (sheet.open(QIODevice::ReadOnly))
        application.setStyleSheet(QString::fromUtf8(sheet.readAll()));
}

void putLook(QWidget &widget, const char *property, const char *look)
{
    const QString value = QString::fromLatin1(look);
    if (widget.property(property).toString() == value)
        return;
    widget.setProperty(property, value);
    widget.style()->unpolish(&widget);
    widget.style()->polish(&widget);
}

Screen::Screen(Services &theServices)
    : services(theServices), loadTimer(theServices.clock, [this] { load(); })
{
}

void Screen::runModal()
{
    if (gone)
        return;
    const QRect display = screen()->availableGeometry();
    setGeometry(QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter,
                                    size().boundedTo(display.size()), display));
    placeInFront(*this);
    show();
    while (!gone && !services.ending())
        services.yield();
    hideModal(*this);
}

void Screen::openWhole()
{
    setGeometry(screen()->availableGeometry());
    showMaximized();
    raise();
    activateWindow();
}

void Screen::setBusyPointer(bool on)
{
    if (on)
        setCursor(Qt::WaitCursor);
    else
        unsetCursor();
}

void Screen::unload()
{
    gone = true;
    hide();
}

void Screen::SetTopMostWindow(bool on)
{
    // Once there is a native window, setWindowFlag() would hide it.
    if (QWindow *window = windowHandle()) {
        overrideWindowFlags(windowFlags().setFlag(Qt::WindowStaysOnTopHint, on));
        window->setFlag(Qt::WindowStaysOnTopHint, on);
        if (on && isVisible())
            raise();
    } else {
        setWindowFlag(Qt::WindowStaysOnTopHint, on);
    }
}

void Screen::paintNow()
{
    if (!isVisible())
        return;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest); // no other events
    QCoreApplication::sendPostedEvents(this, QEvent::UpdateRequest);
}

void Screen::Later::operator()(Screen *screen) const
{
    screen->unload();
    screen->deleteLater();
}

void Screen::setDefaultCommand(QAbstractButton *command)
{
    defaultCommand = command;
}

std::function<void()> Screen::whileLoaded(std::function<void()> handler)
{
    return [this, handler = std::move(handler)] {
        if (!gone)
            handler();
    };
}

void Screen::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    // The keyboard, and a card reader that types, must go to the new screen.
    if (!event->spontaneous())
        giveKeyboard(*this);
    if (!loaded)
        loadTimer.setInterval(kLatestLoad);
}

void Screen::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    if (!loaded)
        QMetaObject::invokeMethod(
            this, [this] { load(); }, Qt::QueuedConnection);
}

void Screen::load()
{
    loadTimer.setInterval(0);
    if (loaded || gone)
        return;
    loaded = true;
    Form_Load();
}

void Screen::closeEvent(QCloseEvent *event)
{
    event->ignore();
    if (!gone)
        closeAsked();
}

void Screen::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Escape: closeAsked(); break;
    case Qt::Key_Return:
    case Qt::Key_Enter: pressEnter(); break;
    default: QWidget::keyPressEvent(event);
    }
}

void Screen::pressEnter()
{
    auto *command = qobject_cast<QAbstractButton *>(focusWidget());
    if (command == nullptr)
        command = defaultCommand;
    if (command != nullptr && command->isVisible() && command->isEnabled())
        command->click();
}

QWidget *windowInFront()
{
    if (QWidget *modal = QApplication::activeModalWidget())
        return modal;
    if (QWidget *given = keyboardGivenTo(); given != nullptr && given->isVisible())
        return given;
    if (QWidget *active = QApplication::activeWindow())
        return active;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->isVisible())
            return window;
    }
    return nullptr;
}

void hideModal(QWidget &window)
{
    QWindow *behind = window.windowHandle() ? window.windowHandle()->transientParent() : nullptr;
    window.hide();
    QWidget *below = behind != nullptr ? QWidget::find(behind->winId()) : nullptr;
    if (below != nullptr)
        giveKeyboard(*below);
}

void placeInFront(QWidget &window)
{
    window.setWindowModality(Qt::ApplicationModal);
    QWidget *below = windowInFront();
    if (below == nullptr || below == &window)
        return;
    if (below->windowFlags().testFlag(Qt::WindowStaysOnTopHint))
        window.setWindowFlag(Qt::WindowStaysOnTopHint);
    window.winId(); // makes the native window, to which the one below can be given
    window.windowHandle()->setTransientParent(below->windowHandle());
}

} // namespace platform
