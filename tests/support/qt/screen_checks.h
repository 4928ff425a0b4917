// Checks for every screen: no text is cut off. (That every control has a name the walk checks.)
#pragma once

#include <QSize>
#include <QWidget>

#include <array>
#include <string>

namespace support {

/// The two logical sizes that every screen must fit: a plain terminal, and 1920 x 1080 at 150 %.
inline constexpr std::array<QSize, 2> kScreenSizes = {QSize(1024, 768), QSize(1280, 720)};

/// What a screen reader calls the control.
QString accessibleNameOf(QWidget &control);
/// Visible controls that are smaller than what they show, reach out of their parent, or lie on
/// one another; and the window itself when it could not become as small as it was asked to.
/// Labels that end in dots are not among them. Each check gives one line per finding, so nothing
/// for a good screen.
std::string clippedControls(QWidget &window, QSize size);
/// clippedControls() at both sizes (a screen that is smaller by itself stays so) and on every page.
std::string screenFaults(QWidget &window);
/// Labels that end in dots at the moment.
std::string elidedLabels(QWidget &window);

} // namespace support
