#include "ServiceProbes.h"

#include "AccompanyingFoodsRequest.h"
#include "FilterOptionsRequest.h"
#include "PortionImageRequest.h"
#include "PortionsRequest.h"
#include "RecordingServer.h"

#include <QTest>

using namespace nutrika;
using namespace Qt::Literals::StringLiterals;

namespace {

template <typename T> QString countOrNone(const std::optional<T> &value, const QString &what)
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
    return [query](ServiceClient &client, QObject *context, auto report) {
        requestFoodSearch(client, query, context, [report](const ServiceResult<FoodSearchPage> &result) {
            if (const auto *failure = std::get_if<ServiceFailure>(&result)) {
                report(failureMessage(*failure).title);
                return;
            }
            const auto &page = std::get<FoodSearchPage>(result);
            report(u"page of %1: %2 generic, %3 branded"_s.arg(page.count)
                       .arg(page.generic.size())
                       .arg(page.branded.size()));
        });
    };
}

Probe filterOptions(const QString &search)
{
    return [search](ServiceClient &client, QObject *context, auto report) {
        requestFilterOptions(client, search, context, [report](const std::optional<FilterOptions> &options) {
            report(options ? u"%1 brands, %2 categories"_s.arg(options->brands.size())
                                 .arg(options->categories.size())
                           : u"none"_s);
        });
    };
}

Probe portions(qint64 foodId)
{
    return [foodId](ServiceClient &client, QObject *context, auto report) {
        requestPortions(client, foodId, context,
                        [report](const auto &portions) { report(countOrNone(portions, u"portions"_s)); });
    };
}

Probe nutrients(const FoodItem &food, const PortionItem &portion)
{
    return [food, portion](ServiceClient &client, QObject *context, auto report) {
        requestNutrients(
            client, food, portion, context, [report](const std::optional<PortionNutrients> &nutrients) {
                report(nutrients ? u"%1 nutrients"_s.arg(nutrients->nutrients.size()) : u"none"_s);
            });
    };
}

Probe accompanyingFoods(qint64 foodId)
{
    return [foodId](ServiceClient &client, QObject *context, auto report) {
        requestAccompanyingFoods(client, foodId, context,
                                 [report](const auto &foods) { report(countOrNone(foods, u"foods"_s)); });
    };
}

Probe thumbnail(qint64 portionId)
{
    return [portionId](ServiceClient &client, QObject *context, auto report) {
        requestPortionThumbnail(client, portionId, context,
                                [report](const auto &image) { report(imageOrNone(image)); });
    };
}

Probe picture(qint64 portionId)
{
    return [portionId](ServiceClient &client, QObject *context, auto report) {
        requestPortionImage(client, portionId, context,
                            [report](const auto &image) { report(imageOrNone(image)); });
    };
}

void pointAt(ServiceClient &client, const QString &origin)
{
    client.setOrigin(QUrl(origin));
    client.setCaCertificates(QSslCertificate::fromPath(RecordingServer::tlsDirectory() + u"/ca.pem"_s));
}

QString run(ServiceClient &client, const Probe &probe)
{
    QObject context;
    std::optional<QString> outcome;
    probe(client, &context, [&outcome](const QString &text) { outcome = text; });
    if (!QTest::qWaitFor([&outcome] { return outcome.has_value(); }, 30000))
        return {};
    return *outcome;
}

} // namespace probe
