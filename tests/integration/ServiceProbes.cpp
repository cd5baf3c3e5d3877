#include "ServiceProbes.h"

#include "AccompanyingFoodsRequest.h"
#include "FilterOptionsRequest.h"
#include "PortionImageRequest.h"
#include "PortionsRequest.h"

#include <QTest>

using namespace nutrika;
using namespace Qt::Literals::StringLiterals;

namespace {

template <typename T>
QString countOrNone(const std::optional<T> &value, const QString &what)
{
    return value ? u"%1 %2"_s.arg(value->size()).arg(what) : u"none"_s;
}

QString imageOrNone(const std::optional<QImage> &image)
{
    return image ? u"image %1x%2"_s.arg(image->width()).arg(image->height()) : u"none"_s;
}

} // namespace

namespace probe {

Probe foodSearch(const FoodSearchQuery &query)
{
    return [query](QObject *context, auto report) {
        requestFoodSearch(query, context, [report](const ServiceResult<FoodSearchPage> &result) {
            if (const auto *failure = std::get_if<ServiceFailure>(&result)) {
                report(failureMessage(*failure).title);
                return;
            }
            const auto &page = std::get<FoodSearchPage>(result);
            report(u"page of %1: %2 generic, %3 branded"_s.arg(page.count).arg(page.generic.size()).arg(
                page.branded.size()));
        });
    };
}

Probe filterOptions(const QString &search)
{
    return [search](QObject *context, auto report) {
        requestFilterOptions(search, context, [report](const std::optional<FilterOptions> &options) {
            report(options ? u"%1 brands, %2 categories"_s.arg(options->brands.size()).arg(options->categories.size())
                           : u"none"_s);
        });
    };
}

Probe portions(qint64 foodId)
{
    return [foodId](QObject *context, auto report) {
        requestPortions(foodId, context, [report](const auto &portions) { report(countOrNone(portions, u"portions"_s)); });
    };
}

Probe nutrients(const FoodItem &food, const PortionItem &portion)
{
    return [food, portion](QObject *context, auto report) {
        requestNutrients(food, portion, context, [report](const std::optional<PortionNutrients> &nutrients) {
            report(nutrients ? u"%1 nutrients"_s.arg(nutrients->nutrients.size()) : u"none"_s);
        });
    };
}

Probe accompanyingFoods(qint64 foodId)
{
    return [foodId](QObject *context, auto report) {
        requestAccompanyingFoods(foodId, context, [report](const auto &foods) { report(countOrNone(foods, u"foods"_s)); });
    };
}

Probe thumbnail(qint64 portionId)
{
    return [portionId](QObject *context, auto report) {
        requestPortionThumbnail(portionId, context, [report](const auto &image) { report(imageOrNone(image)); });
    };
}

Probe picture(qint64 portionId)
{
    return [portionId](QObject *context, auto report) {
        requestPortionImage(portionId, context, [report](const auto &image) { report(imageOrNone(image)); });
    };
}

QString run(const Probe &probe)
{
    QObject context;
    std::optional<QString> outcome;
    probe(&context, [&outcome](const QString &text) { outcome = text; });
    if (!QTest::qWaitFor([&outcome] { return outcome.has_value(); }, 30000))
        return {};
    return *outcome;
}

} // namespace probe
