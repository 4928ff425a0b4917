// ServerExchange: one request to the payment server and its answer, as files in "LocalTran\". What
// they say is made and read in local_request.h.
#pragma once

#include "records/app.h"
#include "tender/local_request.h"

#include <string>
#include <string_view>

namespace tender {

/// What a reading of the server's answer came to.
struct ServerAnswer {
    platform::Outcome outcome = platform::Outcome::Broken;
    bool longer = false; // than records::kExchangeLimit
    std::string text;

    /// Nobody knows what the bank has said: not even "no".
    bool unreadable() const;
    /// Why it is unreadable.
    const char *reason() const;
};

/// For routines that ignore errors.
class ServerExchange {
public:
    explicit ServerExchange(records::App &theApp) : app(theApp) {}

    /// Names the files of the exchange after this second, puts aside an answer that an earlier
    /// exchange of that name has left, and makes the request appear whole: it is written under a
    /// name that the server does not look at, then copied. Done when the request was copied, or
    /// lies there, or nobody can tell: then it may be charged, and its answer has to be waited for.
    /// Any other outcome says that nothing was charged.
    platform::Outcome place(const LocalRequest &request);
    bool begun() const { return files.set(); }
    const std::string &requestFile() const { return files.request; }
    const std::string &answerFile() const { return files.answer; }

    /// Takes back what a server that is slow to look has not taken yet: it must not charge a card
    /// whose tender is over. False when it may still be there; the trace tells. True when there is
    /// no exchange.
    bool withdraw();
    /// The same, but leaves the work file, which no server looks at.
    bool withdrawRequest();

    /// Reads the answer; one that cannot be read or says nothing is read again for some seconds
    /// (platform::Wait::Result).
    ServerAnswer readAnswer();
    /// Deletes the answer once it is in a record. `answer` is what was read of it: one that says
    /// neither yes nor no may be half of one, and is put aside.
    void removeAnswer(std::string_view answer);
    /// Puts aside an answer that the server has written since the last look: it belongs to no
    /// decline.
    void putLateAnswerAside();

private:
    platform::Outcome makeWayForAnswer();
    bool remove(const std::string &file);

    records::App &app;
    LocalFiles files;
};

} // namespace tender
