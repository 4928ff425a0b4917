#include "tender/tender_record.h"

#include "records/kept_records.h"
#include "records/status_words.h"
#include "records/trace.h"
#include "tender/notices.h"

namespace tender {

using namespace records;

void TenderRecord::store(const std::string &cardFile)
{
    file = cardFile;
    record = app.values.CCdata;
    stored = addCarefully(app, file, record);
    tellUnstored();
}

void TenderRecord::writeAgain()
{
    if (stored.stored() && !stored.unlocked)
        replaceRecord(app, file, stored.slot, app.values.CCdata, app.values.CCdata);
}

void TenderRecord::confirm()
{
    if (!stored.unlocked || !stored.stored())
        return;
    stored = confirmStored(app, file, record, stored);
    tellUnstored();
    // The holder of the lock may still write over it: the next start looks once more.
    if (stored.unlocked && stored.stored() && !kept && record.text(CCstatus) == kApproved)
        keep();
}

void TenderRecord::tellUnstored()
{
    if (done(stored.outcome) || app.ending())
        return;
    const char *const what =
        stored.stored() ? "  RECORD STORED BUT NOT FLUSHED - " : "  RECORD NOT STORED - ";
    const std::string line = what + std::string(platform::textOf(stored.outcome)) + " - " + file;
    traceProcess(app, {line});
    traceLog(app, {line});
    if (record.text(CCstatus) != kApproved)
        return;
    kept = kept || keep();
    if (!stored.stored() || !kept)
        notices.push_back(notStoredNotice(record, stored.outcome, kept, file));
}

/// False where the station's own folder does not take it either.
bool TenderRecord::keep()
{
    platform::Outcome outcome = platform::Outcome::Done;
    return !keepRecord(app, file, record, outcome).empty();
}

} // namespace tender
