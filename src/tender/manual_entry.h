// Manual entry: when a card that was typed may go to its approval, and the size of the letters on
// the entry screen, which all stations share.
#pragma once

#include "records/app.h"

#include <string>
#include <string_view>

namespace tender {

/// A card as it was typed, digits alone; wiped when it goes.
struct TypedCard {
    std::string number;
    std::string expiry; // "MMYY" as typed
    std::string verify; // from the back of the card; may be empty

    ~TypedCard();
};

/// At least 10 characters of the number and 4 of the expiry.
bool processAllowed(std::string_view number, std::string_view expiry);

enum class EntryFont { Large, Small };

/// Small when "XCfont.dat" stands in `Remotedir`.
EntryFont entryFont(records::App &app);
/// The other font than `shown`, kept for all entry screens to come: deletes "XCfont.dat", or makes
/// it. Errors are ignored: where the share refuses, the screen at hand has its font all the same.
EntryFont switchEntryFont(records::App &app, EntryFont shown);
/// The command that switches to the other font.
const char *switchCaption(EntryFont shown);

} // namespace tender
