#include "platform/qt/qt_printers.h"

#include "platform/qt/qt_text.h"

#include <QLibrary>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProcess>

#include <algorithm>
#include <cmath>
#include <utility>

namespace platform {

namespace {

std::string spoolPath(const std::string &root, const SpoolPrinter &printer)
{
    QString folder = toQt(printer.folder);
    folder.replace(u'\\', u'/');
    return root + "/" + folder.toStdString();
}

/// The printer's own paper with its smallest margins; on a roll, paper as long as the job where
/// the driver can. Gives the printable height in dots, 0 for such a roll.
double choosePaper(QPrinter &printer, const QPrinterInfo &info, const PrintJob &job,
                   Banners &banners, CutStyle cutStyle)
{
    QPageSize paper = info.defaultPageSize();
    if (!paper.isValid())
        paper = printer.pageLayout().pageSize();
    const bool roll = paper.size(QPageSize::Millimeter).width() <= kWidestRoll + 2;
    printer.setPageSize(paper);
    printer.setPageOrientation(job.landscape && !roll ? QPageLayout::Landscape
                                                      : QPageLayout::Portrait);
    if (!roll)
        return printer.height();

    const QMarginsF least = printer.pageLayout().minimumMargins();
    printer.setPageMargins(least, QPageLayout::Point);
    if (!info.supportsCustomPageSizes())
        return printer.height();
    PrintPainter ruler(printer, banners, printer.width(), 0, cutStyle);
    const double inches = ruler.measure(job) / printer.logicalDpiY();
    const double points = inches * 72 + least.top() + least.bottom();
    const QSizeF whole(paper.size(QPageSize::Point).width(), std::ceil(points));
    printer.setPageSize(QPageSize(whole, QPageSize::Point, {}, QPageSize::ExactMatch));
    return 0;
}

#ifdef Q_OS_WIN
Outcome spoolerTook()
{
    return Outcome::Done; // QPrinter's state tells
}
#else
/// What the spooler said of the job just sent to it, which QPrinter does not report: a queue that
/// takes no jobs, a full disk.
Outcome spoolerTook()
{
    constexpr int kFirstRefusal = 0x100;
    using LastError = int (*)();
    static const auto lastError =
        reinterpret_cast<LastError>(QLibrary(QStringLiteral("cups"), 2).resolve("cupsLastError"));
    const int status = lastError != nullptr ? lastError() : 0;
    return status >= 0 && status < kFirstRefusal ? Outcome::Done : Outcome::Broken;
}
#endif

Outcome paintOn(const QPrinterInfo &info, const PrintJob &job, Banners &banners, CutStyle cutStyle)
{
    QPrinter printer(info, QPrinter::HighResolution);
    printer.setDocName(toQt(job.title));
    const double pageHeight = choosePaper(printer, info, job, banners, cutStyle);
    QPainter onto;
    if (!onto.begin(&printer))
        return Outcome::Broken;
    PrintPainter painter(printer, banners, printer.width(), pageHeight, cutStyle);
    painter.paint(job, onto, [&printer] { printer.newPage(); });
    return onto.end() && printer.printerState() != QPrinter::Error ? spoolerTook()
                                                                   : Outcome::Broken;
}

#ifndef Q_OS_WIN
bool prints(const PrintJob &job)
{
    return std::any_of(job.operations.begin(), job.operations.end(), [](const auto &operation) {
        return operation.kind == PrintOperation::Kind::Line ||
               operation.kind == PrintOperation::Kind::Picture;
    });
}

/// Bytes for the knife as a job of their own. Waits until the spooler has them, so that the next
/// slip cannot overtake the cut; whatever goes wrong here is no failure of the slip before it.
void sendRaw(const QString &printerName, const std::string &bytes)
{
    constexpr int kLongestWait = 2000;
    if (bytes.empty())
        return;
    QProcess spooler;
    spooler.start(QStringLiteral("lp"),
                  {QStringLiteral("-d"), printerName, QStringLiteral("-o"), QStringLiteral("raw")});
    spooler.write(bytes.data(), static_cast<qint64>(bytes.size()));
    spooler.closeWriteChannel();
    spooler.waitForFinished(kLongestWait);
}
#endif

} // namespace

QtPrinters::QtPrinters(Disk &disk, const Installation &theInstallation,
                       const std::string &spoolRoot, const Maker &maker)
    : installation(theInstallation)
{
    for (const SpoolPrinter &printer : installation.spoolPrinters)
        spools.push_back({printer, SpoolFolder(disk, spoolPath(spoolRoot, printer), maker)});
}

QtPrinters::~QtPrinters() = default;

std::vector<std::string> QtPrinters::removeUnfinished()
{
    std::vector<std::string> removed;
    for (Spool &spool : spools)
        spool.folder.removeUnfinished(removed);
    return removed;
}

const QStringList &QtPrinters::systemPrinters()
{
    if (!asked)
        asked = QPrinterInfo::availablePrinterNames();
    return *asked;
}

std::vector<std::string> QtPrinters::names()
{
    std::vector<std::string> all;
    for (const Spool &spool : spools)
        all.push_back(spool.printer.name);
    for (const QString &name : systemPrinters())
        all.push_back(fromQt(name));
    return all;
}

std::string QtPrinters::defaultName()
{
    for (const Spool &spool : spools) {
        if (spool.printer.isDefault)
            return spool.printer.name;
    }
    const QString systems = QPrinterInfo::defaultPrinterName();
    if (!systems.isEmpty())
        return fromQt(systems);
    const std::vector<std::string> all = names();
    return all.empty() ? std::string() : all.front();
}

int QtPrinters::paperWidth(const std::string &printerName)
{
    for (const Spool &spool : spools) {
        if (spool.printer.name == printerName)
            return qRound(spool.printer.widthMm);
    }
    const QPageSize paper = QPrinterInfo::printerInfo(toQt(printerName)).defaultPageSize();
    return paper.isValid() ? qRound(paper.size(QPageSize::Millimeter).width()) : 0;
}

Outcome QtPrinters::submit(const std::string &printerName, const PrintJob &job)
{
    for (Spool &spool : spools) {
        const SpoolPrinter &printer = spool.printer;
        if (printer.name == printerName)
            return spool.folder.put(
                paintPdf(job, banners, printer.widthMm, printer.heightMm).toStdString(),
                plainText(job));
    }
    for (const QString &name : systemPrinters()) {
        if (fromQt(name) == printerName)
            return submitToSystem(name, job);
    }
    return Outcome::NotThere;
}

Outcome QtPrinters::submitToSystem(const QString &printerName, const PrintJob &job)
{
    const QPrinterInfo info = QPrinterInfo::printerInfo(printerName);
    if (info.isNull())
        return Outcome::NotThere;
#ifdef Q_OS_WIN
    return paintOn(info, job, banners, CutStyle::DriverFont);
#else
    Outcome outcome = Outcome::Done;
    for (const PartOfJob &part : splitAtCuts(job)) {
        if (prints(part.job) && done(outcome))
            outcome = paintOn(info, part.job, banners, CutStyle::Mark);
        if (part.cutBehind && done(outcome))
            sendRaw(printerName, installation.cutBytes);
    }
    return outcome;
#endif
}

void QtPrinters::warmUp(const PrintFont &font)
{
    systemPrinters();
    for (Spool &spool : spools)
        spool.folder.warmUp();
    // A first PDF loads the faces of a slip, in both weights, and the banners.
    PrintJob job;
    PrintFont bold = font;
    bold.bold = true;
    using Kind = PrintOperation::Kind;
    for (const PrintFont &face : {font, bold}) {
        job.operations.push_back({Kind::Font, {}, face});
        job.operations.push_back({Kind::Line, "0123456789 Aa", {}});
    }
    for (const char *name :
         {"Picture1", "Picture2", "Picture3", "Picture4", "Picture5", "Picture8"})
        job.operations.push_back({Kind::Picture, name, {}});
    paintPdf(job, banners, kWidestRoll, 0);
}

std::vector<PartOfJob> splitAtCuts(const PrintJob &job)
{
    std::vector<PartOfJob> parts(1);
    PrintOperation font{PrintOperation::Kind::Font, {}, {}};
    PrintOperation tabs{PrintOperation::Kind::Tabs, {}, {}};
    for (PartOfJob *part = &parts.back(); const PrintOperation &operation : job.operations) {
        part->job.title = job.title;
        if (operation.kind == PrintOperation::Kind::Cut) {
            part->cutBehind = true;
            part = &parts.emplace_back();
            part->job.operations = {font, tabs};
            continue;
        }
        if (operation.kind == PrintOperation::Kind::Font)
            font = operation;
        if (operation.kind == PrintOperation::Kind::Tabs)
            tabs = operation;
        part->job.operations.push_back(operation);
    }
    return parts;
}

} // namespace platform
