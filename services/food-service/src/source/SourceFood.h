#pragma once

#include <string>
#include <vector>

namespace foodservice {

// A household measure as the source gives it: "1.0 cup, mashed" weighing 225 g.
struct SourceMeasure
{
    double amount = 0;
    std::string name;
    double grams = 0;
};

struct SourceNutrient
{
    std::string name;
    double per100g = 0;
};

// One food of the source data, nutrients per 100 g.
struct SourceFood
{
    int id = 0;
    std::string name;
    std::vector<SourceMeasure> measures;
    std::vector<SourceNutrient> nutrients;
};

} // namespace foodservice
