// SecondProcess: another process of the restaurant for tests of locks and appends. It runs a
// function of the test, talks with it in lines, and can be killed at any moment.
#pragma once

#include <functional>
#include <memory>
#include <string>

namespace support {

/// One end of the talk. A line is never longer than a few hundred bytes.
class Talk {
public:
    Talk(int theInput, int theOutput) : input(theInput), output(theOutput) {}

    void say(const std::string &line);
    /// Waits for the next line. Empty when the other side is gone; a test fails when it says
    /// nothing for half a minute.
    std::string hear();
    /// Becomes the program, with its standard input and output on this talk.
    [[noreturn]] void become(const char *program);

    const int input;
    const int output;

private:
    std::string heard;
};

class SecondProcess {
public:
    /// Starts `work` in a child, which ends when it returns. Nothing of GoogleTest may be used
    /// inside; a finding is said to the test.
    explicit SecondProcess(const std::function<void(Talk &)> &work);
    ~SecondProcess(); // kills
    SecondProcess(const SecondProcess &) = delete;
    SecondProcess &operator=(const SecondProcess &) = delete;

    void say(const std::string &line) { talk->say(line); }
    std::string hear() { return talk->hear(); }
    /// Kills it as a power cut would, and returns when it is gone. What it said can still be heard.
    void kill();

private:
    int id = 0;
    std::unique_ptr<Talk> talk;
};

} // namespace support
