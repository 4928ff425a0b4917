// EntryDetails::Working: while a command works on files the pointer is busy and other
// commands are ignored.
#pragma once

#include "details/entry_details.h"

namespace details {

class EntryDetails::Working {
public:
    explicit Working(EntryDetails &theEntry) : entry(theEntry) { set(true); }
    ~Working() { set(false); }
    Working(const Working &) = delete;
    Working &operator=(const Working &) = delete;

private:
    void set(bool on)
    {
        entry.working = on;
        entry.view.setBusyPointer(on);
    }

    EntryDetails &entry;
};

} // namespace details
