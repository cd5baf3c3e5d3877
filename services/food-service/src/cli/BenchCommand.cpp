#include "bench/Benchmark.h"
#include "bench/HeldConnections.h"
#include "bench/PictureBench.h"
#include "cli/CommandLine.h"
#include "cli/Commands.h"
#include "http/FoodServer.h"
#include "http/QueryString.h"

#include <cstdio>
#include <thread>

namespace foodservice {
namespace {

constexpr int concurrentClients = 8;
constexpr int idleConnections = 256;
constexpr int slowConnections = 64;
constexpr double goalP50 = 2.0;
// Requests per second of the 404 over searches per second.
constexpr double goalThroughputRatio = 2.5;
constexpr double goalHeldP99 = 100.0;

// Typical searches as people type them, misspellings included: a mix, so that no cache
// of one reply makes the figure.
const std::vector<std::string> typicalSearches = {
    "banana",       "milk",       "bread",        "chicken", "rice",        "apple",         "egg",
    "cheese",       "pasta",      "orange juice", "coffee",  "tea",         "yogurt",        "butter",
    "potato",       "beef",       "pork",         "salmon",  "tuna",        "broccoli",      "carrot",
    "tomato",       "lettuce",    "oatmeal",      "cereal",  "corn flakes", "pizza",         "hamburger",
    "french fries", "chick nugg", "chocolate",    "cookie",  "ice cream",   "peanut butter", "jam",
    "honey",        "sugar",      "beans",        "lentils", "tofu",        "spaghetti",     "noodles",
    "bagel",        "croissant",  "pancakes",     "brocoli", "bananna",     "strawberries",  "grapes",
    "cola"};

void report(const char *what, const BenchFigures &figures)
{
    std::printf("%-14s p50 %7.3f ms   p99 %7.3f ms   %8.0f requests/s\n", what, figures.p50, figures.p99,
                figures.perSecond);
}

} // namespace

int runBench(const CommandLine &options)
{
    const double seconds = std::stod(options.value("seconds").value_or("3"));
    ServerOptions settings;
    settings.database = options.required("db");
    settings.apiKey = "bench-key";
    FoodServer server(settings);
    const int port = server.bind(0);
    std::thread serving([&] { (void)server.run(); });

    std::vector<std::string> searches;
    for (const auto &text : typicalSearches)
        searches.push_back("/api/v1/healthcare//food?food_brand=&food_category=&limit=50&offset=0&search=" +
                           percentEncode(text));
    const std::vector<std::string> floor = {"/api/v1/healthcare//food/0"};

    const Benchmark benchmark(port, server.caPath(), settings.apiKey);
    int status = 0;
    try {
        const auto search = benchmark.measure(searches, 200, concurrentClients, seconds);
        const auto cheapest = benchmark.measure(floor, 404, concurrentClients, seconds);
        const auto alone = benchmark.firstRequestLatency(searches, 200);
        BenchFigures held;
        {
            const HeldConnections connections(port, server.caPath(), idleConnections, slowConnections);
            held = benchmark.firstRequestLatency(searches, 200);
        }
        std::printf("%zu different searches, %d concurrent clients for throughput, HTTPS keep-alive\n",
                    searches.size(), concurrentClients);
        report("search", search);
        report("floor (404)", cheapest);
        const double ratio = cheapest.perSecond / search.perSecond;
        std::printf("floor / search throughput: %.2f (goal <= %.1f)   search p50 %.3f ms (goal <= %.0f ms)\n",
                    ratio, goalThroughputRatio, search.p50, goalP50);
        std::printf("search on a new connection: p50 %.3f ms   p99 %.3f ms\n", alone.p50, alone.p99);
        std::printf(
            "the same beside %d idle and %d slow connections: p50 %.3f ms   p99 %.3f ms (goal <= %.0f ms)\n",
            idleConnections, slowConnections, held.p50, held.p99, goalHeldP99);
        const bool met = ratio <= goalThroughputRatio && search.p50 <= goalP50 && held.p99 <= goalHeldP99;
        std::printf("goals: %s\n", met ? "met" : "NOT met");
        (void)benchPictures(benchmark, settings.database, cheapest, concurrentClients, seconds);
    } catch (const std::exception &error) {
        std::fprintf(stderr, "bench failed: %s\n", error.what());
        status = 1;
    }
    server.stop();
    serving.join();
    return status;
}

} // namespace foodservice
