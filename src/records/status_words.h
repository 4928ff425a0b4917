// The status words of a card record. Stations, lists and other programs compare them letter by
// letter.
#pragma once

#include <string_view>

namespace records {

/// `CCAdjStatus`: where the tip stands.
inline constexpr const char *kNotAdjusted = "Not Adjusted";
inline constexpr const char *kAdjusted = "Adjusted - Pending";
inline constexpr const char *kCompleted = "Completed";

/// `CCstatus`: what the bank said; also the word that the point of sale gets.
inline constexpr const char *kApproved = "Approved";
inline constexpr const char *kDeclined = "Declined";

/// Lists and rewrites recognise a status by its first letters, in exactly these capitals.
inline bool beginsNotAdjusted(std::string_view status)
{
    return status.starts_with("Not");
}
inline bool beginsCompleted(std::string_view status)
{
    return status.starts_with("Com");
}
inline bool beginsDeclined(std::string_view status)
{
    return status.starts_with("Dec");
}
inline bool beginsDeleted(std::string_view status)
{
    return status.starts_with("Del");
}

} // namespace records
