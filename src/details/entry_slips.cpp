// Slips of one entry: reprints on a printer of the manager's choice, and the void slip that goes
// with a deletion.
#include "details/entry_working.h"
#include "printing/printer_choice.h"
#include "printing/slip.h"
#include "printing/unprinted.h"

#include <optional>
#include <utility>

namespace details {

using namespace records;

/// Slips read `CCdata`, so it holds this entry, with its number plain, while they are written.
template <class Slips> void EntryDetails::print(Slips slips)
{
    CardRecord shown = record;
    decodeCardNumber(shown);
    const CardRecord before = std::exchange(app.values.CCdata, shown);
    slips();
    app.values.CCdata = before;
}

void EntryDetails::reprint(bool customer)
{
    if (busy())
        return;
    const Working here(*this);
    printing::SlipContext context;
    context.transRecord = fields.slot;
    context.reprint = true;
    context.giftMarker = customer;
    const std::string selected = printer.selectedName();
    printing::Set_Printer(app, printer);
    const std::optional<std::string> chosen =
        view.choosePrinter(app.printers.names(), printer.selectedName());
    if (chosen) {
        printer.selectExactly(*chosen);
        if (customer) {
            app.yield();
            app.yield();
        }
        print([&] {
            if (record.value(CCaditionalFUNDS) > Money())
                printing::Att_Server(app, printer);
            else if (customer)
                printing::Reprint_Cust(app, printer, context);
            else
                printing::Reprint_Merch(app, printer, context);
        });
        printing::showUnprinted(app.dialogs, printer,
                                "Please see to the printer, or choose another one, and print it "
                                "again.");
    }
    printer.selectExactly(selected);
}

void EntryDetails::reprintCustomer()
{
    reprint(true);
}

void EntryDetails::reprintMerchant()
{
    reprint(false);
}

/// After the deletion the void slip cannot be printed again: if it failed, the manager decides.
bool EntryDetails::voidSlipSettled()
{
    return printing::showUnprinted(app.dialogs, printer,
                                   "Press OK to delete the entry without its slip, or Cancel to "
                                   "keep it until the printer works.",
                                   platform::Buttons::OkCancel) == platform::Answer::Ok;
}

void EntryDetails::deleteAndPrint()
{
    if (!mayChange())
        return;
    {
        const Working here(*this);
        // No void slip for an entry that is not going to be deleted.
        if (!stillThere())
            return;
        printing::SlipContext context;
        context.transRecord = fields.slot;
        printing::Set_Printer(app, printer);
        print([&] { printing::Print_Cust2(app, printer, context); });
        if (!voidSlipSettled())
            return;
    }
    deleteEntry(); // closes the screen
}

} // namespace details
