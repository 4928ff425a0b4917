#include "manager/TndrMgr.h"

#include "platform/qt/controls.h"
#include "platform/qt/qt_text.h"
#include "ui_TndrMgr.h"

#include <utility>

namespace manager {

using platform::toQt;

TndrMgr::TndrMgr(records::App &theApp, ManagerRoutes routes)
    : Screen(theApp), app(theApp), ui(std::make_unique<Ui::TndrMgr>()),
      start(theApp, *this, std::move(routes))
{
    ui->setupUi(this);
    // Not served by this version.
    for (QPushButton *later : {ui->SSCommand1,  // "Tech Only"
                               ui->SSCommand2,  // "NEXT", during business hours
                               ui->SSCommand5,  // "Supplies"
                               ui->SSCommand6,  // "Backup"
                               ui->SSCommand7,  // "View Log"
                               ui->SSCommand8,  // "Tndr Log"
                               ui->SSCommand9}) // "Config"
        later->setEnabled(false);
    onClick(ui->SSCommand3, start, &ManagerStart::startAfterHours); // "NEXT", after business hours
    onClick(ui->SSCommand4, start, &ManagerStart::quit);            // "QUIT"
    setDefaultCommand(ui->SSCommand3);
    refresh(start.state());
}

TndrMgr::~TndrMgr() = default;

void TndrMgr::Form_Load()
{
    start.Form_Load();
    ui->business->setText(toQt(app.values.config.text(records::kBusinessName) + "  \xB7  Station " +
                               app.values.StationName));
    ui->SSCommand3->setFocus();
}

void TndrMgr::closeAsked()
{
    start.quit(); // "QUIT"
}

void TndrMgr::refresh(const ManagerStartFields &fields)
{
    platform::putValue(*ui->Label5, fields.version);
    ui->status->setText(toQt(fields.status));
    ui->SSCommand3->setEnabled(fields.choicesEnabled);
    ui->SSCommand4->setEnabled(fields.choicesEnabled);
}

} // namespace manager
