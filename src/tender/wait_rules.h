// What happens during a wait: the reactions to each new count, and the timer that changes the
// messages step by step. One count is 960 ms.
#pragma once

#include "tender/tender_fields.h"

#include <cstdint>
#include <string>

namespace tender {

/// `StopWaiting` at this value ends a wait.
inline constexpr std::uint16_t kStopWaiting = 65535;

/// Whole counts between two ticks of the 32-bit millisecond clock, which may have wrapped once.
int countSince(std::uint32_t start, std::uint32_t now);

/// Reacts to a new count. True at the counts at which the offline panel would be shown (20, 60,
/// 120, 180).
bool reactToCount(int count, TenderFields &fields);

/// One tick of the timer, in both modes, at this count. True when the timer stops itself. Kept: at
/// the usual intervals it stops at the first tick, so that neither the messages nor the end at
/// count 38, by `StopWaiting`, is reached.
bool waitTimerTick(int count, TenderFields &fields, std::uint16_t &StopWaiting);

} // namespace tender
