#include "details/PrinterChoice.h"

#include "platform/qt/qt_text.h"
#include "ui_PrinterChoice.h"

#include <algorithm>
#include <utility>

namespace details {

PrinterChoice::PrinterChoice(platform::Services &theServices, std::vector<std::string> theNames,
                             const std::string &current)
    : Screen(theServices), ui(std::make_unique<Ui::PrinterChoice>()), names(std::move(theNames))
{
    ui->setupUi(this);
    // Rows keep the height they have when first asked for, and a screen reader asks at once.
    ui->printers->ensurePolished();
    for (const std::string &name : names)
        ui->printers->addItem(platform::toQt(name));
    const auto found = std::find(names.begin(), names.end(), current);
    ui->printers->setCurrentRow(found == names.end() ? 0 : static_cast<int>(found - names.begin()));
    ui->noPrinter->setHidden(!names.empty());
    ui->printCommand->setDisabled(names.empty());
    const auto print = [this] { printCommand_Click(); };
    connect(ui->printCommand, &QAbstractButton::clicked, this, print); // "Print"
    connect(ui->printers, &QListWidget::itemDoubleClicked, this, print);
    onClick(ui->cancelCommand, *this, &PrinterChoice::closeAsked); // "Cancel"
    setDefaultCommand(ui->printCommand);
    ui->printers->setFocus();
}

PrinterChoice::~PrinterChoice() = default;

std::optional<std::string> PrinterChoice::ask()
{
    runModal();
    return answer;
}

void PrinterChoice::printCommand_Click()
{
    answer = names[static_cast<std::size_t>(ui->printers->currentRow())];
    unload();
}

} // namespace details
