// xcharge3: "File Server Busy". A tender ends here while the back office batches out.
#pragma once

#include "platform/qt/screen.h"

#include <functional>
#include <memory>

namespace Ui {
class xcharge3;
}

namespace tender {

class xcharge3 : public platform::Screen {
    Q_OBJECT

public:
    /// `removeMarker` deletes the batch marker: the hidden way out when a batch has died.
    xcharge3(platform::Services &theServices, std::function<void()> removeMarker);
    ~xcharge3() override;

protected:
    void closeAsked() override;

private:
    void SSCommand4_Click(); // "OK"
    void Picture1_Click();   // the picture of the busy server

    std::unique_ptr<Ui::xcharge3> ui;
    std::function<void()> removeMarker;
};

} // namespace tender
