#include "platform/qt/controls.h"

#include "platform/command_state.h"
#include "platform/qt/qt_text.h"

#include <QAbstractButton>
#include <QLabel>

namespace platform {

void putValue(QLabel &label, const QString &value)
{
    label.setText(value.isEmpty() ? QStringLiteral("\u2014") : value);
    label.setAccessibleName(label.accessibleDescription() + QStringLiteral(": ") +
                            (value.isEmpty() ? QStringLiteral("none") : value));
}

void putValue(QLabel &label, const std::string &value)
{
    putValue(label, toQt(value).trimmed());
}

void putVisible(QWidget &part, bool visible)
{
    const bool hidden = part.isHidden() && part.testAttribute(Qt::WA_WState_ExplicitShowHide);
    if (visible == hidden)
        part.setVisible(visible);
}

void putCommand(QAbstractButton &command, const CommandState &state)
{
    command.setEnabled(state.enabled);
    putVisible(command, state.visible);
}

} // namespace platform
