#include "simulator/sandbox.h"

#include "records/delimited.h"
#include "records/employee_record.h"
#include "records/lumbrio_config.h"

#include <filesystem>
#include <system_error>

namespace simulator {

namespace {

namespace fs = std::filesystem;

const std::string kMain = kSandboxMaindir;
const std::string kRemote = kSandboxRemotedir;
constexpr const char *kModeFile = "X1009Version.dat";

// The folders that no program creates itself.
const char *const kFolders[] = {
    "C:\\Lumbrio\\Data\\CCmgrLOGS",
    "C:\\Lumbrio\\Data\\CCdata",
    "C:\\Program Files\\X-charge\\LocalTran",
    "F:\\Lumbrio\\Data\\CCmgrLOGS",
    "F:\\Lumbrio\\Data\\ccData",
    "F:\\Lumbrio\\ini\\3",
};

// The folder and those to it.
bool makeFolders(platform::Files &files, std::string_view path)
{
    for (std::size_t end = path.find('\\'); end != std::string_view::npos;
         end = path.find('\\', end + 1))
        if (!done(files.makeFolder(path.substr(0, end + 1))))
            return false;
    return done(files.makeFolder(path));
}

bool write(platform::Files &files, const std::string &path, const std::string &content)
{
    return done(files.write(path, content));
}

/// Replaces an existing link. False for a real program, which stays.
bool linkProgram(platform::Files &files, const char *place, const std::string &program)
{
    const fs::path link = files.realPath(place);
    std::error_code error;
    if (fs::is_symlink(link, error))
        fs::remove(link, error);
    fs::create_symlink(program, link, error);
    return !error;
}

bool writeInstallation(platform::Files &files, const std::string &drivesFolder)
{
    std::unique_ptr<platform::DiskFile> file;
    const std::string path = drivesFolder + "/installation.ini";
    platform::Outcome outcome = files.rawDisk().open(path, platform::OpenMode::CreateEmpty, file);
    if (done(outcome))
        outcome = file->writeAt(0, installationFile());
    return done(files.checked("Writing", path, outcome));
}

} // namespace

std::string configurationFile(const RestaurantOptions &options)
{
    using namespace records;
    LumbrioConfig config;
    for (const ConfigField &field : kConfigFields)
        config.set(field, "");
    config.set(kBusinessName, "The Demo Kitchen");
    config.set(kAddressLine1, "12 Example Street");
    config.set(kAddressLine2, "Sampleton   555-010-0142");
    config.set(kBusinessLine4, "Open every evening");
    config.set(kMaindir, kSandboxMaindir);
    config.set(kRemotedir, kSandboxRemotedir);
    config.set(kTimeClockDirectory, kSandboxRemotedir);
    config.set(kReceiptPrinterName, options.receiptPrinter);
    config.set(kSlipFontFamily, options.fontFamily);
    config.set(kSlipFontSize, options.fontSize);
    config.set(kReceiptAutocut, options.autocut);
    config.set(kGratuityPercent, options.gratuityPercent);
    config.set(kOwnerCode, "1234");
    return std::string(config.view());
}

std::string cardOptionsFile(std::string_view printTipLine, std::string_view noPartialSupport,
                            std::string_view preApproveTip)
{
    std::string content;
    for (const std::string_view line :
         {std::string_view("Xcharge.exe"), std::string_view("c:\\Program Files\\X-Charge\\"),
          std::string_view("-1"), std::string_view("-1"), std::string_view("-1"),
          std::string_view("-1"), std::string_view("-1"), printTipLine, noPartialSupport,
          preApproveTip})
        content += records::quotedLine(line);
    return content;
}

std::string employeeFile()
{
    using namespace records;
    std::string content;
    for (const SandboxEmployee &employee : kSandboxEmployees) {
        EmployeeRecord record;
        for (const EmployeeField &field : kEmployeeFields)
            record.set(field, "");
        record.set(kEmployeeNumber, employee.number);
        record.set(kEmployeeFields[1], employee.number);
        record.set(kEmployeeName, employee.name);
        content += record.view();
    }
    return content;
}

std::string managerFile()
{
    // The first line is never found by its card number, so it names nobody.
    return records::quotedValues({"0000000000", "Not Assigned", "01/01/2001"}) +
           records::quotedValues({"5550001001", "Rosemary Field", "12/31/2049"}) +
           records::quotedValues({"5550001002", "Basil Rivers", "12/31/2049"}) +
           records::quotedValues({"5550001003", "Olive Hartwood", "06/30/2019"});
}

std::string installationFile()
{
    return "; What is left to this place: printers, login, addresses. Every key has a default.\r\n"
           "[printer.1]\r\n"
           "name = Receipt TM-88\r\n"
           "width_mm = 80\r\n"
           "default = yes\r\n"
           "folder = spool/receipt\r\n"
           "[printer.2]\r\n"
           "name = VENDOR Letter  ; a name that begins with VENDOR takes slips and reports from "
           "templates\r\n"
           "width_mm = 216\r\n"
           "height_mm = 279\r\n"
           "folder = spool/letter\r\n"
           "[connection]\r\n"
           "test =  ; nothing here needs the internet\r\n"
           "[xcharge]\r\n"
           "userid = pos\r\n"
           "password = trelva\r\n";
}

bool isInstalled(platform::Files &files)
{
    return files.exists(kMain + "LumbrioINI.dat");
}

void mendLinks(platform::Files &files, const std::string &programsFolder)
{
    if (!files.exists(kXchargeProgram))
        linkProgram(files, kXchargeProgram, programsFolder + "/sim_xcharge");
    if (!files.exists(kServerProgram))
        linkProgram(files, kServerProgram, programsFolder + "/sim_server");
}

Mode modeOf(platform::Files &files, const std::string &Maindir)
{
    return files.exists(Maindir + kModeFile) ? Mode::CommandLine : Mode::Local;
}

bool setMode(platform::Files &files, const std::string &Maindir, Mode mode)
{
    if (mode == modeOf(files, Maindir))
        return true;
    if (mode == Mode::Local)
        return done(files.remove(Maindir + kModeFile));
    return write(files, Maindir + kModeFile,
                 records::quotedLine("Use Xcharge Local version for oct 2009 "));
}

bool makeSandbox(platform::Files &files, const std::string &drivesFolder,
                 const std::string &xchargeProgram)
{
    std::error_code error;
    fs::create_directories(drivesFolder, error);
    for (const char *folder : kFolders)
        if (!makeFolders(files, folder))
            return false;
    for (const char *spool : {"/spool/receipt", "/spool/letter"})
        fs::create_directories(drivesFolder + spool, error);
    return writeInstallation(files, drivesFolder) &&
           write(files, kMain + "LumbrioINI.dat", configurationFile()) &&
           write(files, kMain + "CCard.dat", cardOptionsFile()) &&
           setMode(files, kMain, Mode::CommandLine) &&
           write(files, kRemote + "Data\\Zemployee.dat", employeeFile()) &&
           write(files, kRemote + "ini\\3\\ButtonAM.dat", managerFile()) &&
           linkProgram(files, kXchargeProgram, xchargeProgram) &&
           linkProgram(files, kServerProgram,
                       fs::path(xchargeProgram).replace_filename("sim_server").string());
}

} // namespace simulator
