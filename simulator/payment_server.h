// PaymentServer: the stand-in for the payment server. It takes the ".req" files of a folder and
// leaves an ".ans" file of the same name for each, as its table decides.
#pragma once

#include "platform/files.h"
#include "simulator/server_table.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace simulator {

class PaymentServer {
public:
    /// `theFolder`: a Windows path with a separator at its end. `theReport` gets a line for each
    /// answer that was written, and for each request without an answer.
    PaymentServer(platform::Files &theFiles, platform::Run &theRun, std::string theFolder,
                  std::function<void(const std::string &)> theReport);

    /// Takes the requests that are whole and writes the answers that are due. Never waits; ignores
    /// a request or an answer that a tender takes back meanwhile. `now`: milliseconds of a clock
    /// that never goes back.
    void turn(std::uint64_t now);
    bool folderIsThere()
    {
        const platform::ErrorsIgnored ignored(run);
        return files.folderExists(folder);
    }

private:
    enum class Form { Whole, InPlace, Rest, None };
    struct Step {
        std::uint64_t at;
        Form form;
        std::string path;
        std::string bytes;
        std::string report; // empty where another step follows
    };

    bool folderChanged();
    void lookForRequests(std::uint64_t now);
    void take(const std::string &name, std::uint64_t now);
    void plan(const PaymentOutcome &outcome, const std::string &path, const std::string &report,
              std::uint64_t now);
    void carryOut(const Step &step);

    platform::Files &files;
    platform::Run &run;
    const std::string folder;
    const std::string realFolder;
    std::function<void(const std::string &)> report;
    std::vector<Step> steps; // in the order in which they were planned
    std::uint64_t seenStamp = 0;
};

} // namespace simulator
