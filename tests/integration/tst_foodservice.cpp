#include "AccompanyingFoodsRequest.h"
#include "FilterOptionsRequest.h"
#include "FoodSearchRequest.h"
#include "FoodServiceProcess.h"
#include "NutrientsRequest.h"
#include "PortionImageRequest.h"
#include "PortionsRequest.h"
#include "ServiceClient.h"

#include <QTest>

using namespace nutrika;
using namespace Qt::Literals::StringLiterals;

namespace {

// Sends through `send` and waits for its one completion.
template <typename Result, typename Send> std::optional<Result> await(Send send)
{
    QObject context;
    std::optional<Result> result;
    send(&context, [&result](const Result &value) { result = value; });
    if (!QTest::qWaitFor([&result] { return result.has_value(); }, 60000))
        return std::nullopt;
    return result;
}

std::optional<FoodSearchPage> search(ServiceClient &client, const FoodSearchQuery &query)
{
    const auto result = await<ServiceResult<FoodSearchPage>>(
        [&](QObject *context, auto done) { requestFoodSearch(client, query, context, done); });
    if (!result || !std::holds_alternative<FoodSearchPage>(*result))
        return std::nullopt;
    return std::get<FoodSearchPage>(*result);
}

QList<PortionItem> portionsOf(ServiceClient &client, qint64 foodId)
{
    const auto result = await<std::optional<QList<PortionItem>>>(
        [&](QObject *context, auto done) { requestPortions(client, foodId, context, done); });
    return result && *result ? **result : QList<PortionItem>();
}

std::optional<QImage> pictureOf(ServiceClient &client, qint64 portionId, bool thumbnail)
{
    const auto result = await<std::optional<QImage>>([&](QObject *context, auto done) {
        thumbnail ? requestPortionThumbnail(client, portionId, context, done)
                  : requestPortionImage(client, portionId, context, done);
    });
    return result ? *result : std::nullopt;
}

} // namespace

class FoodServiceTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        m_service = std::make_unique<FoodServiceProcess>(QStringLiteral(NUTRIKA_FOOD_DB));
        QVERIFY2(m_service->isReady(), qPrintable(m_service->errorString()));
        m_client.setOrigin(QUrl(m_service->origin()));
        m_client.setCaCertificates(QSslCertificate::fromPath(m_service->caPath()));
    }

    void init() { m_client.setApiKey(m_service->apiKey()); }

    void findsAGenericFood()
    {
        const std::optional<FoodSearchPage> page =
            search(m_client, {u"Bananas, raw"_s, 0, QString(), QString()});
        QVERIFY(page);
        QVERIFY(page->count >= 1);
        const qsizetype at = page->generic.indexOf(FoodItem{QString(), 9040, 0, QString(), false});
        QVERIFY(at >= 0);
        const FoodItem &banana = page->generic.at(at);
        QCOMPARE(banana.description, u"Bananas, raw"_s);
        QCOMPARE(banana._id, 9040);
        QVERIFY(!banana.isBranded);
    }

    void filtersByEscapedBrandAndCategory()
    {
        const std::optional<FoodSearchPage> page =
            search(m_client, {u"chicken"_s, 0, u"WENDY'S"_s, u"Fast Foods"_s});
        QVERIFY(page);
        QVERIFY(!page->branded.isEmpty());
        QVERIFY(page->generic.isEmpty());
        for (const FoodItem &food : page->branded)
            QCOMPARE(food.brand, u"WENDY'S"_s);
    }

    void loadsFilterOptions()
    {
        const auto options = await<std::optional<FilterOptions>>([this](QObject *context, auto done) {
            requestFilterOptions(m_client, u"cheerios"_s, context, done);
        });
        QVERIFY(options && *options);
        QCOMPARE((*options)->brands, QStringList{u"GENERAL MILLS"_s});
        QCOMPARE((*options)->categories, QStringList{u"Breakfast Cereals"_s});
    }

    void computesCarbohydratesOfAMediumBanana()
    {
        const QList<PortionItem> portions = portionsOf(m_client, 9040);
        QCOMPARE(portions.size(), 8);
        const auto medium = std::find_if(portions.cbegin(), portions.cend(), [](const PortionItem &p) {
            return p.description.contains(u"medium");
        });
        QVERIFY(medium != portions.cend());
        QCOMPARE(medium->size, 118);
        QCOMPARE(medium->unit, u"grams"_s);

        const FoodItem banana{u"Bananas, raw"_s, 9040, 9040, QString(), false};
        const auto nutrients = await<std::optional<PortionNutrients>>(
            [&](QObject *context, auto done) { requestNutrients(m_client, banana, *medium, context, done); });
        QVERIFY(nutrients && *nutrients);
        const PortionNutrients &mapped = **nutrients;
        QVERIFY(mapped.trackedNutrient);
        QCOMPARE(mapped.trackedNutrient->value, 22.84 * 118 / 100);
        QCOMPARE(mapped.trackedNutrient->unit, u"grams"_s);
        QCOMPARE(mapped.trackedNutrient->dp, 1);
        QVERIFY(!mapped.nutrients.isEmpty());
        QCOMPARE(mapped.nutrients.first().name, u"Calories"_s);
        QCOMPARE(mapped.nutrients.first().dp, 0);
    }

    void suggestsAccompanyingFoods()
    {
        const auto foods = await<std::optional<QList<FoodItem>>>(
            [this](QObject *context, auto done) { requestAccompanyingFoods(m_client, 8013, context, done); });
        QVERIFY(foods && *foods);
        QVERIFY((*foods)->contains(FoodItem{QString(), 1079, 0, QString(), false}));
    }

    void fetchesPortionPictures_data()
    {
        QTest::addColumn<bool>("thumbnail");
        QTest::addColumn<QSize>("size");
        QTest::newRow("thumbnail") << true << QSize(200, 200);
        QTest::newRow("full size") << false << QSize(600, 600);
    }

    void fetchesPortionPictures()
    {
        QFETCH(bool, thumbnail);
        QFETCH(QSize, size);
        const PortionItem pictured = portionsOf(m_client, 9040).constFirst();
        QVERIFY(!pictured.image_name.isEmpty());
        const std::optional<QImage> image = pictureOf(m_client, pictured.id, thumbnail);
        QVERIFY(image);
        QCOMPARE(image->size(), size);
    }

    void refusesAWrongKey()
    {
        m_client.setApiKey(u"not-the-key"_s);
        const auto result = await<ServiceResult<FoodSearchPage>>([this](QObject *context, auto done) {
            requestFoodSearch(m_client, {u"banana"_s, 0, QString(), QString()}, context, done);
        });
        QVERIFY(result);
        QCOMPARE(std::get<ServiceFailure>(*result), ServiceFailure::ServerError);
    }

private:
    std::unique_ptr<FoodServiceProcess> m_service;
    ServiceClient m_client;
};

QTEST_GUILESS_MAIN(FoodServiceTest)
#include "tst_foodservice.moc"
