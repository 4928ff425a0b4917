#include "platform/hardening.h"

#include <windows.h>

namespace platform {

void hardenProcess()
{
    SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOGPFAULTERRORBOX); // no report, no dump
}

void wipe(std::string &text)
{
    text.resize(text.capacity());
    SecureZeroMemory(text.data(), text.size());
    text.clear();
}

void keepSecret(std::string &text)
{
    constexpr std::size_t kLongestSecret = 4096;
    text.reserve(kLongestSecret);
}

void setSecret(std::string &to, std::string &&from)
{
    to.assign(from);
    wipe(from);
}

} // namespace platform
