#include "roles/application.h"

#include "platform/hardening.h"
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

platform::Installation readInstallation(platform::Disk &disk, const std::string &folder)
{
    std::unique_ptr<platform::DiskFile> file;
    const std::string path = folder + "/installation.ini";
    std::uint64_t size = 0;
    if (!done(disk.open(path, platform::OpenMode::Read, file)) || !done(file->size(size)))
        return {};
    constexpr std::uint64_t kLongest = 1U << 20U;
    std::string text(static_cast<std::size_t>(std::min(size, kLongest)), '\0');
    std::size_t got = 0;
    if (!done(file->readAt(0, text.data(), text.size(), got)))
        return {};
    text.resize(got);
    return platform::parseInstallation(text);
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
    platform::Installation installation;
    platform::QtClock clock;
    platform::QtEventLoop loop;
    platform::Run run;
    platform::Files files;
    platform::QtDialogs dialogs;
    std::unique_ptr<platform::System> system;
    platform::QtPrinters printers;
    platform::Services services;
};

Program::Parts::Parts(const ProgramOptions &options)
    : disk(chosenDisk(options)), drives(*disk, platform::Drives::defaultRoot()),
      installation(readInstallation(*disk, drives.root())), clock(options.clockScale), loop(clock),
      run(loop, clock), files(*disk, drives, run), dialogs(run),
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
    // Opened by the first turn: work done inside an event may leave screens to deleteLater().
    QMetaObject::invokeMethod(
        &application, [&] { firstScreen = openFirstScreen(program); }, Qt::QueuedConnection);
    program.turnUntilEnd();
    firstScreen.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return program.services().run.failed() ? 1 : 0;
}

} // namespace roles
