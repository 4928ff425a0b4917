// Encript: the small tool "Hyper Encription", which scrambles a text as stored card references
// are, and back.
#pragma once

#include "platform/qt/screen.h"

#include <memory>
#include <string>

namespace Ui {
class Encript;
}

namespace manager {

class Encript : public platform::Screen {
    Q_OBJECT

public:
    explicit Encript(platform::Services &theServices);
    ~Encript() override;

protected:
    void closeAsked() override;

private:
    void SSCommand1_Click(); // "Encript"
    void SSCommand2_Click(); // "DeCript"
    void replaceText(const std::string &text);

    std::unique_ptr<Ui::Encript> ui;
};

} // namespace manager
