#include "manager/manager_in_use.h"

#include "records/trace.h"

#include <algorithm>

namespace manager {

using namespace records;

namespace {

constexpr std::uint32_t kAgainEvery = 30'000; // ms
constexpr std::size_t kLongestHolder = 80;    // characters; other programs write the file too

} // namespace

bool isOverridden(App &app, const std::string &text)
{
    return toLower(Trim(app.dialogs.input("In Use", text).value_or(""))) == "override";
}

ManagerInUse::ManagerInUse(App &theApp)
    : app(theApp), file(app.files), again(app.clock, [this] {
          if (done(take()))
              again.setInterval(0);
      })
{
}

void ManagerInUse::claim()
{
    text = app.values.StationName + " since " + Format(app.clock.now(), "HH:MM");
    const platform::Outcome taken = take();
    if (taken == platform::Outcome::Locked)
        ask();
    else if (!done(taken))
        log("  NOT MARKED AS IN USE - " + std::string(textOf(taken)) + " - " + path());
}

void ManagerInUse::ask()
{
    const std::string inUse = "In use by " + holder();
    const bool goesOn = isOverridden(
        app, inUse + "\n\nAnother manager's program is working on these card files. Press OK to "
                     "look only: every command that changes something stays grey, and nothing is "
                     "finished when you leave.\n\nIf you are absolutely positive that nobody is "
                     "working there you may go on all the same: type OVERRIDE.");
    if (done(take())) // the other one has ended meanwhile
        return;
    log(inUse + (goesOn ? " - USER CHOSE OVERRIDE" : " - LOOKING ONLY"));
    if (goesOn)
        return again.setInterval(kAgainEvery);
    app.values.lookOnly = true;
    app.values.inUseBy = inUse;
}

platform::Outcome ManagerInUse::take()
{
    return file.take(path(), platform::textLine(text));
}

std::string ManagerInUse::holder() const
{
    const platform::ErrorsIgnored ignored(app.run);
    std::string who;
    app.files.read(path(), who, kLongestHolder);
    std::replace_if(
        who.begin(), who.end(), [](char c) { return c >= '\0' && c < ' '; }, ' ');
    who = Trim(who);
    return who.empty() ? "another station" : who;
}

void ManagerInUse::log(const std::string &line)
{
    app.values.ManagerLogBuffer = {"-", line, "-"};
    Write_Log(app);
}

std::string ManagerInUse::path() const
{
    return app.values.Remotedir + "Data\\ManagerInUse.lock";
}

} // namespace manager
