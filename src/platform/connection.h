// Whether a server answers: the look at the network behind System::startConnectionTest().
#pragma once

#include <chrono>
#include <memory>
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

/// Tries a server beside the program: nobody waits for it, neither a screen nor the program's end.
class ConnectionTest {
public:
    /// `longest`: how long a server may take to accept, the look-up of its name included.
    explicit ConnectionTest(std::chrono::milliseconds longest) : limit(longest) {}

    /// Begins anew with an address as parseHostAndPort() takes it; an empty one passes without a
    /// look, another text fails. Nothing while one is under way.
    void start(std::string_view address);
    /// Of the last one begun; nothing while it is under way, and before the first. What is still
    /// under way at its limit has failed, and is left to itself.
    std::optional<bool> result() const;

private:
    struct Attempt;

    std::chrono::milliseconds limit;
    std::shared_ptr<Attempt> last; // shared with its thread, which may outlive the test
};

} // namespace platform
