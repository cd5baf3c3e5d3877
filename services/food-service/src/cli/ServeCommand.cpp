#include "cli/CommandLine.h"
#include "cli/Commands.h"
#include "http/FoodServer.h"

#include <atomic>
#include <charconv>
#include <chrono>
#include <csignal>
#include <iostream>
#include <pthread.h>
#include <thread>

namespace foodservice {
namespace {

int portOption(const std::string &text)
{
    int port = -1;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), port);
    if (error != std::errc() || end != text.data() + text.size() || port < 0 || port > 65535)
        throw UsageError("--port must be a number from 0 to 65535");
    return port;
}

} // namespace

int runServe(const CommandLine &options)
{
    ServerOptions settings;
    settings.database = options.required("db");
    settings.apiKey = options.required("api-key");
    settings.host = options.value("host").value_or("127.0.0.1");
    settings.certificatePath = options.value("cert").value_or("");
    settings.keyPath = options.value("key").value_or("");
    const int requestedPort = portOption(options.required("port"));
    if (settings.apiKey.empty())
        throw UsageError("--api-key must not be empty");

    // Every thread started from here on leaves SIGINT and SIGTERM to the waiter below.
    sigset_t stopSignals;
    sigemptyset(&stopSignals);
    sigaddset(&stopSignals, SIGINT);
    sigaddset(&stopSignals, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &stopSignals, nullptr);

    FoodServer server(settings);
    const int port = server.bind(requestedPort);
    std::cout << "listening on https://" << settings.host << ":" << port << " ca=" << server.caPath()
              << std::endl;

    std::atomic<bool> signalled = false;
    std::atomic<bool> finished = false;
    std::thread waiter([&] {
        int signal = 0;
        sigwait(&stopSignals, &signal);
        signalled = true;
        // A stop before the server runs is lost, so repeat it until serving ends.
        while (!finished) {
            server.stop();
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
    });
    const bool served = server.run();
    finished = true;
    // Wakes the waiter when serving ended by itself.
    if (!signalled)
        pthread_kill(waiter.native_handle(), SIGTERM);
    waiter.join();
    return served ? 0 : 1;
}

} // namespace foodservice
