// XCreader1: "XC - Result File Reader". Reads a result file of the payment application into the
// working record and lists its lines; also tries the reader on a typed text.
#pragma once

#include "platform/qt/screen.h"
#include "records/app.h"

#include <memory>

namespace Ui {
class XCreader1;
}

namespace tender {

class XCreader1 : public platform::Screen {
    Q_OBJECT

public:
    explicit XCreader1(records::App &theApp);
    ~XCreader1() override;

private:
    void Command1_Click(); // "Read the file"
    void Command2_Click(); // "unload me"
    void Command3_Click(); // "Read XML file"

    records::App &app;
    std::unique_ptr<Ui::XCreader1> ui;
};

} // namespace tender
