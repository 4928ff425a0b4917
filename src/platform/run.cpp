#include "platform/run.h"

#include <utility>

namespace platform {

void Run::yield()
{
    const int outer = std::exchange(ignoring, 0);
    loop.turn();
    ignoring = outer;
}

void Run::fail(std::string_view operation, std::string_view path, Outcome outcome)
{
    if (over)
        return;
    over = true;
    failure = true;
    if (reportFailure) {
        std::string text(operation);
        text.append(" failed: ").append(textOf(outcome)).append("\n").append(path);
        reportFailure(text);
    }
}

} // namespace platform
