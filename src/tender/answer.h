// The answer for the point of sale, "Xsend.ans" in `Maindir`, as a file: an old one is removed
// before a card is charged, and the one answer of a tender is written once its record stands. What
// it says is made in request.h.
#pragma once

#include "records/app.h"

#include <string>

namespace tender {

/// Removes the answer of an earlier tender, or empties it where it cannot be removed. Tries for
/// some seconds (platform::Wait::Answer). Fails with the outcome of the last try; then nothing may
/// be charged.
platform::Outcome removeOldAnswer(records::App &app);

/// The answer of one tender.
class Answer {
public:
    explicit Answer(records::App &theApp) : app(theApp) {}

    /// Replaces the file whole and flushes it; where that fails for some seconds, writes in place.
    /// A whole answer stays even when its flush failed; half an answer is removed, and so is an
    /// older one. Done when the whole answer is in the file, else the outcome of the last try.
    /// Errors are ignored, but traced.
    platform::Outcome write(const std::string &content);

    /// True until a write has left no whole answer.
    bool stands() const { return whole; }
    /// On the disk: a power cut does not take it back.
    bool flushed() const { return onDisk; }

private:
    platform::Outcome tryToWrite(const std::string &content);
    platform::Outcome lookAt(const std::string &content);
    void removeRemains(platform::Outcome written, platform::Outcome seen);

    records::App &app;
    bool whole = true;
    bool onDisk = false;
};

/// Writes the result and the fields of the answer to "TRACELOG.TXT".
void traceAnswer(records::App &app);

} // namespace tender
