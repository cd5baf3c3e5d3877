#pragma once

#include <string>
#include <vector>

namespace foodservice {

struct BenchFigures
{
    double p50 = 0;
    double p99 = 0;
    double perSecond = 0;
};

// Measures one kind of request against a running server over loopback with
// keep-alive: latency of sequential requests, then throughput of `clients`
// concurrent clients for `seconds`. Every reply must have `expectedStatus`.
class Benchmark
{
public:
    Benchmark(int port, std::string caPath, std::string apiKey);

    [[nodiscard]] BenchFigures measure(const std::vector<std::string> &targets, int expectedStatus,
                                       int clients, double seconds) const;
    // Latency only, each request on a new connection as a newly arrived user's would be.
    [[nodiscard]] BenchFigures firstRequestLatency(const std::vector<std::string> &targets,
                                                   int expectedStatus) const;

private:
    int m_port;
    std::string m_caPath;
    std::string m_apiKey;
};

} // namespace foodservice
