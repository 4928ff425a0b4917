// Hand: a hand at the keyboard of a program under test, on its own clock. What it does stands in
// the environment, as tests/programs/played_main.cpp tells.
#pragma once

#include "platform/clock.h"

#include <QStringList>

#include <string>

namespace support {

/// Card reader and operator.
class Hand {
public:
    explicit Hand(platform::Clock &clock);

private:
    void swipe();
    void takeStep();
    void pressEscape();

    QStringList steps; // commands to press, rows to open
    std::string track;
    platform::Timer presser;
    platform::Timer reader;
    platform::Timer finger;
};

} // namespace support
