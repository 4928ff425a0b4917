// What the tender screen shows at a glance, made from the tender's fields: the word, colour and
// hint of the state, and texts in another form than in the fields.
#pragma once

#include "tender/tender_fields.h"

#include <string>
#include <string_view>

namespace tender {

enum class StateColour { Waiting, Approved, Declined, Attention };

struct StateWords {
    StateColour colour = StateColour::Waiting;
    std::string_view word;
    std::string_view hint; // may be empty
};

StateWords stateWords(const TenderFields &fields);

/// What the band below the header says; empty when there is nothing to say.
std::string bandNotice(const TenderFields &fields);

/// The amount as currency ("$48.50"); a text that is no number stays as it is.
std::string shownAmount(std::string_view amount);

/// A card number with all but its last 4 digits as asterisks.
std::string shownCardNumber(std::string_view number);

/// Up to this count a wait is nothing unusual. It fills the bar of the wait.
inline constexpr int kUsualWait = 49;

} // namespace tender
