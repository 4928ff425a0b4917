// Pending::Working: from a command's first step to its last no other command is taken.
#pragma once

#include "pending/pending.h"

namespace pending {

class Pending::Working {
public:
    explicit Working(Pending &theList) : list(theList), mine(!list.working && !list.app.ending())
    {
        list.working = true;
    }
    ~Working()
    {
        if (!mine)
            return;
        // An entry was saved meanwhile.
        while (list.loadAgain && !list.app.ending())
            list.loadList();
        list.working = false;
    }
    Working(const Working &) = delete;
    Working &operator=(const Working &) = delete;

    explicit operator bool() const { return mine; }

private:
    Pending &list;
    bool mine;
};

} // namespace pending
