#include "FoodSearchRequest.h"

#include "Diagnostics.h"
#include "ReplyFields.h"
#include "ServiceClient.h"
#include "ServiceFood.h"

#include <QJsonArray>

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

QString foodSearchPath()
{
    return u"/api/v1/healthcare//food"_s;
}

QueryParameters foodSearchParameters(const FoodSearchQuery &query)
{
    return {{u"limit"_s, QString::number(FOOD_SEARCH_PAGE_SIZE)},
            {u"offset"_s, QString::number(query.offset)},
            {u"search"_s, query.search},
            {u"food_brand"_s, query.foodBrand},
            {u"food_category"_s, query.foodCategory}};
}

ServiceResult<FoodSearchPage> mapFoodSearchReply(const ServiceReply &reply)
{
    if (!hasJsonBody(reply) || !reply.json.isObject())
        return failureOf(reply);
    const QJsonObject root = reply.json.object();
    const std::optional<qint64> count = lenient::integer(root.value("count"_L1));
    const QJsonValue results = root.value("results"_L1);
    if (!count || !results.isArray())
        return ServiceFailure::ServerError;

    const QJsonArray elements = results.toArray();
    FoodSearchPage page;
    page.count = *count;
    page.generic.reserve(elements.size());
    page.branded.reserve(elements.size());
    for (const QJsonValue element : elements) {
        std::optional<FoodItem> food = serviceFood(element);
        if (!food)
            return ServiceFailure::ServerError;
        (food->isBranded ? page.branded : page.generic).append(std::move(*food));
    }
    return page;
}

void requestFoodSearch(ServiceClient &client, const FoodSearchQuery &query, QObject *context,
                       std::function<void(const ServiceResult<FoodSearchPage> &)> done)
{
    client.sendJsonRequest(foodSearchPath(), foodSearchParameters(query), context,
                           [done = std::move(done)](const ServiceReply &reply) {
                               const ServiceResult<FoodSearchPage> result = mapFoodSearchReply(reply);
                               if (const auto *failure = std::get_if<ServiceFailure>(&result))
                                   printDiagnostic(failureMessage(*failure).body);
                               done(result);
                           });
}

} // namespace nutrika
