// PrinterChoice: asks on which of the installed printers a slip is printed again.
#pragma once

#include "platform/qt/screen.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace Ui {
class PrinterChoice;
}

namespace details {

class PrinterChoice : public platform::Screen {
    Q_OBJECT

public:
    /// `current` is proposed; where it is not among the names, the first.
    PrinterChoice(platform::Services &theServices, std::vector<std::string> theNames,
                  const std::string &current);
    ~PrinterChoice() override;

    /// Shows the choice; nothing after "Cancel".
    std::optional<std::string> ask();

private:
    void printCommand_Click(); // "Print"

    std::unique_ptr<Ui::PrinterChoice> ui;
    const std::vector<std::string> names;
    std::optional<std::string> answer;
};

} // namespace details
