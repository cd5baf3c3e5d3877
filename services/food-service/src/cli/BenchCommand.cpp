#include "bench/Benchmark.h"
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
constexpr double goalP50 = 2.0;
constexpr double goalFloorRatio = 3.0;
constexpr double goalPerSecond = 2000;

// Typical searches as people type them, misspellings included.
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
        std::printf("%zu typical searches, %d concurrent clients for throughput, HTTPS keep-alive\n",
                    searches.size(), concurrentClients);
        report("search", search);
        report("floor (404)", cheapest);
        std::printf("search / floor: p50 %.2fx   p99 %.2fx   throughput %.2fx\n", search.p50 / cheapest.p50,
                    search.p99 / cheapest.p99, search.perSecond / cheapest.perSecond);
        const bool met = search.p50 <= goalP50 && search.p50 <= goalFloorRatio * cheapest.p50 &&
                         search.perSecond >= goalPerSecond;
        std::printf("goals (p50 <= %.0f ms, p50 <= %.0fx floor, >= %.0f searches/s): %s\n", goalP50,
                    goalFloorRatio, goalPerSecond, met ? "met" : "NOT met");
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
