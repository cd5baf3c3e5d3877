#include "bench/Benchmark.h"

#include "bench/LatencySample.h"

#include <atomic>
#include <chrono>
#include <httplib.h>
#include <stdexcept>
#include <thread>

namespace foodservice {
namespace {

using Clock = std::chrono::steady_clock;
constexpr int latencyRounds = 10;

class BenchClient
{
public:
    BenchClient(int port, const std::string &caPath, const std::string &apiKey)
        : m_client("127.0.0.1", port), m_headers{{"Authorization", "Api-Key " + apiKey}}
    {
        m_client.set_ca_cert_path(caPath);
        m_client.enable_server_certificate_verification(true);
        m_client.set_keep_alive(true);
        m_client.set_tcp_nodelay(true);
    }

    void get(const std::string &target, int expectedStatus)
    {
        const auto result = m_client.Get(target, m_headers);
        if (!result)
            throw std::runtime_error("request failed: " + httplib::to_string(result.error()));
        if (result->status != expectedStatus)
            throw std::runtime_error(target + " answered " + std::to_string(result->status));
    }

private:
    httplib::SSLClient m_client;
    httplib::Headers m_headers;
};

} // namespace

Benchmark::Benchmark(int port, std::string caPath, std::string apiKey)
    : m_port(port), m_caPath(std::move(caPath)), m_apiKey(std::move(apiKey))
{
}

BenchFigures Benchmark::firstRequestLatency(const std::vector<std::string> &targets, int expectedStatus) const
{
    LatencySample sample;
    for (const auto &target : targets) {
        const auto start = Clock::now();
        BenchClient client(m_port, m_caPath, m_apiKey);
        client.get(target, expectedStatus);
        sample.add(std::chrono::duration<double, std::milli>(Clock::now() - start).count());
    }
    return {sample.percentile(0.5), sample.percentile(0.99), 0};
}

BenchFigures Benchmark::measure(const std::vector<std::string> &targets, int expectedStatus, int clients,
                                double seconds) const
{
    BenchFigures figures;
    {
        BenchClient client(m_port, m_caPath, m_apiKey);
        for (const auto &target : targets)
            client.get(target, expectedStatus);
        LatencySample sample;
        for (int round = 0; round < latencyRounds; ++round) {
            for (const auto &target : targets) {
                const auto start = Clock::now();
                client.get(target, expectedStatus);
                sample.add(std::chrono::duration<double, std::milli>(Clock::now() - start).count());
            }
        }
        figures.p50 = sample.percentile(0.5);
        figures.p99 = sample.percentile(0.99);
    }

    std::atomic<long> done = 0;
    std::atomic<bool> failed = false;
    std::vector<std::thread> threads;
    const auto start = Clock::now();
    const auto end =
        start + std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(seconds));
    for (int i = 0; i < clients; ++i) {
        threads.emplace_back([&, i] {
            try {
                BenchClient client(m_port, m_caPath, m_apiKey);
                for (std::size_t next = static_cast<std::size_t>(i); Clock::now() < end; ++next) {
                    client.get(targets[next % targets.size()], expectedStatus);
                    ++done;
                }
            } catch (const std::exception &) {
                failed = true;
            }
        });
    }
    for (auto &thread : threads)
        thread.join();
    if (failed)
        throw std::runtime_error("a benchmark client failed");
    figures.perSecond =
        static_cast<double>(done) / std::chrono::duration<double>(Clock::now() - start).count();
    return figures;
}

} // namespace foodservice
