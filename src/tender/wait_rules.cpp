#include "tender/wait_rules.h"

#include <algorithm>
#include <array>

namespace tender {

namespace {

constexpr std::uint32_t kMillisecondsPerCount = 960;

constexpr std::array<const char *, 9> kLadder = {"Waiting For Connection",
                                                 "Communicating",
                                                 "Waiting For Response",
                                                 "Still Waiting For Response",
                                                 "Should have response shortly",
                                                 "Still Waiting For Response",
                                                 "Should not take this long",
                                                 "May be a Problem",
                                                 "Unable to connect - Try again later"};

void climbLadder(int count, TenderFields &fields, std::uint16_t &StopWaiting)
{
    if (count >= 1)
        fields.status = kLadder[static_cast<std::size_t>(std::min(count, 9) - 1)];
    if (!fields.X1009)
        return;
    if (count < 10) {
        fields.cancel.enabled = true;
        fields.status = "Waiting for Response from X-Charge";
    }
    if (count >= 38)
        StopWaiting = kStopWaiting;
}

} // namespace

int countSince(std::uint32_t start, std::uint32_t now)
{
    return static_cast<int>((now - start) / kMillisecondsPerCount);
}

bool reactToCount(int count, TenderFields &fields)
{
    if (count > 20)
        fields.cancel.enabled = true;
    if (count == 10 && fields.X1009)
        fields.status.clear();
    if (count == 49) {
        fields.warning = "INTERNET or Phone Line may be DOWN";
        fields.warningRed = true;
        fields.warningVisible = true;
        fields.ribbonsVisible = true;
    }
    if (count > 50) {
        fields.cancel.enabled = true;
        fields.status = "Connection Problems Press Cancel";
    }
    return count == 20 || count == 60 || count == 120 || count == 180;
}

bool waitTimerTick(int count, TenderFields &fields, std::uint16_t &StopWaiting)
{
    const int shared = count + 1;
    bool stops = false;
    fields.sharedCount = std::to_string(shared);
    if (count > 8)
        fields.cancel.enabled = true;
    if (StopWaiting < kStopWaiting) {
        if (fields.X1009 && count == 10)
            fields.status.clear();
        if (count > 15)
            fields.cancel.enabled = true;
        if (shared >= 9) {
            stops = true;
            fields.cancel.enabled = true;
            fields.waitPanelVisible = true;
        } else {
            climbLadder(count, fields, StopWaiting);
        }
    }
    if (count >= 10)
        fields.cancel.enabled = true;
    return stops;
}

} // namespace tender
