// FakePrinters: collects the jobs instead of printing them.
#pragma once

#include "platform/printers.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

namespace support {

class FakePrinters : public platform::Printers {
public:
    struct Collected {
        std::string printer;
        platform::PrintJob job;
    };

    std::vector<std::string> installed = {"Receipt TM-88", "Office Laser"};
    std::string preferred = "Receipt TM-88";
    std::optional<platform::Outcome> refusal; // of every job, as by a printer out of order
    std::vector<Collected> collected;
    int warmUps = 0;
    platform::PrintFont warmed; // the last time

    std::vector<std::string> names() override { return installed; }

    std::string defaultName() override
    {
        if (has(preferred))
            return preferred;
        return installed.empty() ? std::string() : installed.front();
    }

    platform::Outcome submit(const std::string &printerName, const platform::PrintJob &job) override
    {
        if (!has(printerName))
            return platform::Outcome::NotThere;
        if (refusal)
            return *refusal;
        collected.push_back({printerName, job});
        return platform::Outcome::Done;
    }

    void warmUp(const platform::PrintFont &font) override
    {
        ++warmUps;
        warmed = font;
    }

private:
    bool has(const std::string &name) const
    {
        return std::find(installed.begin(), installed.end(), name) != installed.end();
    }
};

} // namespace support
