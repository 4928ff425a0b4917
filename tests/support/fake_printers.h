// FakePrinters: collects the jobs instead of printing them.
#pragma once

#include "platform/printers.h"

#include <algorithm>
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
    std::string preferred = "Receipt TM-88"; // or the first, where it is not installed
    std::map<std::string, int> widths = {{"Receipt TM-88", 80}, {"Office Laser", 216}};
    std::vector<Collected> collected;
    std::deque<platform::Outcome> failures; // of the next jobs; Done prints one

    std::vector<std::string> names() override { return installed; }
    std::string defaultName() override
    {
        return has(preferred) ? preferred : installed.empty() ? "" : installed.front();
    }
    int paperWidth(const std::string &name) override { return has(name) ? widths[name] : 0; }
    platform::Outcome submit(const std::string &printerName, const platform::PrintJob &job) override
    {
        if (!has(printerName))
            return platform::Outcome::NotThere;
        if (!failures.empty()) {
            const platform::Outcome outcome = failures.front();
            failures.pop_front();
            if (!done(outcome))
                return outcome;
        }
        collected.push_back({printerName, job});
        return platform::Outcome::Done;
    }
    void warmUp(const platform::PrintFont &) override {}

private:
    bool has(const std::string &name) const
    {
        return std::find(installed.begin(), installed.end(), name) != installed.end();
    }
};

} // namespace support
