#include "roles/application.h"

#include "platform/hardening.h"
#include "platform/patience.h"
#include "platform/qt/qt_dialogs.h"
#include "platform/qt/qt_event_loop.h"
#include "platform/qt/qt_printers.h"
#include "platform/qt/screen.h"

#include <QApplication>

#include <algorithm>
#include <utility>

namespace roles {

namespace {

std::unique_ptr<platform::Disk> chosenDisk(const ProgramOptions &options)
{
    std::unique_ptr<platform::Disk> disk = platform::systemDisk();
    return options.wrapDisk ? options.wrapDisk(std::move(disk)) : std::move(disk);
}

platform::Outcome readWhole(platform::DiskFile &file, std::string &text)
{
    constexpr std::uint64_t kLongest = 1U << 20U;
    std::uint64_t size = 0;
    if (const platform::Outcome outcome = file.size(size); !done(outcome))
        return outcome;
    text.resize(static_cast<std::size_t>(std::min(size, kLongest)));
    std::size_t got = 0;
    const platform::Outcome outcome = file.readAt(0, text.data(), text.size(), got);
    text.resize(got);
    return outcome;
}

/// Without the file every setting has its default. A file that cannot be read must not count as
/// missing: the station would print elsewhere and pay with the wrong login.
platform::Installation readInstallation(platform::Disk &disk, platform::Run &run,
                                        const std::string &path)
{
    std::string text;
    const platform::Outcome outcome = platform::patiently(run, platform::Wait::Options, [&] {
        std::unique_ptr<platform::DiskFile> file;
        const platform::Outcome opened = platform::patiently(run, platform::Wait::Lease, [&] {
            return disk.open(path, platform::OpenMode::Read, file);
        });
        return done(opened) ? readWhole(*file, text) : opened;
    });
    platform::Installation installation;
    if (done(outcome))
        installation = platform::parseInstallation(text);
    else if (outcome != platform::Outcome::NotThere)
        installation.unreadable = std::string("Reading failed: ") + textOf(outcome) + "\n" + path;
    return installation;
}

platform::Maker makerOf(platform::System &system)
{
    return {system.computerName(), system.executableName()};
}

} // namespace

struct Program::Parts {
    explicit Parts(const ProgramOptions &options);

    std::unique_ptr<platform::Disk> disk;
    platform::Drives drives;
    platform::QtClock clock;
    platform::QtEventLoop loop;
    platform::Run run;
    platform::Installation installation;
    platform::Files files;
    platform::QtDialogs dialogs;
    std::unique_ptr<platform::System> system;
    platform::QtPrinters printers;
    platform::Services services;
};

Program::Parts::Parts(const ProgramOptions &options)
    : disk(chosenDisk(options)), drives(*disk, platform::Drives::defaultRoot()),
      clock(options.clockScale), loop(clock), run(loop, clock),
      installation(readInstallation(*disk, run, drives.root() + "/installation.ini")),
      files(*disk, drives, run), dialogs(run),
      system(platform::runningSystem(drives, installation)),
      printers(*disk, installation, drives.root(), makerOf(*system)),
      services{run, files, clock, dialogs, *system, printers, installation}
{
    files.signWorkFiles(makerOf(*system));
    run.reportFailure = [this](const std::string &text) { dialogs.systemMessage(text); };
}

Program::Program(const ProgramOptions &options) : parts(std::make_unique<Parts>(options)) {}

Program::~Program() = default;

platform::Services &Program::services()
{
    return parts->services;
}

bool Program::hasInstallation()
{
    const std::string &unreadable = parts->installation.unreadable;
    if (unreadable.empty())
        return true;
    parts->run.consequence = "It says how this station pays and prints. Nothing has been started. "
                             "See that the file can be read, then start again.";
    parts->run.fail(unreadable);
    return false;
}

void Program::turnUntilEnd()
{
    while (!parts->run.ending())
        parts->run.yield();
}

int runProgram(int argc, char **argv,
               const std::function<std::shared_ptr<void>(Program &)> &openFirstScreen,
               const ProgramOptions &options)
{
    platform::hardenProcess();
    QApplication::setStyle(QStringLiteral("fusion"));
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    platform::applyTheme(application);
    Program program(options);
    std::shared_ptr<void> firstScreen;
    // Opened by the first turn, because work inside an event may leave screens to deleteLater().
    QMetaObject::invokeMethod(
        &application, [&] { firstScreen = openFirstScreen(program); }, Qt::QueuedConnection);
    program.turnUntilEnd();
    firstScreen.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return program.services().run.failed() ? 1 : 0;
}

} // namespace roles
