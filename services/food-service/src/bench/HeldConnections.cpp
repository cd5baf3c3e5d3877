#include "bench/HeldConnections.h"

#include <arpa/inet.h>
#include <chrono>
#include <csignal>
#include <netinet/in.h>
#include <openssl/ssl.h>
#include <stdexcept>
#include <string_view>
#include <sys/socket.h>
#include <unistd.h>

namespace foodservice {
namespace {

constexpr auto tick = std::chrono::milliseconds(100);
constexpr std::string_view slowRequest =
    "GET /api/v1/healthcare//food?search=banana HTTP/1.1\r\n"
    "Host: 127.0.0.1\r\nX-Padding: aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa\r\n\r\n";

int connectTo(int port)
{
    const int socket = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (socket < 0 || ::connect(socket, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0) {
        if (socket >= 0)
            ::close(socket);
        throw std::runtime_error("cannot connect to the benchmarked server");
    }
    return socket;
}

} // namespace

struct HeldConnections::Slow
{
    explicit Slow(int socket) : socket(socket) {}
    ~Slow()
    {
        SSL_free(ssl);
        ::close(socket);
    }
    Slow(const Slow &) = delete;
    Slow &operator=(const Slow &) = delete;

    int socket = -1;
    SSL *ssl = nullptr;
    std::size_t sent = 0;
};

HeldConnections::HeldConnections(int port, const std::string &caPath, int idle, int slow)
{
    // The server drops a held connection in time; writing to it then must not end the program.
    std::signal(SIGPIPE, SIG_IGN);
    try {
        SSL_CTX *context = SSL_CTX_new(TLS_client_method());
        m_context = context;
        if (!context || SSL_CTX_load_verify_locations(context, caPath.c_str(), nullptr) != 1)
            throw std::runtime_error("cannot set up TLS for the held connections");
        SSL_CTX_set_verify(context, SSL_VERIFY_PEER, nullptr);
        for (int i = 0; i < slow; ++i) {
            auto &connection = m_slow.emplace_back(std::make_unique<Slow>(connectTo(port)));
            connection->ssl = SSL_new(context);
            if (!connection->ssl || SSL_set_fd(connection->ssl, connection->socket) != 1 ||
                SSL_connect(connection->ssl) != 1)
                throw std::runtime_error("TLS handshake of a held connection failed");
        }
        for (int i = 0; i < idle; ++i)
            m_idle.push_back(connectTo(port));
        m_sender = std::thread([this] { dribble(); });
    } catch (...) {
        release();
        throw;
    }
}

HeldConnections::~HeldConnections()
{
    release();
}

void HeldConnections::release()
{
    m_stop = true;
    if (m_sender.joinable())
        m_sender.join();
    for (const int socket : m_idle)
        ::close(socket);
    m_idle.clear();
    m_slow.clear();
    SSL_CTX_free(static_cast<SSL_CTX *>(m_context));
    m_context = nullptr;
}

void HeldConnections::dribble()
{
    while (!m_stop) {
        for (const auto &connection : m_slow) {
            if (connection->sent < slowRequest.size() &&
                SSL_write(connection->ssl, slowRequest.data() + connection->sent, 1) == 1)
                ++connection->sent;
        }
        std::this_thread::sleep_for(tick);
    }
}

} // namespace foodservice
