#pragma once

#include <atomic>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace foodservice {

// Connections that hold the server without finishing a request, for measuring a search
// beside them: idle ones connect and send nothing; slow ones complete the TLS handshake
// and then send a request one byte per tick. All close when this object goes.
class HeldConnections
{
public:
    // Throws std::runtime_error when a connection cannot be made.
    HeldConnections(int port, const std::string &caPath, int idle, int slow);
    ~HeldConnections();
    HeldConnections(const HeldConnections &) = delete;
    HeldConnections &operator=(const HeldConnections &) = delete;

private:
    struct Slow;
    void dribble();
    void release();

    std::vector<int> m_idle;
    std::vector<std::unique_ptr<Slow>> m_slow;
    void *m_context = nullptr;
    std::atomic<bool> m_stop = false;
    std::thread m_sender;
};

} // namespace foodservice
