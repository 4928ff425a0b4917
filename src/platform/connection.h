// Whether a server answers: the look at the network behind System::connectionTest().
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace platform {

struct HostAndPort {
    std::string host;
    std::string port;
};

/// "host:port" or "[address]:port"; nothing when a part is missing.
std::optional<HostAndPort> parseHostAndPort(std::string_view text);

/// True when the server accepts a connection within `limit`, the look-up of its name included.
/// What is still under way by then is left to itself.
bool serverAnswers(const HostAndPort &server, std::chrono::milliseconds limit);

} // namespace platform
