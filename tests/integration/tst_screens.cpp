#include "AddToCalcPreviewUIView.h"
#include "CarbCounterUIView.h"
#include "EnvironmentVariables.h"
#include "ExampleData.h"
#include "ItemSearchUIView.h"
#include "PortionPicture.h"
#include "SelectPortionUIView.h"
#include "ServiceProbes.h"
#include "StdoutCapture.h"

#include <QAbstractItemModelTester>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace nutrika;
using namespace Qt::Literals::StringLiterals;

namespace {

// A page of `generic` foods, then `branded` ones, with ids from 1000 on.
QByteArray page(int count, int generic, int branded)
{
    QJsonArray results;
    for (int i = 0; i < generic + branded; ++i)
        results << QJsonObject{{"id", 1000 + i},
                               {"description", u"Food %1"_s.arg(i)},
                               {"food_brand", i < generic ? "" : "Acme"},
                               {"is_generic_item", i < generic ? 1 : 0}};
    return QJsonDocument(QJsonObject{{"count", count}, {"next", {}}, {"results", results}}).toJson();
}

const FoodItem banana{u"Bananas, raw"_s, 9040, 9040, QString(), false};

} // namespace

// The screens' logic against a recording server through the session's client: the search screen's paging,
// filters, count line and alerts; what the add flow's screens are left with when the service answers badly.
class ScreensTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<RecordingServer> server;

    // Each search sends the page and the filter options; waits for `requests` in all and the page.
    void settle(const ItemSearchUIView &view, qsizetype requests)
    {
        QTRY_COMPARE(server->requests().size(), requests);
        QTRY_VERIFY(!view.isLoading());
    }

    /// The target of each food search sent, as on the wire (the filter-option requests left out).
    QStringList searches() const
    {
        QStringList targets;
        for (const RecordingServer::Request &request : server->requests())
            targets << QString::fromUtf8(request.requestLine.split(' ').value(1));
        return targets.filter(u"//food?"_s);
    }

