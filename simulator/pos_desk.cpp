#include "simulator/pos_desk.h"

#include "simulator/sample_values.h"
#include "simulator/server_table.h"

#include <cstdlib>

namespace simulator {

std::vector<SampleAmount> sampleAmounts(Mode mode)
{
    std::vector<SampleAmount> samples = {{"48.50", "approved", "approved at once"}};
    for (const OutcomeRow &row : mode == Mode::CommandLine ? outcomeRows() : serverRows()) {
        const auto cents = static_cast<std::uint64_t>(row.lastCents);
        samples.push_back(
            {"31." + padded(cents, 2), std::string(row.name), std::string(row.meaning)});
    }
    return samples;
}

std::string nextReceipt(const std::string &receipt)
{
    if (receipt.empty() || receipt.find_first_not_of("0123456789") != std::string::npos)
        return receipt;
    return padded(std::strtoull(receipt.c_str(), nullptr, 10) + 1, receipt.size());
}

PosDesk::PosDesk(const std::string &drivesFolder)
    : station(drivesFolder, "sim_pos_window"), place(placeOf(station.files))
{
    mendLinks(station.files, ownFolder());
    keepServerRunning();
}

PosDesk::~PosDesk()
{
    server->end();
}

Mode PosDesk::mode()
{
    return modeOf(station.files, place.Maindir);
}

// If it ended because another server answers in the folder, it will end again at once.
void PosDesk::keepServerRunning()
{
    if (!server || !server->running())
        server.reset(new ChildProcess(startServer(place, station.drivesFolder)));
}

std::string PosDesk::begin(const TenderRequest &request, Mode mode)
{
    const platform::ErrorsIgnored ignored(station.run);
    if (!isInstalled(station.files))
        return "There is no restaurant in " + station.drivesFolder;
    if (!setMode(station.files, place.Maindir, mode) || !leaveRequest(place, request))
        return "The request cannot be written to " + place.Maindir;
    keepServerRunning();
    tender.reset(new ChildProcess(startTender(ownFolder() + "/TndrCC", station.drivesFolder)));
    return tender->id() == 0 ? "There is no TndrCC in " + ownFolder() : std::string();
}

std::vector<AnswerLine> PosDesk::answer()
{
    const platform::ErrorsIgnored ignored(station.run);
    return namedAnswer(readAnswer(place));
}

} // namespace simulator
