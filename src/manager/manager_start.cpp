#include "manager/manager_start.h"

#include "records/backups.h"
#include "records/configuration.h"
#include "records/delimited.h"
#include "records/flag_files.h"
#include "records/kept_records.h"
#include "records/left_overs.h"
#include "records/trace.h"

#include <algorithm>
#include <chrono>
#include <set>
#include <utility>

namespace manager {

using namespace records;

namespace {

constexpr std::uint32_t kRouteDelay = 100; // ms
constexpr int kMonthsOfLogs = 7;
constexpr int kDaysOfAnswers = 2;

/// The day (YYYYMMDD) so many months and days before `today`. A month without that day gives its
/// last one.
int dayBefore(const platform::DateTime &today, int months, int days)
{
    using namespace std::chrono;
    const year_month month = year(today.year) / today.month - std::chrono::months(months);
    year_month_day date = month / today.day;
    if (!date.ok())
        date = month / last;
    date = sys_days(date) - std::chrono::days(days);
    return (static_cast<int>(date.year()) * 100 +
            static_cast<int>(static_cast<unsigned>(date.month()))) *
               100 +
           static_cast<int>(static_cast<unsigned>(date.day()));
}

std::set<std::string> directories(const ProcessValues &values)
{
    return {values.Remotedir, values.Maindir};
}

void log(App &app, const TraceLines &lines)
{
    if (lines.empty())
        return;
    std::copy(lines.begin(), lines.end(), app.values.ManagerLogBuffer.begin());
    Write_Log(app);
}

} // namespace

ManagerStart::ManagerStart(App &theApp, ManagerStartView &theView, ManagerRoutes theRoutes)
    : app(theApp), view(theView), routes(std::move(theRoutes)), inUse(theApp),
      routeTimer(app.clock, [this] { goToList(); })
{
}

void ManagerStart::Form_Load()
{
    const platform::ErrorsIgnored ignored(app.run);
    app.run.consequence =
        "What was saved before stays saved; look at the last entry that you "
        "changed. Check the connection to the file server, then start the program "
        "again.";
    Get_INI(app);
    fillEmptyDirectories(app);
    app.values.StationName = app.system.computerName();
    fields.version = kProgramVersion;
    // Before the first lines of the log: at the very first start it has no folder.
    ensureFolders();
    const platform::DateTime now = app.clock.now();
    log(app, {std::string(39, '='), "Program Startup on  " + Format(now, "DDDD MM/DD/YYYY"),
              "                AT  " + Format(now, "HH:MM ampm"), kProgramVersion, " "});
    takeRoleLock(app);
    for (const std::string &line : clearLeftOvers(app))
        log(app, {line});
    inUse.claim();
    if (app.values.lookOnly)
        tell(app.values.inUseBy + " - looking only");
    else
        storeKept();
    enableChoices(true);
}

/// Stores charged cards of this station that could not be stored before.
void ManagerStart::storeKept()
{
    const KeptRecords kept = storeKeptRecords(app);
    TraceLines lines;
    if (kept.stored > 0)
        lines.push_back("KEPT RECORDS STORED  " + std::to_string(kept.stored));
    const std::size_t waiting = kept.waiting.size() + static_cast<std::size_t>(kept.unreadable);
    if (waiting > 0)
        lines.push_back("KEPT RECORDS WAITING  " + std::to_string(waiting));
    log(app, lines);
    if (waiting == 0)
        return;
    platform::Notice notice{"NOT IN THE CARD FILE",
                            "Charged cards of this station could not be stored in the card file "
                            "yet. They are kept at the station and are not in the list. Make sure "
                            "that the file server can be reached, then start this program again.",
                            {},
                            app.values.Maindir + "Data\\"};
    constexpr std::size_t kShown = 4;
    for (std::size_t i = 0; i < std::min(kShown, kept.waiting.size()); ++i) {
        const CardRecord &record = kept.waiting[i];
        notice.facts.emplace_back("Receipt " + record.text(CCReceipt),
                                  Currency(record.text(CCTabAmt)) + "  " +
                                      record.text(CApprovalCode));
    }
    if (waiting > notice.facts.size())
        notice.facts.emplace_back("And more", std::to_string(waiting - notice.facts.size()));
    app.dialogs.notice(notice);
}

void ManagerStart::enableChoices(bool on)
{
    fields.choicesEnabled = on;
    view.refresh(fields);
}

/// The log is in `Maindir` and backups are in both, so both need those folders.
void ManagerStart::ensureFolders()
{
    for (const std::string &directory : directories(app.values)) {
        for (const char *folder : {"data", "data\\ccData", "data\\CCmgrLOGS"})
            app.files.makeFolder(directory + folder);
    }
    for (const char *folder : {"data\\ccDataTMP", "data\\ccDataTMP2"})
        app.files.makeFolder(app.values.Remotedir + folder);
}

void ManagerStart::tell(const std::string &status)
{
    fields.status = status;
    view.refresh(fields);
    view.paintNow();
}

void ManagerStart::Clean_Logs()
{
    tell("Checking Credit Card Batch Logs");
    const platform::DateTime today = app.clock.now();
    const int logsBefore = dayBefore(today, kMonthsOfLogs, 0);
    const int answersBefore = dayBefore(today, 0, kDaysOfAnswers);
    long logs = 0;
    for (const std::string &directory : directories(app.values))
        logs += deleteOld(directory + "data\\CCmgrLOGS", "", logsBefore);
    tell(std::to_string(logs) + " CC LOG Files");
    const std::string &payment = app.values.paymentDirectory;
    if (payment.empty())
        return;
    // Kept: answers are in "LocalTran", so none of them is ever deleted.
    tell(std::to_string(deleteOld(payment + "LocalTrans", ".xca", answersBefore)) +
         " CC OLD ANSWER Files");
    tell(std::to_string(deleteOld(payment + "History", ".bak", answersBefore)) +
         " CC OLD HISTORY Files");
}

/// Deletes the files with this ending that were last written before a day (YYYYMMDD).
long ManagerStart::deleteOld(const std::string &folder, const std::string &ending, int before)
{
    long deleted = 0;
    const std::string inFolder = folder + "\\";
    for (const std::string &name : app.files.list(folder)) {
        const std::string path = inFolder + name;
        platform::DateTime when;
        if (toLower(Right(name, ending.size())) == ending && done(app.files.modified(path, when)) &&
            dayNumber(when) < before && done(app.files.remove(path)))
            ++deleted;
    }
    return deleted;
}

void ManagerStart::backUp(const std::string &choice, const TraceLines &behind)
{
    const Backup backup = backUpPending(app, kBackup);
    TraceLines lines = {"-", choice};
    if (backup.copies > 0) {
        lines.push_back("A backup of the data file was made at1  " +
                        Format(backup.when, "HH:MM ampm"));
        lines.push_back("File Name - " + backup.stamp);
    }
    lines.insert(lines.end(), backup.failures.begin(), backup.failures.end());
    lines.emplace_back("-");
    lines.insert(lines.end(), behind.begin(), behind.end());
    log(app, lines);
}

void ManagerStart::startAfterHours()
{
    if (!fields.choicesEnabled)
        return;
    enableChoices(false);
    const platform::ErrorsIgnored ignored(app.run);
    Get_CCini(app);
    if (!app.values.lookOnly) {
        ensureFolders();
        Clean_Logs();
    }
    backUp("USER CHOSE AFTER Business Hours  ", {"XchargePend is loading now"});
    routeTimer.setInterval(kRouteDelay);
}

void ManagerStart::goToList()
{
    routeTimer.setInterval(0);
    bool goOn = false;
    {
        const platform::ErrorsIgnored ignored(app.run);
        log(app, backUpPending(app, kBackup).failures);
        goOn = app.values.lookOnly || !app.files.exists(stationMarker(app.values)) || overrides();
        if (app.files.exists(commandLineFlag(app.values)))
            app.values.X1009 = true;
    }
    enableChoices(true);
    if (goOn)
        routes.openList();
}

/// A station that crashed leaves its marker; only a person can know that.
bool ManagerStart::overrides()
{
    std::string content;
    app.files.read(stationMarker(app.values), content);
    DelimitedReader values(content);
    std::string who;
    for (const char *heading : {"Start Time", "Server Number", "Server Name", "POS Station"})
        who += std::string(heading) + ": " + values.next() + "\n";
    if (!isOverridden(
            app, "Data File is in Use\n\nA Server is entering their tips to their credit card "
                 "transactions at this time. Try again later.\n\n" +
                     who +
                     "\nIf you are absolutely positive that no other user is using this file you "
                     "may override this message and continue to the batch out screen: type "
                     "OVERRIDE."))
        return false;
    log(app, {"-", "USER CHOSE OVERRIDE  ", "-"});
    app.files.removeIfThere(stationMarker(app.values));
    return true;
}

void ManagerStart::quit()
{
    if (!fields.choicesEnabled)
        return;
    enableChoices(false);
    {
        const platform::ErrorsIgnored ignored(app.run);
        backUp("USER CHOSE QUIT  ", {"Program ended normally", "-", std::string(39, '=')});
    }
    app.end();
}

} // namespace manager
