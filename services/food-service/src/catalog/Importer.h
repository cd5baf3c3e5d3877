#pragma once

#include <set>
#include <string>

namespace foodservice {

struct ImportSummary
{
    int foods = 0;
    int portions = 0;
    int accompaniments = 0;
    // Offered descriptions of the pairing table that name no food of the source.
    std::set<std::string> missingOffers;
};

// Builds the food database at dbPath from the source data (archive or folder).
// The file is replaced only when the import succeeds; throws std::runtime_error.
ImportSummary importFoods(const std::string &source, const std::string &dbPath);

} // namespace foodservice
