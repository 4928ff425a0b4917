// What keeps card numbers out of core dumps and out of memory that nobody needs any more.
#pragma once

#include <string>

namespace platform {

/// At the very start of a program: it leaves no core dump, and no other program of the same user
/// can look into its memory. Under the address sanitizer, which has to look itself, only the first.
void hardenProcess();

/// Overwrites the text, and what a longer one has left behind it in its buffer, and empties it.
void wipe(std::string &text);

/// Gives a text that is to hold a card room enough for any swipe, so that no copy stays behind
/// where it grew, and keeps its pages out of dumps. What it holds is kept.
void keepSecret(std::string &text);
/// Assigns without giving the room away, and wipes where it came from.
void setSecret(std::string &to, std::string &&from);

} // namespace platform
