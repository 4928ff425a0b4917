// QtPrinters: the installation's spool printers and the system's printers. A spool printer writes
// each job as NNNN.pdf and NNNN.txt into a folder; the others get it through their driver.
#pragma once

#include "platform/installation.h"
#include "platform/printers.h"
#include "platform/qt/print_painter.h"
#include "platform/qt/spool_folder.h"

#include <QStringList>

#include <optional>

namespace platform {

class QtPrinters : public Printers {
public:
    /// `spoolRoot`: the real folder below which the folders of the spool printers lie. The system
    /// is not asked for its printers before they are needed.
    /// `maker` signs what is spooled.
    QtPrinters(Disk &disk, const Installation &theInstallation, const std::string &spoolRoot,
               const Maker &maker);
    ~QtPrinters() override;

    std::vector<std::string> names() override;
    std::string defaultName() override;
    int paperWidth(const std::string &printerName) override;
    Outcome submit(const std::string &printerName, const PrintJob &job) override;
    void warmUp(const PrintFont &font) override;
    std::vector<std::string> removeUnfinished() override;

private:
    struct Spool {
        SpoolPrinter printer;
        SpoolFolder folder;
    };

    const QStringList &systemPrinters();
    Outcome submitToSystem(const QString &printerName, const PrintJob &job);

    const Installation &installation;
    Banners banners;
    std::vector<Spool> spools;
    std::optional<QStringList> asked;
};

/// The parts of a job that end with a cut, for printers that are cut between two jobs; fonts and
/// tabs go on from part to part. Without a cut there is one part. A part of blank paper only
/// has no operations that print.
struct PartOfJob {
    PrintJob job;
    bool cutBehind = false;
};
std::vector<PartOfJob> splitAtCuts(const PrintJob &job);

} // namespace platform
