// What the tender screen says in one glance, worked out of the tender's fields: the state's word,
// colour and hint, and the texts that are shown otherwise than they are kept.
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

/// Counts up to which a wait is nothing unusual; the full length of the wait's bar.
inline constexpr int kUsualWait = 49;

} // namespace tender
