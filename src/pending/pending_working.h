// Pending::Working: while a command works, other commands are ignored; while the manager only
// looks, so are all that change files.
#pragma once

#include "pending/pending.h"

namespace pending {

class Pending::Working {
public:
    explicit Working(Pending &theList, Work work = Work::Looks)
        : list(theList), mine(!list.working && !list.app.ending() &&
                              !(work == Work::Changes && list.app.values.lookOnly))
    {
        if (mine)
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
