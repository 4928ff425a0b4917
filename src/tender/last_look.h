// The last look, before a wait for the bank's word is given up: a card that was charged in the last
// moment must not be answered as declined.
#pragma once

#include "records/app.h"
#include "tender/server_exchange.h"
#include "tender/tender_wait.h"

namespace tender {

struct LastLook {
    bool there = false;            // the bank's word, after all
    const char *unknown = nullptr; // or what cannot be told,
    const char *reason = nullptr;  // and why
};

/// Takes the request back first: from then on nobody takes it any more. Errors are ignored.
LastLook lookLast(records::App &app, ServerExchange &server, TenderWait &wait);

/// The bank's word lies there, or may lie there, and the wait has not looked since.
bool answerHasCome(TenderWait &wait);

} // namespace tender
