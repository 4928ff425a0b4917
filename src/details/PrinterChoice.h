// PrinterChoice: on which of the installed printers a slip is printed again. After runModal() the
// answer is asked for.
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

    /// Nothing after "Cancel".
    std::optional<std::string> chosen() const { return answer; }

private:
    void printCommand_Click(); // "Print"

    std::unique_ptr<Ui::PrinterChoice> ui;
    const std::vector<std::string> names;
    std::optional<std::string> answer;
};

} // namespace details
