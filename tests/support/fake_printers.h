// FakePrinters: collects the jobs instead of printing them.
#pragma once

#include "platform/printers.h"

#include <deque>
#include <map>

namespace support {

class FakePrinters : public platform::Printers {
public:
    struct Collected {
        std::string printer;
        platform::PrintJob job;
    };

    std::vector<std::string> installed = {"Receipt TM-88", "Office Laser"};
    std::map<std::string, int> widths = {{"Receipt TM-88", 80}, {"Office Laser", 216}};
    std::vector<Collected> collected;
    std::deque<platform::Outcome> failures; // of the next jobs; Done prints one

    std::vector<std::string> names() override { return installed; }
    std::string defaultName() override;
    int paperWidth(const std::string &name) override { return has(name) ? widths[name] : 0; }
    platform::Outcome submit(const std::string &printerName,
                             const platform::PrintJob &job) override;
    void warmUp(const platform::PrintFont &) override {}

private:
    bool has(const std::string &name) const;
};

} // namespace support
