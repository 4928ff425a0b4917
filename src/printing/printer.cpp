#include "printing/printer.h"

#include "records/text.h"

#include <algorithm>
#include <utility>

namespace printing {

using Kind = platform::PrintOperation::Kind;

namespace {

constexpr std::string_view kVendor = "VENDOR";
constexpr double kCutFontSize = 10;

} // namespace

void Printer::select(std::string_view beginning, Instead instead)
{
    request({Fit::Beginning, std::string(beginning), std::move(instead)});
}

void Printer::selectVendor()
{
    request({Fit::Vendor, std::string(kVendor), {}});
}

void Printer::selectExactly(std::string_view name)
{
    request({Fit::Whole, std::string(name), {}});
}

const std::string &Printer::selectedName()
{
    resolve();
    return selected;
}

bool Printer::vendorPrinterPresent()
{
    resolve();
    return vendorPrinter;
}

void Printer::request(Choice choice)
{
    requested.push_back(std::move(choice));
    if (!open)
        return;
    const std::string owner = selected;
    resolve();
    if (selected != owner)
        submitTo(owner);
}

// All choices count, in their order: an unknown name keeps the selection of the choice before it.
void Printer::resolve()
{
    if (!requested.empty()) {
        const std::vector<std::string> names = printers.names();
        for (const Choice &choice : requested)
            apply(choice, names);
        requested.clear();
    }
    if (selected.empty())
        selected = printers.defaultName();
}

void Printer::apply(const Choice &choice, const std::vector<std::string> &names)
{
    if (choice.fit == Fit::Beginning)
        vendorPrinter = false;
    bool found = false;
    for (const std::string &name : names) {
        // Kept: the first fit does not end the search, so the last one stays.
        if (choice.fit == Fit::Whole ? name == choice.name
                                     : records::startsWith(name, choice.name)) {
            selected = name;
            found = true;
        }
        if (choice.fit != Fit::Whole && records::startsWith(name, kVendor))
            vendorPrinter = true;
    }
    if (!found && choice.fit == Fit::Beginning)
        selectDefault(choice);
}

// Any other printer may be the one in the kitchen.
void Printer::selectDefault(const Choice &choice)
{
    selected = printers.defaultName();
    if (std::exchange(missing, choice.name) != choice.name && choice.instead && !selected.empty())
        choice.instead(selected);
}

void Printer::setFamily(std::string_view family)
{
    if (!family.empty())
        current.family = family;
}

void Printer::setSize(double points)
{
    if (points > 0)
        current.size = points;
}

void Printer::line(std::string_view text)
{
    begin();
    useFont();
    std::string printed(text);
    std::replace(printed.begin(), printed.end(), '\0', ' ');
    add(Kind::Line, printed);
}

void Printer::blankLines(int count)
{
    for (int i = 0; i < count; ++i)
        line({});
}

void Printer::picture(std::string_view name, double sizeAfter)
{
    add(Kind::Picture, name);
    setSize(sizeAfter);
}

void Printer::tabs(std::string_view stops)
{
    add(Kind::Tabs, stops);
}

void Printer::cut()
{
    add(Kind::Cut);
    setSize(kCutFontSize);
}

void Printer::newPage()
{
    add(Kind::NewPage);
}

void Printer::setLandscape(bool on)
{
    landscape = on;
    job.landscape = open && on;
}

void Printer::closeJob()
{
    if (open)
        submitTo(selected);
}

void Printer::warmUp(const platform::PrintFont &likely)
{
    resolve();
    printers.warmUp(likely);
}

void Printer::begin()
{
    if (open)
        return;
    resolve();
    job.title = "Lumbrio card slip";
    job.landscape = landscape;
    fontWritten = false;
    open = true;
}

void Printer::add(Kind kind, std::string_view text)
{
    begin();
    job.operations.push_back({kind, std::string(text), {}});
}

// Written only when a line follows, so that font changes without a line are not in the job.
void Printer::useFont()
{
    if (fontWritten && written == current)
        return;
    job.operations.push_back({Kind::Font, {}, current});
    written = current;
    fontWritten = true;
}

void Printer::submitTo(const std::string &name)
{
    open = false;
    const std::vector<std::string> named = std::exchange(slips, {});
    const platform::Outcome outcome = printers.submit(name, std::exchange(job, {}));
    if (!platform::done(outcome) && !named.empty())
        lost(name, outcome, named);
}

// Two copies that the same printer did not take are one message.
void Printer::lost(const std::string &name, platform::Outcome outcome,
                   const std::vector<std::string> &of)
{
    if (unprinted.empty() || unprinted.back().printer != name ||
        unprinted.back().outcome != outcome)
        unprinted.push_back({{}, name, outcome});
    std::vector<std::string> &all = unprinted.back().slips;
    all.insert(all.end(), of.begin(), of.end());
}

} // namespace printing
