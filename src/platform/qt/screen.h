// Screen: the base of every window. A screen is owned by whoever opened it; unloading hides and
// marks it, and it is destroyed only after its outermost handler has returned.
#pragma once

#include "platform/services.h"
#include "platform/view.h"

#include <QAbstractButton>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <memory>

class QApplication;

namespace platform {

/// Gives the application the one look of all screens; once, before the first screen is made.
void applyTheme(QApplication &application);

/// Sets a property that the theme chooses a look by ("card", "state").
void putLook(QWidget &widget, const char *property, const char *look);

class Screen : public QWidget, public virtual View {
    Q_OBJECT

public:
    explicit Screen(Services &theServices);

    /// Shows the screen in the middle of the display and turns the event loop until the screen is
    /// unloaded or the program ends; no other window takes input meanwhile. A screen on the stack
    /// of the caller is safe: its handlers have all returned when this does.
    void runModal();
    /// Over the whole display, in front of all other windows, and with the keyboard.
    void openWhole();
    bool unloaded() const { return gone; }

    // View. An unloaded screen's object lives on until the owner destroys it.
    void paintNow() override;
    void setBusyPointer(bool on) override;
    void SetTopMostWindow(bool on) override;
    void hide() override { QWidget::hide(); }
    void unload() override;

    /// For owners of a screen that is not modal: std::unique_ptr<XchargePend, Screen::Later>
    /// destroys it at the next turn at which none of its handlers runs.
    struct Later {
        void operator()(Screen *screen) const;
    };

protected:
    /// For what takes longer than an empty window to appear: called once, right after the first
    /// paint; if nothing is painted, kLatestLoad after the screen was shown.
    virtual void Form_Load() {}
    static constexpr std::uint32_t kLatestLoad = 100; // ms

    /// Escape or the window's cross: the harmless way out. Without an override, unload().
    virtual void closeAsked() { unload(); }
    /// Each press of the command calls `handler` of `procedures`: of the screen itself, or of what
    /// it owns.
    template <class Procedures, class Base>
    void onClick(QAbstractButton *command, Procedures &procedures, void (Base::*handler)())
    {
        connect(command, &QAbstractButton::clicked, this,
                [&procedures, handler] { (procedures.*handler)(); });
    }
    /// The command that Enter stands for where no other command has the focus; may be disabled at
    /// times. A text box of several lines keeps Enter for itself.
    void setDefaultCommand(QAbstractButton *command);
    /// The handler as a timer needs it: it does nothing once the screen is unloaded.
    std::function<void()> whileLoaded(std::function<void()> handler);

    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

    Services &services;

private:
    void load();
    void pressEnter();

    QPointer<QAbstractButton> defaultCommand;
    platform::Timer loadTimer;
    bool loaded = false;
    bool gone = false;
};

/// The window that a new modal one belongs to: the modal one that is open, else the one that was
/// given the keyboard just now, else the active one, else any that is visible; or none.
QWidget *windowInFront();
/// Makes `window` modal to the program and places it over windowInFront(), even a top-most one.
/// Call it before the window is shown.
void placeInFront(QWidget &window);
/// Hides it again and gives the keyboard back to the window below, which may be waiting for a card
/// reader: nobody but us does that where there is no window manager.
void hideModal(QWidget &window);

} // namespace platform
