// A receipt number that somebody types at the manager's list, and which entry it means. A tip that
// goes into the wrong entry is charged to another guest: only a whole number opens one at once.
#pragma once

#include "pending/pending_list.h"

#include <string>
#include <string_view>

namespace pending {

struct ReceiptMatch {
    long first = -1; // row, from 0; -1: none
    long rows = 0;   // how many
    bool whole = false;
};

/// The rows with this number, compared by value: "42" and "0042" are the row "042". Where there is
/// none, those whose number begins so, as it is shown or without its zeros: "04" begins "042", "4"
/// also "420". A number with anything but digits in it is none of the list's.
ReceiptMatch findReceipt(const reports::ListRows &rows, std::string_view number);

/// What is typed, up to the next Enter. It has no time limit: a number that lost its first digits
/// would be another one.
class TypedReceipt {
public:
    /// After an Enter the next character begins a new number.
    void type(std::string_view text);
    /// Takes the last character back, also after an Enter that opened nothing.
    void backspace();
    void clear();
    /// Other rows, or another order: the chosen row is not at its place any more.
    void rowsMoved() { chosen = -1; }

    struct Entered {
        long row = -1; // to choose; -1: none
        bool opens = false;
    };
    /// Enter, while row `current` is the chosen one (-1: none is). Without a number that row opens;
    /// with one its only entry does. Of several, or of those that only begin so, the first is
    /// chosen, and opens with a second Enter.
    Entered enter(const reports::ListRows &rows, long current);

    /// What the screen says meanwhile; empty when nothing is typed.
    std::string hint() const;

private:
    std::string typed;
    std::string said; // by the last Enter
    long chosen = -1; // by it
};

} // namespace pending
