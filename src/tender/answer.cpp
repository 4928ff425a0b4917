#include "tender/answer.h"

#include "platform/patience.h"
#include "records/trace.h"
#include "tender/request.h"

namespace tender {

using namespace records;

platform::Outcome removeOldAnswer(App &app)
{
    const std::string path = answerFile(app.values);
    return platform::patiently(app.run, platform::Wait::Answer, [&] {
        bool there = false;
        if (done(app.files.exists(path, there)) && !there)
            return platform::Outcome::Done;
        const platform::Outcome removed = app.files.removeIfThere(path);
        return done(removed) ? removed : app.files.writeFlushed(path, {});
    });
}

platform::Outcome Answer::write(const std::string &content)
{
    const platform::ErrorsIgnored ignored(app.run);
    const platform::Outcome outcome = tryToWrite(content);
    onDisk = done(outcome);
    const platform::Outcome seen = onDisk ? outcome : lookAt(content);
    whole = done(seen);
    if (whole && !onDisk)
        traceProcess(app, {std::string("  ANSWER NOT FLUSHED - ") + platform::textOf(outcome)});
    if (!whole)
        removeRemains(outcome, seen);
    return whole ? platform::Outcome::Done : outcome;
}

platform::Outcome Answer::tryToWrite(const std::string &content)
{
    const std::string path = answerFile(app.values);
    return platform::patiently(app.run, platform::Wait::Answer, [&] {
        const platform::Outcome replaced = app.files.replaceWhole(path, content);
        return done(replaced) || done(lookAt(content)) ? replaced
                                                       : app.files.writeFlushed(path, content);
    });
}

/// Done when the whole answer lies there; NotThere when something else does, or nothing.
platform::Outcome Answer::lookAt(const std::string &content)
{
    std::string there;
    const platform::Outcome outcome = app.files.read(answerFile(app.values), there);
    return done(outcome) && there != content ? platform::Outcome::NotThere : outcome;
}

/// An answer that cannot be read back may be whole, so it stays.
void Answer::removeRemains(platform::Outcome written, platform::Outcome seen)
{
    const std::string path = answerFile(app.values);
    const platform::Outcome removed =
        seen == platform::Outcome::NotThere ? app.files.removeIfThere(path) : seen;
    traceProcess(
        app, {std::string("  ANSWER NOT WRITTEN - ") + platform::textOf(written) + " - old one " +
              (app.files.exists(path) ? platform::textOf(removed) : "removed") + " - " + path});
}

void traceAnswer(App &app)
{
    const CardRecord &CCdata = app.values.CCdata;
    TraceLines lines = {"", "******  Make Respone File For Lumbrio ******", "",
                        "  File Name - " + answerFile(app.values),
                        "  TndrRESULT - " + app.values.TndrRESULT};
    lines.push_back("  CCdata.CCTabAmt  - " + CCdata.raw(CCTabAmt)); // with two blanks
    for (const CardField &field :
         {CApprovalCode, CCaditionalFUNDS, GCbalance, CCNumb, CCtype, HiddenNumb, CCServer, CCTable,
          CCTroutID, CCName, CCstatus, CResponse})
        lines.push_back(std::string("  CCdata.") + field.name + " - " + CCdata.raw(field));
    lines.push_back("  Val(TndrNOpreAUTH) - " + std::to_string(app.values.TndrNOpreAUTH) +
                    "-  0 =False -1=True");
    lines.insert(lines.end(), {"", "******  END Respone File For Lumbrio ******", ""});
    traceLog(app, lines);
}

} // namespace tender
