#include "tender/manual_entry.h"

#include "platform/hardening.h"

namespace tender {

namespace {

constexpr std::size_t kShortestNumber = 10;
constexpr std::size_t kShortestExpiry = 4;

std::string fontFile(const records::App &app)
{
    return app.values.Remotedir + "XCfont.dat";
}

} // namespace

TypedCard::~TypedCard()
{
    for (std::string *text : {&number, &expiry, &verify})
        platform::wipe(*text);
}

bool processAllowed(std::string_view number, std::string_view expiry)
{
    return number.size() >= kShortestNumber && expiry.size() >= kShortestExpiry;
}

EntryFont entryFont(records::App &app)
{
    const platform::ErrorsIgnored ignored(app.run); // no card waits for its size of letters
    return app.files.exists(fontFile(app)) ? EntryFont::Small : EntryFont::Large;
}

EntryFont switchEntryFont(records::App &app, EntryFont shown)
{
    const platform::ErrorsIgnored ignored(app.run);
    if (shown == EntryFont::Small) {
        app.files.removeIfThere(fontFile(app));
        return EntryFont::Large;
    }
    app.files.createIfMissing(fontFile(app));
    return EntryFont::Small;
}

const char *switchCaption(EntryFont shown)
{
    return shown == EntryFont::Large ? "Small Font" : "Large Font";
}

} // namespace tender
