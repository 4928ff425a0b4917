// Printer: writes print jobs. It has a selected printer, a current font that stays from job to job,
// and an open job or none.
#pragma once

#include "platform/printers.h"

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace printing {

/// The slips that one printer did not take.
struct Unprinted {
    std::vector<std::string> slips; // their names as beginSlip() had them
    std::string printer;            // empty: there is none at all
    platform::Outcome outcome = platform::Outcome::Broken;
};

class Printer {
public:
    explicit Printer(platform::Printers &thePrinters) : printers(thePrinters) {}
    Printer(const Printer &) = delete;
    Printer &operator=(const Printer &) = delete;

    // The choice of the printer. At first the default printer is selected. A choice is only noted,
    // in microseconds; the list of printers is read when the result is first needed.

    /// Called with the name of the default printer when it is selected instead of a missing one.
    using Instead = std::function<void(const std::string &)>;

    /// Clears the vendor flag, then selects the last printer whose device name begins with
    /// `beginning` (capitals count; an empty one fits every printer) and looks for vendor
    /// printers. Without a fit the default printer is selected, and `instead` is called once for
    /// the same beginning, when the choice is looked up.
    void select(std::string_view beginning, Instead instead = {});
    /// Selects the last printer whose device name begins with "VENDOR" and sets the vendor flag;
    /// without one, selection and flag stay as they are.
    void selectVendor();
    /// Selects the printer with exactly this device name; without one the selection stays as it is.
    void selectExactly(std::string_view name);
    /// Device name of the selected printer; empty when there is none at all.
    const std::string &selectedName();
    bool vendorPrinterPresent();

    // The current font: from the next line on, and on into later jobs.

    const platform::PrintFont &font() const { return current; }
    /// An empty family changes nothing.
    void setFamily(std::string_view family);
    /// In points; 0 or less changes nothing.
    void setSize(double points);
    void setBold(bool on) { current.bold = on; }
    void setItalic(bool on) { current.italic = on; }

    // Writing begins a job if none is open. The job belongs to the printer that is selected then:
    // selecting another one closes it.

    /// Names the slip that follows, "merchant's slip", for the message if the job is not printed. A
    /// job may hold several slips, which are printed or lost together.
    void beginSlip(std::string_view name) { slips.emplace_back(name); }
    /// One printed line; a NUL prints as a blank.
    void line(std::string_view text);
    void blankLines(int count = 1);
    /// A banner by its name in assets/banners/, centred, in its natural size; `sizeAfter` is the
    /// font size after it.
    void picture(std::string_view name, double sizeAfter);
    /// Tab stops "x1,x2,..." in millimetres, until the job is closed.
    void tabs(std::string_view stops);
    /// Cuts the paper. The font size is 10 points afterwards.
    void cut();
    void newPage();
    /// Prints the open job, and later ones, in landscape. A roll has no orientation.
    void setLandscape(bool on);

    bool jobOpen() const { return open; }
    /// Submits the job to its printer. A job that the printer does not take is lost, and the names
    /// of its slips are kept for takeUnprinted(). Without an open job nothing is printed.
    void closeJob();
    /// The slips that were not printed since the last call, in their order; forgets them. A job
    /// without a slip (only a cut) is not among them.
    std::vector<Unprinted> takeUnprinted() { return std::exchange(unprinted, {}); }

    /// Loads printer list and fonts while the program waits anyway.
    void warmUp(const platform::PrintFont &likely);

private:
    enum class Fit { Beginning, Vendor, Whole };
    struct Choice {
        Fit fit = Fit::Beginning;
        std::string name;
        Instead instead;
    };

    void request(Choice choice);
    void resolve();
    void apply(const Choice &choice, const std::vector<std::string> &names);
    void selectDefault(const Choice &choice);
    void begin();
    void add(platform::PrintOperation::Kind kind, std::string_view text = {});
    void useFont();
    void submitTo(const std::string &name);
    void lost(const std::string &name, platform::Outcome outcome,
              const std::vector<std::string> &of);

    platform::Printers &printers;
    std::vector<Choice> requested; // not looked up yet, in their order
    std::string selected;
    std::string missing; // the beginning that fitted none last
    bool vendorPrinter = false;

    platform::PrintFont current;
    platform::PrintFont written; // the font that the open job is in, once it has one
    bool fontWritten = false;
    bool landscape = false;
    platform::PrintJob job;
    std::vector<std::string> slips; // of the open job
    std::vector<Unprinted> unprinted;
    bool open = false;
};

} // namespace printing
