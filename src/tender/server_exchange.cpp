#include "tender/server_exchange.h"

#include "platform/hardening.h"
#include "platform/patience.h"
#include "records/exchange_file.h"
#include "records/trace.h"
#include "tender/evidence.h"
#include "tender/notices.h"

namespace tender {

using namespace records;

bool ServerAnswer::unreadable() const
{
    return !done(outcome) || (longer && !namesOutcome(text));
}

const char *ServerAnswer::reason() const
{
    return longer ? "longer than an answer can be" : platform::textOf(outcome);
}

platform::Outcome ServerExchange::place(const LocalRequest &request)
{
    files = localFiles(app.values, app.clock.now());
    if (const platform::Outcome free = makeWayForAnswer(); !done(free))
        return free;
    std::string line = requestLine(request);
    platform::Outcome outcome = app.files.write(files.work, line);
    platform::wipe(line);
    if (done(outcome)) {
        app.run.consequence = kMayBeCharged;
        outcome = app.files.copy(files.work, files.request);
        bool there = false;
        // A request that was copied may be taken already: whether it lies there says nothing.
        if (!done(outcome) && (!done(app.files.exists(files.request, there)) || there))
            outcome = platform::Outcome::Done;
    }
    app.files.removeIfThere(files.work);
    return outcome;
}

/// After the clock was set back, the answer of an earlier card may have this name. It would be
/// taken for this card's.
platform::Outcome ServerExchange::makeWayForAnswer()
{
    clearResult(app, files.answer);
    platform::Found found = platform::Found::Nothing;
    const platform::Outcome looked = app.files.look(files.answer, found);
    return done(looked) && found != platform::Found::Nothing ? platform::Outcome::Denied : looked;
}

bool ServerExchange::withdraw()
{
    const platform::ErrorsIgnored ignored(app.run);
    if (!begun())
        return true;
    const bool request = remove(files.request);
    const bool work = remove(files.work);
    return request && work;
}

bool ServerExchange::withdrawRequest()
{
    const platform::ErrorsIgnored ignored(app.run);
    return !begun() || remove(files.request);
}

ServerAnswer ServerExchange::readAnswer()
{
    ExchangeFile file;
    platform::patiently(app.run, platform::Wait::Result, [&] {
        file = readExchange(app, files.answer);
        // An answer that says nothing may be half written.
        return done(file.outcome) && !namesOutcome(answerText(file.text))
                   ? platform::Outcome::NotThere
                   : file.outcome;
    });
    return {file.outcome, file.longer, answerText(file.text)};
}

void ServerExchange::removeAnswer(std::string_view answer)
{
    if (namesOutcome(answer))
        remove(files.answer);
    else
        clearResult(app, files.answer);
}

void ServerExchange::putLateAnswerAside()
{
    if (begun())
        clearResult(app, files.answer);
}

/// False when the file is still there, or may be there.
bool ServerExchange::remove(const std::string &file)
{
    const platform::Outcome removed = app.files.removeIfThere(file);
    bool there = true;
    if (done(removed) || (done(app.files.exists(file, there)) && !there))
        return true;
    traceProcess(app, {"  NOT DELETED - " + std::string(platform::textOf(removed)) + " - " + file});
    return false;
}

} // namespace tender
