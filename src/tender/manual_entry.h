// Manual entry: when a typed card may be sent for its approval, and the font of the entry screen,
// which all stations share.
#pragma once

#include "records/app.h"

#include <string>
#include <string_view>

namespace tender {

/// A card as it was typed, digits only; wiped by its destructor.
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
/// Returns the other font than `shown` and keeps it for later entry screens: deletes "XCfont.dat",
/// or makes it. Errors are ignored; then only this screen has the other font.
EntryFont switchEntryFont(records::App &app, EntryFont shown);
/// The caption of the command that switches to the other font.
const char *switchCaption(EntryFont shown);

} // namespace tender
