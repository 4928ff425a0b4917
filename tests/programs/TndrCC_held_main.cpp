// TndrCC for script/screens: the shipped tender, but it stops (SIGSTOP) when it has printed and
// answered, just before it ends. Otherwise nobody could take a picture of an approval.
#include "roles/tender_role.h"

#include "platform/disk.h"

#include <csignal>

namespace {

class HeldDisk : public platform::Disk {
public:
    using Outcome = platform::Outcome;

    explicit HeldDisk(std::unique_ptr<Disk> theDisk) : disk(std::move(theDisk)) {}

    Outcome open(const std::string &path, platform::OpenMode mode,
                 std::unique_ptr<platform::DiskFile> &file) override
    {
        if (path.ends_with("/TRACELOG.TXT")) // the first thing behind the answer
            std::raise(SIGSTOP);
        return disk->open(path, mode, file);
    }
    bool isFile(const std::string &path) override { return disk->isFile(path); }
    bool isDirectory(const std::string &path) override { return disk->isDirectory(path); }
    Outcome remove(const std::string &path) override { return disk->remove(path); }
    Outcome rename(const std::string &from, const std::string &to) override
    {
        return disk->rename(from, to);
    }
    Outcome makeDirectory(const std::string &path) override { return disk->makeDirectory(path); }
    Outcome list(const std::string &directory, std::vector<std::string> &names) override
    {
        return disk->list(directory, names);
    }
    Outcome flushDirectory(const std::string &directory) override
    {
        return disk->flushDirectory(directory);
    }

private:
    std::unique_ptr<Disk> disk;
};

} // namespace

int main(int argc, char **argv)
{
    roles::ProgramOptions options;
    options.wrapDisk = [](std::unique_ptr<platform::Disk> disk) {
        return std::make_unique<HeldDisk>(std::move(disk));
    };
    return roles::runProgram(argc, argv, roles::openTender, options);
}
