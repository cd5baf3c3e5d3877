#include "AddToCalcPreviewUIView.h"
#include "CarbCounterUIView.h"
#include "EnvironmentVariables.h"
#include "ExampleData.h"
#include "PortionPicture.h"
#include "RecordingServer.h"
#include "SelectPortionUIView.h"

#include <QBuffer>
#include <QImage>
#include <QSignalSpy>
#include <QSslCertificate>
#include <QTest>

using namespace nutrika;
using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray portionJson(qint64 id, const char *imageName)
{
    return u"{\"order_num\":1,\"id\":%1,\"unit\":\"grams\",\"database_import\":1,\"size\":118,\"image_name\":"
           u"\"%2\","
           "\"description\":\"medium\",\"convertible_unit\":{\"type\":\"mass\",\"is_base\":1,\"id\":1,"
           "\"to_base_conversion_rate\":1,\"name\":\"gram\",\"unit\":\"g\"}}"_s.arg(id)
               .arg(QLatin1StringView(imageName))
               .toUtf8();
}

QByteArray png()
{
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(Qt::yellow);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

const FoodItem banana{u"Bananas, raw"_s, 9040, 9040, QString(), false};

} // namespace

// What the portion, preview and calculator screens are left with when the service answers badly: each
// stays usable, in the state its rules give, and nothing crashes.
class AddFlowFaultsTest : public QObject
{
    Q_OBJECT

    RecordingServer server;

private slots:
    void initTestCase()
    {
        ServiceClient &client = *EnvironmentVariables::shared()->serviceClient();
        client.setOrigin(QUrl(server.origin()));
        client.setCaCertificates(QSslCertificate::fromPath(RecordingServer::tlsDirectory() + u"/ca.pem"_s));
    }

    void portionLists_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<int>("pictured");
        QTest::addColumn<int>("described");
        QTest::addColumn<int>("tab");
        QTest::newRow("no portions: descriptions tab, custom box only")
            << 200 << QByteArray(R"({"portions":[]})") << 0 << 0 << 1;
        QTest::newRow("two portions share an id: both listed")
            << 200 << "{\"portions\":[" + portionJson(5, "a") + "," + portionJson(5, "b") + "]}" << 2 << 0
            << 0;
        QTest::newRow("500: nothing, tab kept") << 500 << QByteArray() << 0 << 0 << 0;
        QTest::newRow("not JSON: nothing, tab kept") << 200 << QByteArray("<html>") << 0 << 0 << 0;
    }

    void portionLists()
    {
        QFETCH(int, status);
        QFETCH(QByteArray, body);
        QFETCH(int, pictured);
        QFETCH(int, described);
        QFETCH(int, tab);
        server.setReply({status, body});
        SelectPortionUIView view;
        view.setSelectedFood(banana);
        view.appear();
        QTRY_VERIFY(!view.isLoading());
        QCOMPARE(view.imagePortions().size(), pictured);
        QCOMPARE(view.descPortions().size(), described);
        QCOMPARE(view.tabOption(), tab);
        // The custom amount still works.
        view.selectCustom();
        view.setCustomText(u"40"_s);
        view.selectPortion();
        QCOMPARE(view.chosenPortion().size, 40);
        if (pictured == 2) {
            view.selectBox(0); // same _id: both boxes show as selected
            QCOMPARE(view.selectedPortionId(), view.portionOptions().at(1)._id);
        }
    }

    void pictures_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<bool>("shown");
        QTest::newRow("png") << 200 << png() << true;
        QTest::newRow("404 page") << 404 << QByteArray("<html>Not found</html>") << false;
        QTest::newRow("bytes that are no image") << 200 << QByteArray("\x89PNG\r\n\x1a\nbroken", 14) << false;
        QTest::newRow("empty body") << 200 << QByteArray() << false;
    }

    void pictures()
    {
        QFETCH(int, status);
        QFETCH(QByteArray, body);
        QFETCH(bool, shown);
        server.setReply({status, body, "image/png"});
        for (const bool fullSize : {false, true}) {
            PortionPicture picture;
            picture.setPortionId(904005);
            picture.setFullSize(fullSize);
            const qsizetype before = server.requests().size();
            picture.load();
            QTRY_COMPARE(server.requests().size(), before + 1);
            QTest::qWait(100);
            QCOMPARE(picture.hasImage(), shown);
            QVERIFY(server.requests().last().requestLine.contains(
                fullSize ? "/food_portion_images/904005 " : "/food_portion_images/904005?width=200"));
        }
    }

    void nutrientsWithoutCarbohydrates()
    {
        server.setReply(
            {200,
             R"({"macronutrients":[{"nutrient":{"name":"Protein"},"amount":{"units":"grams","value":1.3}}]})"});
        AddToCalcPreviewUIView view;
        view.startAdding(banana, example::examplePortionItem());
        view.fetchNutrients();
        QTRY_VERIFY(!view.isLoading());
        QCOMPARE(view.diaryEntry()->nutrients()->size(), 1);
        QVERIFY(!view.diaryEntry()->hasTrackedNutrient());
        QCOMPARE(view.carbohydratesText(), QString());
        QVERIFY(!view.nutrientsFailed());
        view.add(); // still possible; the line counts nothing until an answer comes
        QCOMPARE(EnvironmentVariables::shared()->TrackedNutrientListItems().size(), 1);
        EnvironmentVariables::shared()->setTrackedNutrientListItems({});
    }

    // In edit mode a failed request keeps the line's value, which then belongs to the old portion.
    void aFailedNutrientRequestIsShown()
    {
        server.setReply({500, QByteArray()});
        AddToCalcPreviewUIView view;
        view.startAdding(banana, example::examplePortionItem());
        view.diaryEntry()->setTrackedNutrient(example::exampleNutrientCarb());
        view.fetchNutrients();
        QTRY_VERIFY(!view.isLoading());
        QVERIFY(view.nutrientsFailed());
        QCOMPARE(view.carbohydratesText(), u"12.9g"_s);
    }

    void accompanyingFoodsFailing()
    {
        server.setReply({500, QByteArray()});
        EnvironmentVariables::shared()->setFoodItemForAccompaniments(banana);
        EnvironmentVariables::shared()->setTrackedNutrientListItems({example::exampleTrackedNutrient1()});
        CarbCounterUIView view;
        const qsizetype before = server.requests().size();
        view.appear();
        QTRY_COMPARE(server.requests().size(), before + 1);
        QTest::qWait(CarbCounterUIView::accompanimentDelayMs + 200);
        QVERIFY(!view.showAccompanimentList());
        QVERIFY(view.accompanimentListItems().isEmpty());
        EnvironmentVariables::shared()->setTrackedNutrientListItems({});
    }
};

QTEST_MAIN(AddFlowFaultsTest)
#include "tst_addflow_faults.moc"
