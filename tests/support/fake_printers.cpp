#include "support/fake_printers.h"

#include <algorithm>

namespace support {

using platform::Outcome;

std::string FakePrinters::defaultName()
{
    return has("Receipt TM-88") ? "Receipt TM-88" : installed.empty() ? "" : installed.front();
}

Outcome FakePrinters::submit(const std::string &printerName, const platform::PrintJob &job)
{
    if (!has(printerName))
        return Outcome::NotThere;
    if (!failures.empty()) {
        const Outcome outcome = failures.front();
        failures.pop_front();
        if (!done(outcome))
            return outcome;
    }
    collected.push_back({printerName, job});
    return Outcome::Done;
}

bool FakePrinters::has(const std::string &name) const
{
    return std::find(installed.begin(), installed.end(), name) != installed.end();
}

} // namespace support
