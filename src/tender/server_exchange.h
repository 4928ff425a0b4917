// ServerExchange: one request to the payment server and its answer, as files in "LocalTran\". What
// they say is made and read in local_request.h.
#pragma once

#include "records/app.h"
#include "tender/local_request.h"

#include <string>
#include <string_view>

namespace tender {

/// The outcome of reading the server's answer.
struct ServerAnswer {
    platform::Outcome outcome = platform::Outcome::Broken;
    bool longer = false; // than records::kExchangeLimit
    std::string text;

    /// The bank's word is unknown: it may be yes or no.
    bool unreadable() const;
    /// Why it is unreadable.
    const char *reason() const;
};

/// For routines that ignore errors.
class ServerExchange {
public:
    explicit ServerExchange(records::App &theApp) : app(theApp) {}

    /// Names the files of the exchange by this second, renames an answer that an earlier exchange
    /// has left under that name, and makes the request appear whole: it is written under a name
    /// that the server does not look at, then copied. Done when the request was copied, is there,
    /// or may be there: the card may be charged, so wait for the answer. Any other outcome means
    /// that nothing was charged.
    platform::Outcome place(const LocalRequest &request);
    bool begun() const { return files.set(); }
    const std::string &requestFile() const { return files.request; }
    const std::string &answerFile() const { return files.answer; }

    /// Deletes a request that the server has not taken yet: it must not charge a card whose tender
    /// is over. False when the request may still be there; the trace gets a line. True when there
    /// is no exchange.
    bool withdraw();
    /// The same, but leaves the work file, which no server looks at.
    bool withdrawRequest();

    /// Reads the answer. Where it cannot be read or says nothing, tries again for some seconds
    /// (platform::Wait::Result).
    ServerAnswer readAnswer();
    /// Deletes the answer, after it was stored in a record. `answer` is its text: one that says
    /// neither yes nor no may be half an answer, and is renamed.
    void removeAnswer(std::string_view answer);
    /// Renames an answer that the server has written after the last look: the tender was declined
    /// without it.
    void putLateAnswerAside();

private:
    platform::Outcome makeWayForAnswer();
    bool remove(const std::string &file);

    records::App &app;
    LocalFiles files;
};

} // namespace tender
