#include "platform/run.h"

#include <utility>

namespace platform {

void Run::yield()
{
    const int outer = std::exchange(ignoring, 0);
    loop.turn();
    ignoring = outer;
}

void Run::glance()
{
    const int outer = std::exchange(ignoring, 0);
    loop.glance();
    ignoring = outer;
}

void Run::fail(std::string_view operation, std::string_view path, Outcome outcome)
{
    std::string text(operation);
    fail(text.append(" failed: ").append(textOf(outcome)).append("\n").append(path));
}

void Run::fail(const std::string &message)
{
    if (over)
        return;
    over = true;
    failure = true;
    if (reportFailure)
        reportFailure(consequence.empty() ? message : message + "\n\n" + consequence);
}

} // namespace platform
