#include "records/configuration.h"

#include "platform/patience.h"
#include "records/delimited.h"
#include "records/trace.h"

#include <optional>

namespace records {

namespace {

constexpr const char *kIniFile = "C:\\Lumbrio\\LumbrioINI.dat";

/// A file that ends within the field leaves NULs after its text; a path would end there.
std::string trimmedInPlace(LumbrioConfig &config, const ConfigField &field)
{
    const std::string raw = config.raw(field);
    const std::string value = Trim(std::string_view(raw).substr(0, raw.find('\0')));
    config.set(field, value);
    return value;
}

void keepConfig(ProcessValues &values)
{
    values.Maindir = trimmedInPlace(values.config, kMaindir);
    values.Remotedir = trimmedInPlace(values.config, kRemotedir);
    for (const int number : {51, 52})
        trimmedInPlace(values.config, configField(number));
    values.timeClockDirectory = trimmedInPlace(values.config, kTimeClockDirectory);
    for (const int number : {1, 2, 3, 4, 5})
        trimmedInPlace(values.config, configField(number));
    values.ReceiptPrinterName = trimmedInPlace(values.config, kReceiptPrinterName);
    trimmedInPlace(values.config, configField(9));
    trimmedInPlace(values.config, kOwnerCode);
}

constexpr std::size_t kMostOptions = 64U << 10U; // bytes of "CCard.dat"

bool isMinusOne(const std::string &text)
{
    return Val(text) == Money::fromWhole(-1);
}

std::string settingsInUse(const ProcessValues &values)
{
    const auto yesNo = [](bool yes) { return yes ? "YES" : "NO"; };
    return std::string(values.TndrNOpreAUTH == 0 ? "PreAuth" : "Purchase") + ", partial support " +
           yesNo(values.NoPartialSupport == 0) + ", tip line " + yesNo(values.PrintTipLine) +
           ", tip before approval " + yesNo(values.PreApproveTip) + ", payment directory " +
           values.paymentDirectory;
}

/// An empty file counts as locked: the point of sale empties it before it writes it again. If it
/// were read at that moment, the records of this tender would go to directories where nobody looks.
platform::Outcome lockWhole(platform::SlotFile &file)
{
    long slots = 0;
    const platform::Outcome outcome = file.lock();
    if (!done(outcome) || !done(file.count(slots)) || slots > 0)
        return outcome;
    file.unlock();
    return platform::Outcome::Locked;
}

/// Looks for the file, and reads it if it is there and its content is wanted. A short failure of
/// the share must not decide how a card is charged; if it lasts, the trace says which settings are
/// used.
bool isThere(App &app, const std::string &path, std::string *content)
{
    bool there = false;
    const platform::Outcome outcome = platform::patiently(app.run, platform::Wait::Options, [&] {
        const platform::Outcome found = app.files.exists(path, there);
        return done(found) && there && content != nullptr
                   ? app.files.read(path, *content, kMostOptions)
                   : found;
    });
    if (done(outcome) || outcome == platform::Outcome::NotThere)
        return there && done(outcome);
    traceProcess(app, {std::string("  OPTIONS NOT READ - ") + platform::textOf(outcome) + " - " +
                       path + " - WHAT HOLDS: " + settingsInUse(app.values)});
    return false;
}

/// From `Maindir`, which becomes the usual directory if it is empty. False without the file.
bool readCardOptions(App &app, CardOptions &options)
{
    if (app.values.Maindir.empty())
        app.values.Maindir = "c:\\Lumbrio\\";
    std::string content;
    if (!isThere(app, app.values.Maindir + "CCard.dat", &content))
        return false;
    options = parseCardOptions(content);
    return true;
}

} // namespace

bool Get_INI(App &app, IniLock wait)
{
    ProcessValues &values = app.values;
    values.Maindir = "C:\\Lumbrio\\";
    bool locked = true;
    std::optional<platform::Impatient> atOnce;
    if (wait == IniLock::AtOnce)
        atOnce.emplace(app.run);
    if (app.files.exists(kIniFile)) {
        LumbrioConfig config;
        platform::SlotFile file(app.files, kIniFile, LumbrioConfig::kSize);
        if (!done(file.open(platform::SlotUse::Read)))
            return false;
        platform::patiently(app.run, platform::Wait::Configuration,
                            [&file] { return lockWhole(file); });
        locked = done(file.lock());
        if ((!locked && !app.run.errorsIgnored()) || !done(file.read(1, config.data())))
            return false;
        file.unlock();
        values.config = config;
        keepConfig(values);
    }
    values.config.set(kOwnerCode, Format(values.config.text(kOwnerCode), "########.##"));
    return locked;
}

std::string versionToolTip(const LumbrioConfig &config)
{
    return "INTERNAL VERSION (MOST RECENT) IS 5.68." + config.text(kOwnerCode) + "688";
}

CardOptions parseCardOptions(std::string_view content)
{
    CardOptions options;
    DelimitedReader reader(content);
    for (std::string &line : options)
        line = reader.next();
    return options;
}

std::string paymentDirectory(const CardOptions &options)
{
    const std::string directory = Trim(options[1]);
    if (directory.empty())
        return "c:\\Program Files\\X-Charge\\";
    const bool ended = directory.back() == '\\' || directory.back() == '/';
    return ended ? directory : directory + "\\";
}

void Get_CCini(App &app)
{
    const platform::ErrorsIgnored ignored(app.run);
    CardOptions options;
    app.values.paymentDirectory = paymentDirectory(options);
    if (!readCardOptions(app, options))
        return;
    app.values.paymentDirectory = paymentDirectory(options);
    app.values.PrintTipLine = isMinusOne(options[7]);
    app.values.NoPartialSupport = wholeNumber(options[8]);
    app.values.PreApproveTip = isMinusOne(options[9]);
}

void loadSetupFlags(App &app)
{
    const platform::ErrorsIgnored ignored(app.run);
    CardOptions options;
    if (!readCardOptions(app, options))
        return;
    app.values.NoPartialSupport = wholeNumber(options[8]);
    // Kept: the setup screen writes this flag under `Maindir`.
    app.values.TndrNOpreAUTH = 0;
    const bool noPreAuth = isThere(app, app.values.Remotedir + "Data\\CCnoPREauth.dat", nullptr);
    app.values.TndrNOpreAUTH = noPreAuth ? -1 : 0;
}

void fillEmptyDirectories(App &app)
{
    if (app.values.Maindir.empty())
        app.values.Maindir = "c:\\Lumbrio\\";
    if (app.values.Remotedir.empty())
        app.values.Remotedir = "C:\\Lumbrio\\";
}

} // namespace records
