// ManagerApproval: asks for a manager's card or code. After runModal() the answer stands in
// `managerResult`.
#pragma once

#include "platform/qt/screen.h"
#include "tender/manager_check.h"

#include <memory>

namespace Ui {
class ManagerApproval;
}

namespace tender {

class ManagerApproval : public platform::Screen {
    Q_OBJECT

public:
    /// Uses `ManagerTable` without reading the managers again.
    ManagerApproval(records::App &theApp, const ManagerQuestion &question);
    ~ManagerApproval() override;

protected:
    void closeAsked() override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void connectCommands();
    void okCommand_Click(); // "OK"

    std::unique_ptr<Ui::ManagerApproval> ui;
    ManagerCheck check;
};

} // namespace tender
