// Xcharge2: manual card entry. Three boxes are filled by a keyboard or by the screen's keypad. Ask
// for typedCard() after runModal().
#pragma once

#include "platform/qt/screen.h"
#include "tender/manual_entry.h"

#include <array>
#include <memory>
#include <optional>

class QLineEdit;
namespace Ui {
class Xcharge2;
}

namespace tender {

class Xcharge2 : public platform::Screen {
    Q_OBJECT

public:
    explicit Xcharge2(records::App &theApp);
    ~Xcharge2() override;

    /// The card after "Process"; nothing when the screen was left otherwise.
    std::optional<TypedCard> typedCard() const { return processed; }

protected:
    void Form_Load() override;

private:
    void connectCommands();
    void SSCommand4_Click(); // "Process"
    void SSCommand7_Click(); // "Small Font" / "Large Font"
    void boxGotFocus(QWidget *now);
    void boxesChanged();
    void nameBox(std::size_t item);
    QLineEdit &namedBox() const;
    void showFont();

    records::App &app;
    std::unique_ptr<Ui::Xcharge2> ui;
    std::array<QLineEdit *, 3> boxes{}; // as Label2 counts them
    EntryFont font = EntryFont::Large;
    std::optional<TypedCard> processed;
};

} // namespace tender