private slots:
    void init()
    {
        server = std::make_unique<RecordingServer>();
        probe::pointAt(*EnvironmentVariables::shared()->serviceClient(), server->origin());
    }

    void pagesFollowTheOffsetAndTheFilters()
    {
        server->setReply({200, page(120, 2, 0)});
        ItemSearchUIView view;
        QAbstractItemModelTester tester(view.results(),
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        view.onFinishTyping(u"banana"_s);
        QVERIFY(view.resultsStale());
        settle(view, 2);
        QVERIFY(!view.resultsStale());
        for (int pageNumber = 1; pageNumber <= 3; ++pageNumber) {
            view.rowAppeared(false, int(view.nonBrandedResults().size()) - 1);
            view.rowAppeared(false, int(view.nonBrandedResults().size()) - 1); // already on its way
            QVERIFY(view.isLoading() && !view.resultsStale()); // a next page does not dim the rows
            settle(view, 2 + pageNumber);
        }
        QCOMPARE(view.nonBrandedResults().size(), 8);

        view.setBrandFilterValue(ItemSearchUIView::ALL_BRANDS);
        view.setCategoryFilterValue(u"Fruits and Fruit Juices"_s);
        view.filterDone();
        settle(view, 6);
        QCOMPARE(view.nonBrandedResults().size(), 2); // the first page replaced the lists
        view.setBrandFilterValue(u"Dole"_s);
        view.onFinishTyping(u"pineapple"_s);
        settle(view, 8);
        // "All Brands" is sent as an empty food_brand.
        const QString food = u"/api/v1/healthcare//food?"_s;
        const QString banana = food + u"food_brand=&food_category=&limit=50&offset=%1&search=banana"_s;
        const QString fruits = u"food_category=Fruits%20and%20Fruit%20Juices&limit=50&offset=0&search="_s;
        QCOMPARE(searches(), (QStringList{banana.arg(0), banana.arg(50), banana.arg(100), banana.arg(150),
                                          food + u"food_brand=&"_s + fruits + u"banana"_s,
                                          food + u"food_brand=Dole&"_s + fruits + u"pineapple"_s}));
    }

    void onlyTheLastRowOfThePagingSectionLoadsMore_data()
    {
        QTest::addColumn<int>("generic");
        QTest::addColumn<int>("branded");
        QTest::addColumn<bool>("fromBranded");
        QTest::addColumn<int>("index");
        QTest::addColumn<bool>("loads");
        QTest::newRow("earlier generic") << 3 << 0 << false << 1 << false;
        QTest::newRow("last generic, branded below") << 3 << 2 << false << 2 << false;
        QTest::newRow("earlier branded") << 3 << 2 << true << 0 << false;
        QTest::newRow("last branded") << 3 << 2 << true << 1 << true;
        QTest::newRow("last branded, no generic") << 0 << 2 << true << 1 << true;
    }

    void onlyTheLastRowOfThePagingSectionLoadsMore()
    {
        QFETCH(int, generic);
        QFETCH(int, branded);
        QFETCH(bool, fromBranded);
        QFETCH(int, index);
        QFETCH(bool, loads);
        server->setReply({200, page(100, generic, branded)});
        ItemSearchUIView view;
        view.onFinishTyping(u"apple"_s);
        settle(view, 2);

        // The view draws a header over each run of one section; an empty section keeps one row for it.
        const QAbstractItemModel &model = *view.results();
        const auto role = [&](int row, const char *name) {
            return model.data(model.index(row, 0), int(model.roleNames().key(name)));
        };
        QStringList layout;
        for (int row = 0; row < model.rowCount(); ++row)
            layout << role(row, "section").toString() +
                          (role(row, "isPlaceholder").toBool() ? u" (none)"_s : u""_s);
        const auto section = [](int n, const QString &name) {
            return n ? QStringList(n, name) : QStringList{name + u" (none)"_s};
        };
        QCOMPARE(layout, section(generic, u"Non-Branded"_s) + section(branded, u"Branded"_s));
        const int row = fromBranded ? std::max(generic, 1) + index : index;
        QCOMPARE(role(row, "indexInSection").toInt(), index);
        view.selectRow(row); // the food of the row tapped, past the placeholder rows
        QCOMPARE(EnvironmentVariables::shared()->portionActive(), 1000 + (fromBranded ? generic : 0) + index);

        view.rowAppeared(fromBranded, index);
        QTest::qWait(loads ? 0 : 200);
        settle(view, loads ? 3 : 2);
    }

    // What one search leaves: the count line and the hint to reset the filters, or the alert; and the offset
    // of the next page, which a failed page keeps so that page is asked for again.
    void aSearchEndsInTheCountOrTheAlert_data()
    {
        QTest::addColumn<int>("status"); // 0: nobody listens
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("brand");
        QTest::addColumn<QString>("category");
        QTest::addColumn<QString>("shown");
        const QString all = ItemSearchUIView::ALL_BRANDS, allCategories = ItemSearchUIView::ALL_CATEGORIES;
        const QString none = u"0 items matching your search, offset 50"_s;
        const QString hint = u"0 items matching your search, reset hint, offset 50"_s;
        QTest::newRow("none") << 200 << 0 << QString() << QString() << none;
        QTest::newRow("none, all brands and categories") << 200 << 0 << all << allCategories << none;
        QTest::newRow("none with a brand") << 200 << 0 << u"Dole"_s << QString() << hint;
        QTest::newRow("none with a category") << 200 << 0 << all << u"Fruits"_s << hint;
        QTest::newRow("one with a brand")
            << 200 << 1 << u"Dole"_s << QString() << u"1 item matching your search, offset 50"_s;
        QTest::newRow("two") << 200 << 2 << QString() << QString()
                             << u"2 items matching your search, offset 50"_s;
        QTest::newRow("connection refused")
            << 0 << 0 << QString() << QString()
            << u"alert Connection Error: Unable to connect to server, try again later, offset 0"_s;
        QTest::newRow("server error")
            << 500 << 0 << QString() << QString() << u"alert Error: Error loading data, offset 0"_s;
    }

    void aSearchEndsInTheCountOrTheAlert()
    {
        QFETCH(int, status);
        QFETCH(int, count);
        QFETCH(QString, brand);
        QFETCH(QString, category);
        QFETCH(QString, shown);
        server->setReply({status, page(count, 0, 0)});
        if (status == 0)
            server->close(); // nobody listens
        ItemSearchUIView view;
        view.setBrandFilterValue(brand);
        view.setCategoryFilterValue(category);
        StdoutCapture capture;
        view.onFinishTyping(u"x"_s);
        settle(view, status ? 2 : 0);
        const auto alert = [&view] {
            return u"alert %1: %2"_s.arg(view.errorMessageTitle(), view.errorMessageBody());
        };
        const QString hint = view.filterResetHint().isEmpty() ? QString() : u", reset hint"_s;
        const QString text = view.showErrorMessage() ? alert() : view.countText() + hint;
        QCOMPARE(text + u", offset %1"_s.arg(view.offset()), shown);
        if (view.showErrorMessage()) {
            QVERIFY(capture.lines().contains(view.errorMessageBody().toUtf8())); // also the diagnostic line
            view.setShowErrorMessage(false);
            QCOMPARE(alert(), text); // the texts stay until the next failure
        }
        // Emptied, the field hides the count line and the hint without a request; the lists stay.
        const qsizetype requests = server->requests().size();
        view.onFinishTyping(QString());
        QCOMPARE(view.countText() + view.filterResetHint(), QString());
        QCOMPARE(server->requests().size(), requests);
    }

    // Each screen stays usable, in the state its rules give, and nothing crashes.
    void badRepliesLeaveTheScreensUsable_data()
    {
        QTest::addColumn<QString>("screen"); // the one that sends the request answered badly
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QString>("state");
        const QByteArray html = "<html>Not found</html>";
        const QByteArray png = QByteArray::fromBase64("iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAYAAAAfFcSJAAAADUlEQV"
                                                      "R42mP8z8BQDwAEhQGAhKmMIQAAAABJRU5ErkJggg==");
        const QByteArray portion =
            R"({"order_num":1,"id":5,"unit":"grams","database_import":1,"size":118,)"
            R"("description":"medium","image_name":"a","convertible_unit":{"type":"mass",)"
            R"("is_base":1,"id":1,"to_base_conversion_rate":1,"name":"gram","unit":"g"}})";
        const QByteArray twoPortionsOneId = R"({"portions":[)" + portion + "," + portion + "]}";
        const QByteArray noCarbohydrates =
            R"({"macronutrients":[{"nutrient":{"name":"Protein"},"amount":{"units":"grams","value":1.3}}]})";
        const QByteArray milk = R"([{"id":1079,"description":"Milk","food_brand":"","is_generic_item":1}])";
        // Portions: pictured and described ones, the tab shown, the first box's selection, the custom amount.
        QTest::newRow("no portions: descriptions tab, custom box only")
            << u"portions"_s << 200 << QByteArray(R"({"portions":[]})")
            << u"0+0 portions, tab 1, custom 123"_s;
        QTest::newRow("two portions share an id: both listed, both selected")
            << u"portions"_s << 200 << twoPortionsOneId
            << u"2+0 portions, tab 0, box 0 selects 5, custom 123"_s;
        QTest::newRow("portions 500: tab kept")
            << u"portions"_s << 500 << html << u"0+0 portions, tab 0, custom 123"_s;
        QTest::newRow("thumbnail") << u"thumbnail"_s << 200 << png << u"shown"_s;
        QTest::newRow("thumbnail 404") << u"thumbnail"_s << 404 << html << u"none"_s;
        QTest::newRow("thumbnail bytes that are no image")
            << u"thumbnail"_s << 200 << QByteArray("\x89PNG\r\n\x1a\nbroken", 14) << u"none"_s;
        // The line counts nothing until an answer with carbohydrates comes; Add stays possible.
        QTest::newRow("nutrients without Carbohydrates")
            << u"preview"_s << 200 << noCarbohydrates << u"1 nutrients, carbohydrates \"\", added 1 line"_s;
        // In edit mode a failed request keeps the line's value, which then belongs to the old portion.
        QTest::newRow("nutrients 500 when editing") << u"edited preview"_s << 500 << QByteArray()
                                                    << u"0 nutrients, carbohydrates \"12.9g\", failed"_s;
        QTest::newRow("accompanying foods") << u"calculator"_s << 200 << milk << u"1 suggestions, shown"_s;
        QTest::newRow("accompanying foods 500")
            << u"calculator"_s << 500 << QByteArray() << u"0 suggestions, hidden"_s;
    }

    void badRepliesLeaveTheScreensUsable()
    {
        QFETCH(QString, screen);
        QFETCH(int, status);
        QFETCH(QByteArray, body);
        QFETCH(QString, state);
        server->setReply({status, body});
        EnvironmentVariables *env = EnvironmentVariables::shared();
        QString shown;
        if (screen == u"portions") {
            SelectPortionUIView view;
            view.setSelectedFood(banana);
            view.appear();
            QTRY_VERIFY(!view.isLoading());
            shown = u"%1+%2 portions, tab %3"_s.arg(view.imagePortions().size())
                        .arg(view.descPortions().size())
                        .arg(view.tabOption());
            if (!view.imagePortions().isEmpty()) {
                view.selectBox(0);
                shown += u", box 0 selects %1"_s.arg(view.selectedPortionId());
            }
            view.selectCustom();
            view.setCustomText(u"12a3"_s); // pasted: the digits count
            view.selectPortion();
            shown += u", custom %1"_s.arg(view.chosenPortion().size);
        } else if (screen == u"thumbnail") {
            PortionPicture picture;
            picture.setPortionId(904005);
            picture.load();
            QTRY_COMPARE(server->requests().size(), 1);
            QTest::qWait(100);
            shown = picture.hasImage() ? u"shown"_s : u"none"_s;
        } else if (screen == u"calculator") {
            env->setFoodItemForAccompaniments(banana);
            env->setTrackedNutrientListItems({example::exampleTrackedNutrient1()});
            CarbCounterUIView view;
            view.appear();
            QTRY_COMPARE(server->requests().size(), 1);
            QTest::qWait(CarbCounterUIView::accompanimentDelayMs + 200);
            shown = u"%1 suggestions, %2"_s.arg(view.accompanimentListItems().size())
                        .arg(view.showAccompanimentList() ? u"shown" : u"hidden");
        } else {
            AddToCalcPreviewUIView view;
            view.startAdding(banana, example::examplePortionItem());
            if (screen == u"edited preview")
                view.diaryEntry()->setTrackedNutrient(example::exampleNutrientCarb());
            view.fetchNutrients();
            QTRY_VERIFY(!view.isLoading());
            const auto &nutrients = view.diaryEntry()->nutrients();
            shown = u"%1 nutrients, carbohydrates \"%2\"%3"_s.arg(nutrients ? nutrients->size() : 0)
                        .arg(view.carbohydratesText(), view.nutrientsFailed() ? u", failed"_s : QString());
            if (screen == u"preview") {
                view.add();
                shown += u", added %1 line"_s.arg(env->TrackedNutrientListItems().size());
            }
        }
        env->setTrackedNutrientListItems({});
        QCOMPARE(shown, state);
    }
};

QTEST_MAIN(ScreensTest)
#include "tst_screens.moc"
