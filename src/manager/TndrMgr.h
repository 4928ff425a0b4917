// TndrMgr: "Xcharge Manager", the first screen of the manager's program. It asks what the manager
// wants to do.
#pragma once

#include "manager/manager_start.h"
#include "platform/qt/screen.h"

#include <memory>

namespace Ui {
class TndrMgr;
}

namespace manager {

class TndrMgr : public platform::Screen, private ManagerStartView {
    Q_OBJECT

public:
    /// `app` must outlive the screen.
    TndrMgr(records::App &theApp, ManagerRoutes routes);
    ~TndrMgr() override;

protected:
    void Form_Load() override;
    void closeAsked() override;

private:
    // ManagerStartView
    void refresh(const ManagerStartFields &fields) override;

    records::App &app;
    std::unique_ptr<Ui::TndrMgr> ui;
    ManagerStart start; // last: it refers to this view until it is gone
};

} // namespace manager
