#include "bench/PictureBench.h"

#include "bench/LatencySample.h"
#include "db/ConnectionPool.h"
#include "db/FoodStore.h"
#include "db/Sqlite.h"
#include "picture/PortionPictures.h"

#include <chrono>
#include <cstdio>
#include <ctime>

namespace foodservice {
namespace {

constexpr int sampled = 200;
constexpr int requested = 40;
constexpr int fullSize = 600;
constexpr int thumbnailSize = 200;
constexpr double goalFull = 5.0;
constexpr double goalThumbnail = 2.0;

// Every n-th pictured portion, so each measure and most food groups appear.
std::vector<std::int64_t> spreadOfPortions(const std::string &database)
{
    Connection db(database, Connection::Mode::ReadOnly);
    auto count = db.prepare("SELECT count(*) FROM portion WHERE picture != ''");
    (void)count.step();
    const std::int64_t step = std::max<std::int64_t>(1, count.integer(0) / sampled);
    auto query = db.prepare("SELECT id FROM portion WHERE picture != '' ORDER BY id");
    std::vector<std::int64_t> ids;
    for (std::int64_t row = 0; query.step(); ++row) {
        if (row % step == 0)
            ids.push_back(query.integer(0));
    }
    return ids;
}

struct DrawFigures
{
    double p50 = 0;
    double p99 = 0;
    double cpuP50 = 0;
};

double threadCpuMilliseconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

// Wall time, and the drawing thread's own CPU time, which other work on the machine does not stretch.
DrawFigures timeDrawing(const PortionPictures &pictures, const std::vector<PortionPictureRow> &rows, int size)
{
    LatencySample wall;
    LatencySample cpu;
    for (const auto &row : rows) {
        const auto start = std::chrono::steady_clock::now();
        const double cpuStart = threadCpuMilliseconds();
        const auto png = pictures.png(row, size);
        cpu.add(threadCpuMilliseconds() - cpuStart);
        wall.add(std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
    }
    return {wall.percentile(0.5), wall.percentile(0.99), cpu.percentile(0.5)};
}

} // namespace

bool benchPictures(const Benchmark &benchmark, const std::string &database, const BenchFigures &floor,
                   int clients, double seconds)
{
    const auto ids = spreadOfPortions(database);
    ConnectionPool pool(database);
    const FoodStore store(pool);
    std::vector<PortionPictureRow> rows;
    for (const auto id : ids)
        rows.push_back(*store.portionPicture(id));
    const PortionPictures pictures;
    // Renders each glyph once; the font's bitmaps are kept, the pictures are not.
    (void)timeDrawing(pictures, rows, thumbnailSize);
    const auto full = timeDrawing(pictures, rows, fullSize);
    const auto thumbnail = timeDrawing(pictures, rows, thumbnailSize);
    std::printf("%zu portion pictures drawn and encoded in process, no cache:\n", rows.size());
    for (const auto &[what, figures] : {std::pair{"full 600 px", full}, std::pair{"thumb 200 px", thumbnail}})
        std::printf(
            "%-14s p50 %7.3f ms   p99 %7.3f ms   cpu p50 %7.3f ms   (p50 %.2fx the floor's request)\n", what,
            figures.p50, figures.p99, figures.cpuP50, figures.p50 / floor.p50);

    std::vector<std::string> thumbnails;
    std::vector<std::string> fulls;
    for (std::size_t i = 0; i < ids.size() && thumbnails.size() < requested;
         i += ids.size() / requested + 1) {
        const std::string path = "/api/v1/healthcare//food_portion_images/" + std::to_string(ids[i]);
        thumbnails.push_back(path + "?width=200&height=200&type=thumbnail");
        fulls.push_back(path);
    }
    const auto thumbnailRequests = benchmark.measure(thumbnails, 200, clients, seconds);
    const auto fullRequests = benchmark.measure(fulls, 200, clients, seconds);
    std::printf("%zu portion pictures requested over HTTPS, kept by the service after the first request:\n",
                thumbnails.size());
    for (const auto &[what, figures] :
         {std::pair{"thumbnail", thumbnailRequests}, std::pair{"full size", fullRequests}})
        std::printf(
            "%-14s p50 %7.3f ms   p99 %7.3f ms   %8.0f requests/s   (p50 %.2fx, throughput %.2fx floor)\n",
            what, figures.p50, figures.p99, figures.perSecond, figures.p50 / floor.p50,
            figures.perSecond / floor.perSecond);
    const bool met = full.cpuP50 <= goalFull && thumbnail.cpuP50 <= goalThumbnail;
    std::printf("goals (drawn and encoded, cpu p50: full <= %.0f ms, thumbnail <= %.0f ms): %s\n", goalFull,
                goalThumbnail, met ? "met" : "NOT met");
    return met;
}

} // namespace foodservice
