// CardCapture: takes the card that is swiped into the two boxes or typed, until there is one that
// can be charged. Its copies of the card are wiped when it is destroyed.
#pragma once

#include "platform/clock.h"
#include "records/app.h"
#include "tender/display.h"
#include "tender/manager_step.h"
#include "tender/track.h"

#include <functional>
#include <string>

namespace tender {

class CardCapture {
public:
    /// `theCharge` is called with a good card in the fields. While `theManager` is asked no card
    /// is taken.
    CardCapture(records::App &theApp, Display &theDisplay, const ManagerStep &theManager,
                std::function<void()> theCharge);
    ~CardCapture() { wipeCard(); }

    /// Take what was typed into a swipe box; it is ignored while no card is awaited. A swipe is
    /// complete with its second track, or 1500 ms after a first track when no second one comes.
    void takeFirstTrack(const std::string &typed);
    void takeSecondTrack(const std::string &typed);
    /// Reads the swipe of the two boxes. A good card is charged (a manager's card is only read).
    /// For any other card a message is shown and the boxes are emptied. An invalid track is
    /// appended to "BadSwipe.dat" in `Remotedir`.
    void Get_Number();

    void clearSwipe();
    void enterManually();
    /// Shows the digits that "XCHide.txt" masks.
    void showDigits();
    /// Forgets a swipe that is not complete yet.
    void stop() { settleTimer.setInterval(0); }

    /// The swipe as read, both tracks joined, or the number as typed.
    const std::string &track() const { return TrackData; }

private:
    bool awaitsCard() const;
    void captureSwipe();
    void settleTimeOver();
    void joinTracks();
    void goodCard(CardData &card);
    void invalidCard();
    void expiredCard();
    void reset();
    void enterTyped(const TypedCard &card);
    void wipeCard();

    records::App &app;
    Display &display;
    TenderFields &fields = display.fields;
    const ManagerStep &manager;
    std::function<void()> charge;
    platform::Timer settleTimer;
    std::string TrackData;
};

} // namespace tender
