// What the direct slips have in common: their font, the lines that several of them print, and the
// ends of a slip.
#pragma once

#include "printing/slip.h"

#include <string>
#include <string_view>

namespace printing {

// Their names in the message that they could not be printed.
inline constexpr const char *kMerchantSlip = "merchant's slip";
inline constexpr const char *kCustomerSlip = "customer's slip";

/// Font family and sizes of the slips, from fields 22 and 23 of the configuration. A size of 0 is
/// none: the current one stays.
struct SlipFont {
    explicit SlipFont(const records::App &app);
    double smallSize() const { return base > 0 ? base - 2 : 0; }
    double largeSize() const { return base > 0 ? base + 5 : 0; }

    std::string family;
    double base = 0;
};

/// A field of the record, trimmed.
std::string fieldText(const records::App &app, const records::CardField &field);
/// A field of the record as currency.
std::string fieldAmount(const records::App &app, const records::CardField &field);
/// "#### #### #### " and the last four characters.
std::string hashedNumber(std::string_view number);

/// The plain slip font in its base size.
void useSlipFont(const records::App &app, Printer &printer);
/// Banner, the font size after it, blank lines.
void printBanner(Printer &printer, std::string_view picture, double sizeAfter, int blankLines);
/// Date, time, receipt, server and table in one line.
std::string saleLine(const records::App &app);
/// The masked number as the command-line mode shows it, else from `hashed`.
std::string cardText(const records::App &app, std::string_view hashed);
/// The business and its address, the rule, the lines of sale and card holder, and the card; ends in
/// the small size.
void printHeader(const records::App &app, Printer &printer, const std::string &sale,
                 const std::string &card);
std::string transRecordText(const SlipContext &context);
/// "AUTH - ", the code and the terminal.
std::string authorizationLine(const records::App &app);
/// The same, with the routing identifier instead of the code if there is one.
std::string approvalLine(const records::App &app);
/// The customer's, without a code.
std::string terminalLine(const records::App &app);
/// One bold line and a blank one; ends in the large size.
void printBoldLine(const records::App &app, Printer &printer, const std::string &text);

/// The texts after "Gratuity" and "Total".
struct TipTexts {
    std::string tip;
    std::string total;
};
TipTexts underscoredTip();
/// The amount, the tip lines when they are printed at all, and the place to sign; `indent` blanks
/// before the name. Ends in the base size.
void printAmounts(const records::App &app, Printer &printer, const TipTexts &tip, int indent);

void blankPairs(Printer &printer, int count);
bool hasBalance(const records::App &app);
/// The receipt printer cuts at the end of a slip.
bool cutsAtEnd(const records::App &app);
/// Closes the job, with a cut before it where the printer cuts.
void closeOrCut(const records::App &app, Printer &printer);
/// No customer's copy is printed.
bool customerCopySuppressed(const records::App &app, const SlipContext &context);
/// No merchant's copy is printed.
bool merchantCopySuppressed(const SlipContext &context);

} // namespace printing
