// "LumbrioINI.dat": of any length and content; paths stay texts, and reading it twice changes
// nothing.
#include "memory_station.h"
#include "records/configuration.h"

using namespace records;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string content = fuzz::textOf(data, size);
    fuzz::MemoryStation station;
    station.put("C:\\Lumbrio\\LumbrioINI.dat", content);
    Get_INI(station.app);
    const ProcessValues first = station.app.values;
    for (const std::string &text : {first.Maindir, first.Remotedir, first.timeClockDirectory})
        fuzz::require(text.size() <= 40 && text.find('\0') == std::string::npos);
    fuzz::require(startsWith(versionToolTip(first.config), "INTERNAL VERSION"));
    // Reserved fields keep every byte.
    const std::string kept = first.config.raw(configField(33));
    const std::string_view there = std::string_view(content).substr(
        std::min<std::size_t>(content.size(), configField(33).offset), kept.size());
    fuzz::require(startsWith(kept, there));
    Get_INI(station.app);
    fuzz::require(station.app.values.config == first.config);
    fuzz::require(station.get("C:\\Lumbrio\\LumbrioINI.dat") == content);
    return 0;
}
