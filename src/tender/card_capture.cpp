#include "platform/hardening.h"
#include "records/card_helpers.h"
#include "records/exchange_file.h"
#include "records/trace.h"
#include "tender/tender.h"
#include "tender/track.h"

#include <utility>

namespace tender {

using namespace records;

namespace {

constexpr std::uint32_t kSettleTime = 1500; // ms after a swipe's last character
constexpr std::size_t kShownOfSwipe = 19;   // characters

bool endsTrack(const std::string &text)
{
    return !text.empty() && text.back() == '?';
}

} // namespace

bool Tender::awaitsCard() const
{
    return !fields.boxesLocked && !fields.cardTaken && !askingManager && !app.ending();
}

/// A reader that sends a first track alone types nothing into the second box: then its swipe is
/// taken when the settle time is over. A "%" begins another card's: what was left of the one before
/// must not go with it.
void Tender::Text2_Change(const std::string &typed)
{
    if (!awaitsCard())
        return;
    std::string text = withoutControls(typed);
    if (const std::size_t start = text.rfind('%'); start != std::string::npos)
        text.erase(0, start);
    platform::setSecret(fields.Text2, std::move(text));
    platform::setSecret(fields.Text1, Left(fields.Text2, kShownOfSwipe));
    show();
    const bool ended = endsTrack(fields.Text2);
    Timer1.setInterval(ended ? kSettleTime : 0);
    if (ended)
        view.focus(TenderBox::Text5);
}

void Tender::Text5_Change(const std::string &typed)
{
    if (!awaitsCard())
        return;
    std::string text = withoutControls(typed);
    Timer1.setInterval(0);
    if (text == "%") {
        platform::wipe(fields.Text5);
        Text2_Change(text);
        view.focus(TenderBox::Text2);
        return;
    }
    platform::setSecret(fields.Text5, std::move(text));
    if (endsTrack(fields.Text5))
        captureSwipe();
}

/// What a reader still sends while the card is being validated (a third track) is passed over: its
/// "?" would charge the card once more.
void Tender::captureSwipe()
{
    fields.cardTaken = true;
    fields.Text3Red = true;
    fields.Label4 = "0";
    status("Validating Card Number ");
    Timer1.setInterval(kSettleTime);
    while (fields.Label4 == "0" && !app.ending())
        app.yield();
    if (!app.ending())
        Get_Number();
}

/// While a manager is asked nothing is taken; the timer comes again.
void Tender::Timer1_Timer()
{
    if (askingManager)
        return;
    Timer1.setInterval(0);
    fields.Label4 = "1";
    if (awaitsCard())
        Get_Number();
}

void Tender::Get_Number()
{
    fields.cardTaken = true;
    platform::setSecret(TrackData, Trim(fields.Text2));
    std::string second = Trim(fields.Text5);
    TrackData += second;
    platform::wipe(second);
    fields.Text3Red = true;
    status("Just a Moment Please ");
    std::optional<CardData> card = parseTrack(TrackData);
    if (!card) {
        invalidCard();
        return;
    }
    if (isExpired(card->expiry, app.clock.now())) {
        expiredCard();
        return;
    }
    platform::setSecret(fields.Label3[0], std::move(card->number));
    fields.Label3[1] = card->expiry;
    fields.Label3[2] = card->firstName;
    fields.Label3[3] = card->lastName;
    fields.Text3Red = false;
    status("Dialing for Card Approval");
    if (app.values.managerCheckMode == "100")
        fields.cardTaken = false; // a manager's card is read, not charged
    else
        Approval_Engine();
}

void Tender::expiredCard()
{
    app.dialogs.message("Expired",
                        "You have entered an EXPIRED CARD NUMBER. Please Try Another Card");
    resetCapture();
}

/// The track is kept for whoever looks after the reader. A share that cannot be written to must
/// not end the tender: the next swipe may be good.
void Tender::invalidCard()
{
    app.dialogs.message(
        "INVALID", "You have entered an INVALID CARD NUMBER\r\n       Please Try Another Card");
    {
        const platform::ErrorsIgnored ignored(app.run);
        app.files.append(app.values.Remotedir + "BadSwipe.dat", platform::textLine(TrackData));
    }
    resetCapture();
}

void Tender::wipeCard()
{
    for (std::string *text : cardTexts(fields))
        platform::wipe(*text);
    platform::wipe(TrackData);
}

void Tender::resetCapture()
{
    Timer1.setInterval(0);
    fields.cardTaken = false;
    wipeCard();
    fields.Text3Red = false;
    status("Waiting for Card Number ");
    view.focus(TenderBox::Text2);
}

void Tender::SSCommand4_Click()
{
    if (awaitsCard())
        resetCapture();
}

void Tender::SSCommand3_Click()
{
    if (!awaitsCard())
        return;
    Timer1.setInterval(0); // of a swipe that nobody waits for any more
    fields.cardTaken = true;
    view.setTopMost(false);
    const std::optional<TypedCard> card = view.askCard();
    view.setTopMost(true);
    fields.cardTaken = false;
    if (app.ending())
        return;
    if (card)
        enterTyped(*card);
    else if (!fields.Text2.empty())
        resetCapture(); // half a swipe that nobody waited for
    else
        view.focus(TenderBox::Text2);
}

/// Kept: a typed card is tested neither for its expiry nor for its brand; the bank does both.
void Tender::enterTyped(const TypedCard &card)
{
    fields.cardTaken = true;
    TrackData = card.number;
    app.values.CCdata.set(CCSwiped, "False");
    app.values.CCdata.set(CCVerify, card.verify);
    fields.Text1 = card.number;
    fields.Label3[0] = card.number;
    fields.Label3[1] = turnedExpiry(card.expiry);
    fields.Label3[2].clear();
    fields.Label3[3].clear();
    traceProcess(app, {"Card number was manually type in", "Xcharge2 calling approval engine ",
                       std::string(58, '*')});
    show();
    Approval_Engine();
}

/// Shows the digits that "XCHide.txt" masks.
void Tender::SSCommand6_Click()
{
    if (!fields.SSCommand6.enabled)
        return;
    fields.Text1Masked = false;
    fields.SSCommand6.enabled = false;
    show();
    view.focus(TenderBox::Text2);
}

} // namespace tender
