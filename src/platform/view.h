// View: what the procedures of every room can ask of their screen. Screen answers it for all of
// them; a room's own view derives from it and adds its own calls.
#pragma once

namespace platform {

/// Derive from it virtually: a screen is a Screen and its room's view, yet one View.
class View {
public:
    virtual ~View() = default;
    /// Paints at once what has changed, without letting other events run: the next step is a long
    /// one, or a file is locked.
    virtual void paintNow() = 0;
    virtual void setBusyPointer(bool on) = 0;
    /// Keeps the screen above all other windows, or no longer; before it is shown or after.
    virtual void SetTopMostWindow(bool on) = 0;
    virtual void hide() = 0;
    /// Hides the screen for good.
    virtual void unload() = 0;
};

/// For procedures that run without a screen, and for tests.
class WindowlessView : public virtual View {
public:
    void paintNow() override {}
    void setBusyPointer(bool) override {}
    void SetTopMostWindow(bool) override {}
    void hide() override {}
    void unload() override {}
};

} // namespace platform
