#include "records/backups.h"

#include "records/text.h"

namespace records {

using platform::Outcome;

Backup backUpPending(App &app, const std::string &name)
{
    const ProcessValues &values = app.values;
    const platform::DateTime now = app.clock.now();
    Backup backup{now, Format(now, "MMDDYYYYHHMMSS"), 0, {}};
    const std::string source = values.Remotedir + "CCpending.dat";
    if (values.lookOnly || !app.files.exists(source))
        return backup;
    std::vector<std::string> directories = {values.Remotedir};
    if (values.Maindir != values.Remotedir)
        directories.push_back(values.Maindir);
    for (const std::string &directory : directories) {
        std::string copy = directory + "data\\CCdata\\";
        copy.append(backup.stamp).append(name);
        const Outcome outcome = app.files.copy(source, copy);
        if (done(outcome))
            ++backup.copies;
        else
            backup.failures.push_back("  BACKUP NOT MADE - " + std::string(textOf(outcome)) +
                                      " - " + copy);
    }
    return backup;
}

} // namespace records
