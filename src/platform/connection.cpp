#include "platform/connection.h"

#ifdef _WIN32
#include <winsock2.h>
#include <ws2tcpip.h>
#else
#include <fcntl.h>
#include <netdb.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>
#endif

#include <algorithm>
#include <atomic>
#include <thread>

namespace platform {

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

#ifdef _WIN32
using Socket = SOCKET;
using Length = int;

struct Network {
    Network() { ready = WSAStartup(MAKEWORD(2, 2), &data) == 0; }
    ~Network()
    {
        if (ready)
            WSACleanup();
    }
    WSADATA data{};
    bool ready = false;
};

bool makeWaitless(Socket socket)
{
    u_long on = 1;
    return ioctlsocket(socket, FIONBIO, &on) == 0;
}

bool isUnderWay()
{
    return WSAGetLastError() == WSAEWOULDBLOCK;
}

int waitFor(WSAPOLLFD &look, int atMost)
{
    return WSAPoll(&look, 1, atMost);
}

void closeSocket(Socket socket)
{
    closesocket(socket);
}

constexpr int kNoInheritance = 0; // sockets of a started program: CreateProcess inherits none
constexpr Socket kNoSocket = INVALID_SOCKET;
using Look = WSAPOLLFD;
#else
using Socket = int;
using Length = socklen_t;

struct Network {
    bool ready = true;
};

bool makeWaitless(Socket socket)
{
    return fcntl(socket, F_SETFL, O_NONBLOCK) == 0;
}

bool isUnderWay()
{
    return errno == EINPROGRESS;
}

int waitFor(pollfd &look, int atMost)
{
    return poll(&look, 1, atMost);
}

void closeSocket(Socket socket)
{
    close(socket);
}

constexpr int kNoInheritance = SOCK_CLOEXEC;
constexpr Socket kNoSocket = -1;
using Look = pollfd;
#endif

bool acceptsUntil(const addrinfo &address, steady_clock::time_point end)
{
    const Socket socket =
        ::socket(address.ai_family, address.ai_socktype | kNoInheritance, address.ai_protocol);
    if (socket == kNoSocket)
        return false;
    bool connected = false;
    if (makeWaitless(socket)) {
        connected = connect(socket, address.ai_addr, static_cast<Length>(address.ai_addrlen)) == 0;
        if (!connected && isUnderWay()) {
            Look look{};
            look.fd = socket;
            look.events = POLLOUT;
            const auto left = std::chrono::ceil<milliseconds>(end - steady_clock::now()).count();
            connected = waitFor(look, static_cast<int>(std::max<long long>(left, 0))) == 1 &&
                        (look.revents & (POLLERR | POLLHUP)) == 0;
        }
    }
    closeSocket(socket);
    return connected;
}

bool connectsUntil(const HostAndPort &server, steady_clock::time_point end)
{
    const Network network;
    addrinfo wanted{};
    wanted.ai_socktype = SOCK_STREAM;
    addrinfo *found = nullptr;
    if (!network.ready ||
        getaddrinfo(server.host.c_str(), server.port.c_str(), &wanted, &found) != 0)
        return false;
    bool connected = false;
    for (const addrinfo *each = found; each != nullptr && !connected; each = each->ai_next)
        connected = acceptsUntil(*each, end);
    freeaddrinfo(found);
    return connected;
}

enum class Answer { None, Yes, No };

} // namespace

std::optional<HostAndPort> parseHostAndPort(std::string_view text)
{
    const std::size_t colon = text.rfind(':');
    if (colon == std::string_view::npos || colon == 0 || colon + 1 == text.size())
        return std::nullopt;
    std::string_view host = text.substr(0, colon);
    if (host.starts_with('[') && host.ends_with(']'))
        host = host.substr(1, host.size() - 2);
    if (host.empty())
        return std::nullopt;
    return HostAndPort{std::string(host), std::string(text.substr(colon + 1))};
}

struct ConnectionTest::Attempt {
    explicit Attempt(steady_clock::time_point theEnd) : end(theEnd) {}

    const steady_clock::time_point end;
    std::atomic<Answer> answer{Answer::None};
};

void ConnectionTest::start(std::string_view address)
{
    if (last && !result())
        return;
    last = std::make_shared<Attempt>(steady_clock::now() + limit);
    const auto server = parseHostAndPort(address);
    if (!server) {
        last->answer = address.empty() ? Answer::Yes : Answer::No;
        return;
    }
    // On a thread, because a name look-up may take any time.
    std::thread([server = *server, attempt = last] {
        attempt->answer = connectsUntil(server, attempt->end) ? Answer::Yes : Answer::No;
    }).detach();
}

std::optional<bool> ConnectionTest::result() const
{
    if (!last)
        return std::nullopt;
    const Answer answer = last->answer;
    if (answer == Answer::None && steady_clock::now() < last->end)
        return std::nullopt;
    return answer == Answer::Yes;
}

} // namespace platform
