// What the count of a wait sets off: the reactions to each new count, and the wait timer with its
// ladder of messages. One count is 960 ms.
#pragma once

#include "tender/tender_fields.h"

#include <cstdint>
#include <string>

namespace tender {

/// `StopWaiting` at this value ends a wait.
inline constexpr std::uint16_t kStopWaiting = 65535;

/// Whole counts between two ticks of the 32-bit millisecond clock, which may have wrapped once.
int countSince(std::uint32_t start, std::uint32_t now);

/// Reactions to a new count of the wait. True at the counts at which the offline panel
/// would be shown (20, 60, 120, 180).
bool reactToCount(int count, TenderFields &fields);

/// One tick of the wait timer, in both modes, at this count of the wait. True when the timer stops
/// itself. Kept: at its usual intervals the first tick does, and the ladder and its end at count 38
/// through `StopWaiting` are not reached.
bool waitTimerTick(int count, TenderFields &fields, std::uint16_t &StopWaiting);

} // namespace tender
