#include "support/fake_system.h"

#include "platform/program_search.h"

namespace support {

platform::Outcome FakeSystem::start(const std::string &commandLine, platform::WindowStyle style)
{
    if (!platform::findProgram(commandLine, programIsThere))
        return Outcome::NotThere;
    started.push_back({commandLine, style});
    if (onStart)
        onStart(Started(started.back())); // a copy: onStart may lead to another start
    return Outcome::Done;
}

} // namespace support
