// Maps a 50-result food search reply and a 40-nutrient reply, beside the floor: a bare
// QJsonDocument::fromJson of the same bytes. Goal: mapping costs at most 1.5 times the floor.
#include "FoodSearchRequest.h"
#include "NutrientsRequest.h"

#include <algorithm>
#include <cstdio>
#include <functional>
#include <limits>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace nutrika;
using namespace Qt::Literals::StringLiterals;

namespace {

// Keeps the measured calls from being optimised away.
volatile qsizetype sink = 0;

/// Microseconds per call of `call`, timed over a batch of calls.
double batchMicroseconds(const std::function<void()> &call)
{
    constexpr int calls = 200;
    QElapsedTimer timer;
    timer.start();
    for (int i = 0; i < calls; ++i)
        call();
    return double(timer.nsecsElapsed()) / 1e3 / calls;
}

QByteArray searchReply()
{
    QJsonArray results;
    for (int i = 0; i < 50; ++i) {
        results.append(
            QJsonObject{{u"id"_s, 170000 + i},
                        {u"description"_s, u"Cereals ready-to-eat, whole grain flakes, %1"_s.arg(i)},
                        {u"food_brand"_s, i % 3 ? u"GENERAL MILLS"_s : QString()},
                        {u"food_category"_s, u"Breakfast Cereals"_s},
                        {u"is_generic_item"_s, i % 3 ? 0 : 1}});
    }
    return QJsonDocument(
               QJsonObject{{u"count"_s, 1203},
                           {u"next"_s, u"https://food.nutrika.app/api/v1/healthcare//food?offset=50"_s},
                           {u"results"_s, results}})
        .toJson(QJsonDocument::Compact);
}

QByteArray nutrientsReply()
{
    QJsonArray macro;
    QJsonArray micro;
    for (int i = 0; i < 40; ++i) {
        const QJsonObject element{
            {u"nutrient"_s, QJsonObject{{u"id"_s, 200 + i},
                                        {u"name"_s, i == 2 ? u"Carbohydrates"_s : u"Nutrient %1"_s.arg(i)}}},
            {u"amount"_s, QJsonObject{{u"value"_s, 0.0137 * (i + 1) * 118}, {u"units"_s, u"milligrams"_s}}}};
        (i < 10 ? macro : micro).append(element);
    }
    return QJsonDocument(QJsonObject{{u"macronutrients"_s, macro}, {u"micronutrients"_s, micro}})
        .toJson(QJsonDocument::Compact);
}

void report(const char *what, const QByteArray &bytes, const std::function<qsizetype()> &map)
{
    // Batches of the two alternate, so a busy moment of the machine weighs on both alike; the best
    // batch of each counts.
    double floor = std::numeric_limits<double>::max();
    double mapped = floor;
    for (int round = 0; round < 40; ++round) {
        floor = std::min(floor,
                         batchMicroseconds([&] { sink = QJsonDocument::fromJson(bytes).object().size(); }));
        mapped = std::min(mapped, batchMicroseconds([&] { sink = map(); }));
    }
    std::printf("%-24s %5lld bytes   map %7.2f us/reply   floor (QJsonDocument::fromJson) %7.2f us   "
                "ratio %.2f (goal <= 1.50)\n",
                what, static_cast<long long>(bytes.size()), mapped, floor, mapped / floor);
}

} // namespace

int main()
{
    const QByteArray search = searchReply();
    report("food search, 50 results", search, [&] {
        const auto page = mapFoodSearchReply(ServiceReply::classify(200, search));
        return std::get<FoodSearchPage>(page).generic.size();
    });
    const QByteArray nutrients = nutrientsReply();
    report("nutrients, 40 entries", nutrients, [&] {
        const auto mapped = mapNutrientsReply(ServiceReply::classify(200, nutrients));
        return std::get<PortionNutrients>(mapped).nutrients.size();
    });
    return 0;
}
