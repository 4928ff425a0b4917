#include "platform/hardening.h"

#include <cstdint>
#include <cstring>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

namespace platform {

namespace {

constexpr std::size_t kLongestSecret = 4096;

} // namespace

void hardenProcess()
{
    const rlimit none = {0, 0};
    ::setrlimit(RLIMIT_CORE, &none);
#if !defined(__SANITIZE_ADDRESS__)
    ::prctl(PR_SET_DUMPABLE, 0, 0, 0, 0);
#endif
}

void wipe(std::string &text)
{
    text.resize(text.capacity());
    ::explicit_bzero(text.data(), text.size());
    text.clear();
}

void keepSecret(std::string &text)
{
    text.reserve(kLongestSecret);
    const auto page = static_cast<std::uintptr_t>(::sysconf(_SC_PAGESIZE));
    const auto from = reinterpret_cast<std::uintptr_t>(text.data()) / page * page;
    const auto end = reinterpret_cast<std::uintptr_t>(text.data()) + text.capacity();
    ::madvise(reinterpret_cast<void *>(from), end - from, MADV_DONTDUMP);
}

void setSecret(std::string &to, std::string &&from)
{
    to.assign(from);
    wipe(from);
}

} // namespace platform
