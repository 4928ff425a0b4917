#include "records/left_overs.h"

#include <set>

namespace records {

namespace {

std::set<std::string> workFolders(const ProcessValues &values)
{
    std::set<std::string> folders = {"C:\\Lumbrio\\"};
    for (const std::string &directory : {values.Maindir, values.Remotedir})
        for (const char *folder : {"", "Data\\", "Data\\ccData\\"})
            folders.insert(directory + folder);
    if (!values.paymentDirectory.empty())
        folders.insert(values.paymentDirectory + "LocalTran\\");
    return folders;
}

} // namespace

platform::Outcome takeRoleLock(App &app)
{
    const platform::ErrorsIgnored ignored(app.run);
    const std::string folder = app.values.Maindir + "Data\\";
    app.files.makeFolder(folder);
    return app.roleLock.take(folder + app.system.executableName() + ".lock");
}

bool holdsRoleLock(const App &app)
{
    return app.roleLock.held();
}

TraceLines clearLeftOvers(App &app)
{
    if (!holdsRoleLock(app))
        return {};
    const platform::ErrorsIgnored ignored(app.run);
    std::vector<std::string> removed = app.printers.removeUnfinished();
    for (const std::string &folder : workFolders(app.values))
        app.files.removeWorkFiles(folder, removed);
    TraceLines lines;
    for (const std::string &name : removed)
        lines.push_back("  LEFT OVER, REMOVED - " + name);
    return lines;
}

} // namespace records
