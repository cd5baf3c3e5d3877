#pragma once

#include "bench/Benchmark.h"

#include <string>

namespace foodservice {

// Times the portion pictures of a spread of pictured portions: drawn and encoded in
// process without any cache, and requested over HTTPS, each beside the 404 floor.
// Prints the figures and returns whether the goals were met.
bool benchPictures(const Benchmark &benchmark, const std::string &database, const BenchFigures &floor,
                   int clients, double seconds);

} // namespace foodservice
