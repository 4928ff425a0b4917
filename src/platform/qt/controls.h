// What every screen does with its controls when its fields change: values with a name for screen
// readers, parts and commands that come and go.
#pragma once

#include <string>

class QAbstractButton;
class QLabel;
class QString;
class QWidget;

namespace platform {

struct CommandState;

/// A value and what it is (the label's accessible description), in one name for screen readers. A
/// dash stands in the place of an empty value.
void putValue(QLabel &label, const QString &value);
void putValue(QLabel &label, const std::string &value);

/// Does nothing if the part is already so: showing a part, even one that is not hidden, lays it out
/// at once, and before the screen is shown that is in a size that it will not have.
void putVisible(QWidget &part, bool visible);

/// Enabled and visible as the procedures say.
void putCommand(QAbstractButton &command, const CommandState &state);

} // namespace platform
