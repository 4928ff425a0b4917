#include "records/trace.h"

#include "records/delimited.h"
#include "records/lookups.h"

namespace records {

void traceBlock(App &app, const std::string &path, const TraceLines &lines)
{
    const platform::ErrorsIgnored ignored(app.run);
    std::string text;
    for (const std::string &line : lines)
        text += platform::textLine(line);
    app.files.append(path, text);
}

void traceProcess(App &app, const TraceLines &lines)
{
    traceBlock(app, kLastProcessFile, lines);
}

void traceLog(App &app, const TraceLines &lines)
{
    traceBlock(app, kTraceLogFile, lines);
}

void startProcessTrace(App &app)
{
    const platform::ErrorsIgnored ignored(app.run);
    const platform::DateTime now = app.clock.now();
    std::string text = platform::textLine(std::string(59, '='));
    text += platform::textLine("Process Started");
    text += platform::textLine("On " + Format(now, "DDDD MM/DD/YYYY") + " at " +
                               Format(now, "HH:MM ampm"));
    app.files.write(kLastProcessFile, text);
}

void Write_Log(App &app)
{
    const platform::DateTime now = app.clock.now();
    const std::string path =
        app.values.Maindir + "Data\\CCmgrLOGS\\" + Format(now, "MMYYYY") + "MGRlog.txt";
    TraceLines lines;
    for (std::string &line : app.values.ManagerLogBuffer) {
        if (!line.empty())
            lines.push_back(line);
        line.clear();
    }
    traceBlock(app, path, lines);
}

void Write_AsstMgr(App &app, const std::string &activity)
{
    const platform::ErrorsIgnored ignored(app.run);
    const platform::DateTime now = app.clock.now();
    const std::string path =
        app.values.Remotedir + "data\\AsstTrace" + Format(now, "MMYY") + ".dat";
    const std::string line =
        quotedValues({Format(now, "MM/DD/YYYY"), Format(now, "HH:MM ampm"), app.values.managerCode,
                      managerName(app.values, app.values.managerCode), activity,
                      app.values.StationName, "  ", "  ", "     ", "  ", "     ", "     "});
    app.files.appendLocked(path, line);
}

} // namespace records
