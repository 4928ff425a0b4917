// Keeps card numbers out of core dumps and out of memory that is no longer used.
#pragma once

#include <string>

namespace platform {

/// Called first in every program: it leaves no core dump, and no other program of the same user can
/// read its memory. (Under the address sanitizer, which reads it, only the dump is prevented.)
void hardenProcess();

/// Overwrites the whole buffer of the text, including the rest of a longer text before it, and
/// empties it.
void wipe(std::string &text);

/// Prepares a text for card data: it gets room for any swipe, so that growing leaves no copy in
/// memory, and its pages stay out of dumps. Its content is kept.
void keepSecret(std::string &text);
/// Assigns, keeps the buffer of the target, and wipes the source.
void setSecret(std::string &to, std::string &&from);

} // namespace platform
