#include "tender/xcharge3.h"

#include "ui_xcharge3.h"

#include <utility>

namespace tender {

xcharge3::xcharge3(platform::Services &theServices, std::function<void()> theRemoveMarker)
    : Screen(theServices), ui(std::make_unique<Ui::xcharge3>()),
      removeMarker(std::move(theRemoveMarker))
{
    ui->setupUi(this);
    onClick(ui->SSCommand4, *this, &xcharge3::SSCommand4_Click); // "OK"
    onClick(ui->Picture1, *this, &xcharge3::Picture1_Click);
    setDefaultCommand(ui->SSCommand4);
    ui->SSCommand4->setFocus();
}

xcharge3::~xcharge3() = default;

void xcharge3::SSCommand4_Click()
{
    services.end();
}

/// The screen stays; the tender has to be started again.
void xcharge3::Picture1_Click()
{
    removeMarker();
    ui->SSCommand4->setFocus();
}

/// No other screen is open.
void xcharge3::closeAsked()
{
    SSCommand4_Click();
}

} // namespace tender
