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
    SSCommand = {nullptr,
                 ui->SSCommand1,  // "Tech Only"
                 ui->SSCommand2,  // "NEXT", during business hours
                 ui->SSCommand3,  // "NEXT", after business hours
                 ui->SSCommand4,  // "QUIT"
                 ui->SSCommand5,  // "Supplies"
                 ui->SSCommand6,  // "Backup"
                 ui->SSCommand7,  // "View Log"
                 ui->SSCommand8,  // "Tndr Log"
                 ui->SSCommand9}; // "Config"
    connect(ui->SSCommand3, &QAbstractButton::clicked, this, [this] { start.SSCommand3_Click(); });
    connect(ui->SSCommand4, &QAbstractButton::clicked, this, [this] { start.SSCommand4_Click(); });
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
    start.SSCommand4_Click(); // "QUIT"
}

void TndrMgr::refresh(const ManagerStartFields &fields)
{
    platform::putValue(*ui->Label5, fields.Label5);
    ui->status->setText(toQt(fields.status));
    for (std::size_t number = 1; number < SSCommand.size(); ++number)
        SSCommand[number]->setEnabled(fields.SSCommandEnabled[number]);
}

void TndrMgr::paintNow()
{
    Screen::paintNow();
}

} // namespace manager
