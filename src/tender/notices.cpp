#include "tender/notices.h"

#include "printing/unprinted.h"
#include "records/status_words.h"
#include "records/trace.h"

namespace tender {

using namespace records;

namespace {

using Facts = std::vector<std::pair<std::string, std::string>>;

Facts factsOf(const CardRecord &CCdata)
{
    Facts facts = {{"Receipt", CCdata.text(CCReceipt)},
                   {"Amount", Currency(CCdata.text(CCTabAmt))}};
    if (CCdata.value(CCaditionalFUNDS) > Money())
        facts.emplace_back("Approved", Currency(CCdata.text(CCApprovedAmt)));
    if (!CCdata.isEmpty(CApprovalCode))
        facts.emplace_back("Approval code", CCdata.text(CApprovalCode));
    return facts;
}

std::string approver(const CardRecord &CCdata)
{
    return CCdata.text(CApprovalCode) == "OFFLINE" ? "A manager approved this card offline"
                                                   : "The bank approved this card";
}

} // namespace

void tellUnprinted(App &app, const std::vector<printing::Unprinted> &unprinted)
{
    if (unprinted.empty())
        return;
    const TraceLines lines = printing::unprintedLines(unprinted);
    traceProcess(app, lines);
    traceLog(app, lines);
    app.dialogs.notice({"NOT PRINTED",
                        printing::unprintedWords(unprinted) +
                            " The card is approved: do not run it again. Reprint from the "
                            "manager's list.",
                        factsOf(app.values.CCdata),
                        {}});
}

platform::Notice notStoredNotice(const CardRecord &CCdata, platform::Outcome outcome, bool kept,
                                 const std::string &file)
{
    const std::string what = approver(CCdata) + ", but its record could not be stored (" +
                             std::string(platform::textOf(outcome)) +
                             "). Do not charge the card again. ";
    return {"RECORD NOT STORED",
            what + (kept ? "The record is kept at this station, which stores it as soon as it can. "
                           "Tell the manager."
                         : "It could not be kept at this station either: write these figures down "
                           "and give them to the manager now."),
            factsOf(CCdata), file};
}

platform::Notice notAnsweredNotice(const CardRecord &CCdata, const std::string &result,
                                   bool unknown, platform::Outcome outcome, const std::string &file)
{
    const std::string what =
        "The point of sale gets no answer (" + std::string(platform::textOf(outcome)) + "). ";
    const char *meaning = "This tender ended without an approval. Tell the manager before the card "
                          "is run again.";
    if (unknown)
        meaning = "The card may be charged. Do not run it again; tell the manager.";
    else if (result == kApproved)
        meaning =
            ": do not charge it again. Enter the payment at the point of sale by hand, and tell "
            "the manager.";
    return {"NO ANSWER FOR THE POINT OF SALE",
            what + (result == kApproved && !unknown ? approver(CCdata) : "") + meaning,
            factsOf(CCdata), file};
}

platform::Notice unknownNotice(const CardRecord &CCdata, const std::string &what,
                               const std::string &reason, const std::string &file)
{
    return {"OUTCOME UNKNOWN",
            what + " (" + reason + "). " + kMayBeCharged +
                " The point of sale was told \"Declined\".",
            factsOf(CCdata), file};
}

} // namespace tender
