// Whether a server answers: what System::startConnectionTest() does on the network.
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

/// Tries a server on a thread of its own. Neither a screen nor the program's end waits for it.
class ConnectionTest {
public:
    /// `longest`: how long a server may take to accept, including the look-up of its name.
    explicit ConnectionTest(std::chrono::milliseconds longest) : limit(longest) {}

    /// Starts a test of an address that parseHostAndPort() understands. An empty address passes at
    /// once, any other text fails. Does nothing while a test is running.
    void start(std::string_view address);
    /// The result of the last test; nothing while it is running, and before the first. A test that
    /// is still running at its limit has failed; its thread ends some time later.
    std::optional<bool> result() const;

private:
    struct Attempt;

    std::chrono::milliseconds limit;
    std::shared_ptr<Attempt> last; // shared with its thread, which may outlive the test
};

} // namespace platform
