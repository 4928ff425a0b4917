#include "tender/card_capture.h"

#include "platform/hardening.h"
#include "records/card_helpers.h"
#include "records/exchange_file.h"
#include "records/trace.h"

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

CardCapture::CardCapture(App &theApp, Display &theDisplay, const ManagerStep &theManager,
                         std::function<void()> theCharge)
    : app(theApp), display(theDisplay), manager(theManager), charge(std::move(theCharge)),
      settleTimer(app.clock, [this] { settleTimeOver(); })
{
    for (std::string *text : {&fields.cardOrResult, &fields.firstTrack, &fields.secondTrack,
                              &TrackData, &fields.cardNumber})
        platform::keepSecret(*text);
}

bool CardCapture::awaitsCard() const
{
    return !fields.boxesLocked && !fields.cardTaken && !manager.asking() && !app.ending();
}

/// Some readers send a first track only and type nothing into the second box; their swipe is read
/// after the settle time. A "%" begins another card, so what is left of the card before is dropped.
void CardCapture::takeFirstTrack(const std::string &typed)
{
    if (!awaitsCard())
        return;
    std::string text = withoutControls(typed);
    if (const std::size_t start = text.rfind('%'); start != std::string::npos)
        text.erase(0, start);
    platform::setSecret(fields.firstTrack, std::move(text));
    platform::setSecret(fields.cardOrResult, Left(fields.firstTrack, kShownOfSwipe));
    display.show();
    const bool ended = endsTrack(fields.firstTrack);
    settleTimer.setInterval(ended ? kSettleTime : 0);
    if (ended)
        display.view.focus(TenderBox::SecondTrack);
}

void CardCapture::takeSecondTrack(const std::string &typed)
{
    if (!awaitsCard())
        return;
    std::string text = withoutControls(typed);
    settleTimer.setInterval(0);
    if (text == "%") {
        platform::wipe(fields.secondTrack);
        takeFirstTrack(text);
        display.view.focus(TenderBox::FirstTrack);
        return;
    }
    platform::setSecret(fields.secondTrack, std::move(text));
    if (endsTrack(fields.secondTrack))
        captureSwipe();
}

/// A third track that the reader still sends while the card is being validated is ignored: its "?"
/// would charge the card once more.
void CardCapture::captureSwipe()
{
    fields.cardTaken = true;
    fields.statusRed = true;
    fields.sharedCount = "0";
    display.status("Validating Card Number ");
    settleTimer.setInterval(kSettleTime);
    while (fields.sharedCount == "0" && !app.ending())
        app.yield();
    if (!app.ending())
        Get_Number();
}

/// While a manager is asked no card is read; the timer fires again.
void CardCapture::settleTimeOver()
{
    if (manager.asking())
        return;
    settleTimer.setInterval(0);
    fields.sharedCount = "1";
    if (awaitsCard())
        Get_Number();
}

void CardCapture::Get_Number()
{
    fields.cardTaken = true;
    joinTracks();
    fields.statusRed = true;
    display.status("Just a Moment Please ");
    std::optional<CardData> card = parseTrack(TrackData);
    if (!card)
        invalidCard();
    else if (isExpired(card->expiry, app.clock.now()))
        expiredCard();
    else
        goodCard(*card);
}

void CardCapture::joinTracks()
{
    platform::setSecret(TrackData, Trim(fields.firstTrack));
    std::string second = Trim(fields.secondTrack);
    TrackData += second;
    platform::wipe(second);
}

void CardCapture::goodCard(CardData &card)
{
    platform::setSecret(fields.cardNumber, std::move(card.number));
    fields.expiry = card.expiry;
    fields.firstName = card.firstName;
    fields.lastName = card.lastName;
    fields.statusRed = false;
    display.status("Dialing for Card Approval");
    if (app.values.managerCheckMode == "100")
        fields.cardTaken = false; // a manager's card is read, not charged
    else
        charge();
}

void CardCapture::expiredCard()
{
    app.dialogs.message("Expired",
                        "You have entered an EXPIRED CARD NUMBER. Please Try Another Card");
    reset();
}

/// The track helps to find a fault of the reader. When the share cannot be written to, the tender
/// goes on: the next swipe may be good.
void CardCapture::invalidCard()
{
    app.dialogs.message(
        "INVALID", "You have entered an INVALID CARD NUMBER\r\n       Please Try Another Card");
    {
        const platform::ErrorsIgnored ignored(app.run);
        app.files.append(app.values.Remotedir + "BadSwipe.dat", platform::textLine(TrackData));
    }
    reset();
}

void CardCapture::wipeCard()
{
    for (std::string *text : cardTexts(fields))
        platform::wipe(*text);
    platform::wipe(TrackData);
}

void CardCapture::reset()
{
    settleTimer.setInterval(0);
    fields.cardTaken = false;
    wipeCard();
    fields.statusRed = false;
    display.status("Waiting for Card Number ");
    display.view.focus(TenderBox::FirstTrack);
}

void CardCapture::clearSwipe()
{
    if (awaitsCard())
        reset();
}

void CardCapture::enterManually()
{
    if (!awaitsCard())
        return;
    settleTimer.setInterval(0); // or half a swipe would be read while the card is typed
    fields.cardTaken = true;
    display.view.SetTopMostWindow(false);
    const std::optional<TypedCard> card = display.view.askCard();
    display.view.SetTopMostWindow(true);
    fields.cardTaken = false;
    if (app.ending())
        return;
    if (card)
        enterTyped(*card);
    else if (!fields.firstTrack.empty())
        reset(); // of half a swipe
    else
        display.view.focus(TenderBox::FirstTrack);
}

/// Kept: neither the expiry nor the brand of a typed card is tested; the bank does both.
void CardCapture::enterTyped(const TypedCard &card)
{
    fields.cardTaken = true;
    TrackData = card.number;
    app.values.CCdata.set(CCSwiped, "False");
    app.values.CCdata.set(CCVerify, card.verify);
    fields.cardOrResult = card.number;
    fields.cardNumber = card.number;
    fields.expiry = turnedExpiry(card.expiry);
    fields.firstName.clear();
    fields.lastName.clear();
    traceProcess(app, {"Card number was manually type in", "Xcharge2 calling approval engine ",
                       std::string(58, '*')});
    display.show();
    charge();
}

void CardCapture::showDigits()
{
    if (!fields.view.enabled)
        return;
    fields.cardMasked = false;
    fields.view.enabled = false;
    display.show();
    display.view.focus(TenderBox::FirstTrack);
}

} // namespace tender
