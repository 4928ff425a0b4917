#include "tender/last_look.h"

namespace tender {

LastLook lookLast(records::App &app, ServerExchange &server, TenderWait &wait)
{
    const platform::ErrorsIgnored ignored(app.run);
    const bool withdrawn = server.withdraw();
    LastLook last;
    const platform::Outcome looked = wait.lookOnceMore(last.there);
    if (!done(looked)) {
        last.unknown = "Nobody can see whether the payment has answered";
        last.reason = textOf(looked);
    } else if (!withdrawn) {
        last.unknown = "The request cannot be taken back from the payment server";
        last.reason = "it may still be charged";
    }
    return last;
}

bool answerHasCome(TenderWait &wait)
{
    bool there = false;
    return !done(wait.lookOnceMore(there)) || there;
}

} // namespace tender
