#include "simulator/result_file.h"

#include "platform/drives.h"
#include "simulator/process.h"

#include <memory>

namespace simulator {

namespace {

constexpr int kRestAfterMilliseconds = 400;

bool writeWhole(platform::Disk &disk, const std::string &path, const std::string &content)
{
    const std::string beside = path + ".part";
    std::unique_ptr<platform::DiskFile> file;
    if (!done(disk.open(beside, platform::OpenMode::CreateEmpty, file)) ||
        !done(file->writeAt(0, content)))
        return false;
    file.reset();
    return done(disk.rename(beside, path));
}

bool writeInPlace(platform::Disk &disk, const std::string &path, const PaymentOutcome &outcome)
{
    const std::string_view content = outcome.content;
    std::unique_ptr<platform::DiskFile> file;
    if (!done(disk.open(path, platform::OpenMode::CreateEmpty, file)) ||
        !done(file->writeAt(0, content.substr(0, outcome.firstPart))))
        return false;
    if (outcome.delivery == Delivery::FirstPart)
        return true;
    pause(kRestAfterMilliseconds);
    return done(file->writeAt(outcome.firstPart, content.substr(outcome.firstPart)));
}

} // namespace

bool deliver(const PaymentOutcome &outcome, const std::string &path)
{
    if (outcome.waitSeconds > 0)
        pause(outcome.waitSeconds * 1000);
    if (outcome.delivery == Delivery::None)
        return true;
    const auto disk = platform::systemDisk();
    if (outcome.delivery == Delivery::Whole)
        return writeWhole(*disk, path, outcome.content);
    return writeInPlace(*disk, path, outcome);
}

std::string resultPath(const PaymentRequest &request)
{
    const auto disk = platform::systemDisk();
    return platform::Drives(*disk, platform::Drives::defaultRoot()).resolve(request.resultFile);
}

void logStart(const std::string &programPath, const PaymentRequest &request,
              std::string_view ending)
{
    const std::size_t slash = programPath.rfind('/');
    if (slash == std::string::npos)
        return;
    const auto disk = platform::systemDisk();
    std::unique_ptr<platform::DiskFile> file;
    const std::string log = programPath.substr(0, slash) + "/sim_xcharge.log";
    if (!done(disk->open(log, platform::OpenMode::Append, file)))
        return;
    std::uint64_t at = 0;
    file->append(request.transactionType + " " + request.amount + " receipt=" + request.receipt +
                     " clerk=" + request.clerk + (request.partialSupport ? " partial" : "") + ": " +
                     std::string(ending) + "\n",
                 at);
}

} // namespace simulator
