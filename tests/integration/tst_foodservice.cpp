#include "FoodServiceProcess.h"
#include "ServiceProbes.h"

using namespace nutrika;
using namespace Qt::Literals::StringLiterals;

// The service client against the local food-data service: real replies, mapped to what the screens show.
class FoodServiceTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<FoodServiceProcess> m_service;
    ServiceClient m_client;

private slots:
    void initTestCase()
    {
        m_service = std::make_unique<FoodServiceProcess>(QStringLiteral(NUTRIKA_FOOD_DB));
        QVERIFY2(m_service->isReady(), qPrintable(m_service->errorString()));
        m_client.setOrigin(QUrl(m_service->origin()));
        m_client.setCaCertificates(QSslCertificate::fromPath(m_service->caPath()));
        m_client.setApiKey(m_service->apiKey());
    }

    // The client's query finds the food, mapped as generic. Filters and the other lists are checked against
    // the service by its own tests, and their mapping by the unit tests.
    void findsAGenericFood()
    {
        const auto result = probe::await<ServiceResult<FoodSearchPage>, requestFoodSearch>(
            m_client, FoodSearchQuery{u"Bananas, raw"_s, 0, {}, {}});
        QVERIFY(result && std::holds_alternative<FoodSearchPage>(*result));
        const FoodSearchPage &page = std::get<FoodSearchPage>(*result);
        const qsizetype at = page.generic.indexOf(FoodItem{{}, 9040, 0, {}, false});
        QVERIFY(at >= 0);
        QCOMPARE(page.generic.at(at).description, u"Bananas, raw"_s);
        QCOMPARE(page.generic.at(at)._id, 9040);
        QVERIFY(!page.generic.at(at).isBranded);
    }

    // The number a dose is taken from: the service's carbohydrates per 100 g, scaled to the portion.
    void readsTheBananaPortionsTheirPicturesAndCarbohydrates()
    {
        const auto portions =
            probe::await<std::optional<QList<PortionItem>>, requestPortions>(m_client, 9040);
        QVERIFY(portions && *portions);
        const auto medium =
            std::find_if((*portions)->cbegin(), (*portions)->cend(),
                         [](const PortionItem &p) { return p.description.contains(u"medium"); });
        QVERIFY(medium != (*portions)->cend());
        QCOMPARE(medium->size, 118);
        QCOMPARE(medium->unit, u"grams"_s);

        const FoodItem banana{u"Bananas, raw"_s, 9040, 9040, QString(), false};
        const auto nutrients =
            probe::await<std::optional<PortionNutrients>, requestNutrients>(m_client, banana, *medium);
        QVERIFY(nutrients && *nutrients && (*nutrients)->trackedNutrient);
        const NutrientValue &carbohydrates = *(*nutrients)->trackedNutrient;
        QCOMPARE(carbohydrates.value, 22.84 * 118 / 100);
        QCOMPARE(carbohydrates.unit, u"grams"_s);
        QCOMPARE(carbohydrates.dp, 1);
        QCOMPARE((*nutrients)->nutrients.value(0).name, u"Calories"_s);
        QCOMPARE((*nutrients)->nutrients.value(0).dp, 0);

        const qint64 pictured = (*portions)->first().id; // the first portion is pictured
        QCOMPARE(probe::make<requestPortionThumbnail>(pictured)(m_client), u"image 200x200"_s);
        QCOMPARE(probe::make<requestPortionImage>(pictured)(m_client), u"image 600x600"_s);
    }
};

QTEST_GUILESS_MAIN(FoodServiceTest)
#include "tst_foodservice.moc"
