#include "catalog/Importer.h"
#include "cli/CommandLine.h"
#include "cli/Commands.h"

#include <iostream>

namespace foodservice {

int runImport(const CommandLine &options)
{
    const auto summary = importFoods(options.required("source"), options.required("db"));
    std::cout << "imported " << summary.foods << " foods, " << summary.portions << " portions, "
              << summary.accompaniments << " accompanying foods\n";
    for (const auto &offer : summary.missingOffers)
        std::cout << "pairing offer not in the data: " << offer << '\n';
    return 0;
}

} // namespace foodservice
