// The invented values in the answers of both stand-ins: the same for the same request.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

namespace simulator {

/// The cents of an amount as a request spells it; 0 if it is not a number.
std::int64_t centsOf(std::string_view amount);

/// A number that is the same for the same texts.
std::uint64_t fingerprint(std::initializer_list<std::string_view> texts);

/// The last `width` digits, zeros in front.
std::string padded(std::uint64_t number, std::size_t width);
/// Six digits of a fingerprint.
std::string approvalCode(std::uint64_t seed);

/// 4096 bytes that are no text.
std::string garbage();

} // namespace simulator
