#include "Totals.h"

#include "DiaryEntry.h"

#include <cmath>

namespace nutrika {

double round1(double value)
{
    return std::round(value * 10.0) / 10.0;
}

double calculateTotal(const QList<QSharedPointer<DiaryEntry>> &lines)
{
    double sum = 0;
    for (const auto &line : lines)
        sum += line->totalTrackedNutrient();
    return round1(sum);
}

} // namespace nutrika
