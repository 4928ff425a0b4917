// Set_Data: the working record of a tender, filled from its fields.
#pragma once

#include "records/app.h"
#include "tender/tender_fields.h"

namespace tender {

/// Fills `CCdata` with the card, the request and the time; the fields for the bank's word become
/// blank.
/// Deletes the batch marker "ServerISBatching.dat" in `Remotedir` first.
void Set_Data(records::App &app, const TenderFields &fields);

} // namespace tender
