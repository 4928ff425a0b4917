// The last look, before a wait for the bank's word is given up: a card that was charged in the last
// moment must not be answered as declined.
#pragma once

#include "records/app.h"
#include "tender/server_exchange.h"
#include "tender/tender_wait.h"

namespace tender {

struct LastLook {
    bool there = false;            // the bank's word has come after all
    const char *unknown = nullptr; // what cannot be found out, for the operator; null for nothing
    const char *reason = nullptr;  // why not
};

/// Takes the request back first, so that the server cannot take it after the look. Errors are
/// ignored.
LastLook lookLast(records::App &app, ServerExchange &server, TenderWait &wait);

/// True when the bank's word is there, or may be there, though the wait has not seen it yet.
bool answerHasCome(TenderWait &wait);

} // namespace tender
