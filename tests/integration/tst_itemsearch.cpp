#include "EnvironmentVariables.h"
#include "FoodServiceProcess.h"
#include "ItemSearchUIView.h"
#include "RecordingServer.h"
#include "ServiceProbes.h"
#include "StdoutCapture.h"

#include <QAbstractItemModelTester>
#include <QTcpServer>
#include <QTest>
#include <QUrlQuery>

using namespace nutrika;
using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray page(int count, int generic, int branded)
{
    QByteArray results;
    for (int i = 0; i < generic + branded; ++i) {
        const bool isGeneric = i < generic;
        results += (i ? "," : "") + QByteArray(R"({"id":)") + QByteArray::number(1000 + i) +
                   R"(,"description":"Food )" + QByteArray::number(i) + R"(","food_brand":")" +
                   (isGeneric ? "" : "Acme") + R"(","is_generic_item":)" + (isGeneric ? "1" : "0") + "}";
    }
    return R"({"count":)" + QByteArray::number(count) + R"(,"next":null,"results":[)" + results + "]}";
}

/// The query of each recorded food search, in order (the filter-option requests left out).
QList<QUrlQuery> searches(const RecordingServer &server)
{
    QList<QUrlQuery> queries;
    for (const RecordingServer::Request &request : server.requests()) {
        const QByteArray target = request.requestLine.split(' ').value(1);
        if (target.startsWith("/api/v1/healthcare//food?"))
            queries.append(QUrlQuery(QString::fromUtf8(target.mid(target.indexOf('?') + 1))));
    }
    return queries;
}

// The screen sends through the session's client.
void pointAt(const QString &origin)
{
    probe::pointAt(*EnvironmentVariables::shared()->serviceClient(), origin);
}

QStringList offsets(const RecordingServer &server)
{
    QStringList result;
    for (const QUrlQuery &query : searches(server))
        result << query.queryItemValue(u"offset"_s);
    return result;
}

} // namespace

class ItemSearchTest : public QObject
{
    Q_OBJECT

    static void settle(const ItemSearchUIView &view, const RecordingServer &server, qsizetype requests)
    {
        QTRY_COMPARE(server.requests().size(), requests);
        QTRY_VERIFY(!view.isLoading());
    }

private slots:
    void pagesFollowTheOffsetAndTheFilters()
    {
        RecordingServer server;
        server.setReply({200, page(120, 2, 0)});
        pointAt(server.origin());
        ItemSearchUIView view;
        QAbstractItemModelTester tester(view.results(),
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);

        view.onFinishTyping(u"banana"_s);
        QVERIFY(view.resultsStale());
        settle(view, server, 2);
        QVERIFY(!view.resultsStale());
        QCOMPARE(view.countText(), u"120 items matching your search"_s);
        QCOMPARE(view.brandOptions(), QStringList{ItemSearchUIView::ALL_BRANDS});
        for (int pageNumber = 1; pageNumber <= 3; ++pageNumber) {
            view.rowAppeared(false, int(view.nonBrandedResults().size()) - 1);
            view.rowAppeared(false, int(view.nonBrandedResults().size()) - 1); // already on its way
            QVERIFY(view.isLoading() && !view.resultsStale()); // a next page does not dim the rows
            settle(view, server, 2 + pageNumber);
        }
        QCOMPARE(offsets(server), (QStringList{u"0"_s, u"50"_s, u"100"_s, u"150"_s}));
        QCOMPARE(view.offset(), 200);
        QCOMPARE(view.nonBrandedResults().size(), 8);

        view.setBrandFilterValue(ItemSearchUIView::ALL_BRANDS);
        view.setCategoryFilterValue(u"Fruits and Fruit Juices"_s);
        view.filterDone();
        settle(view, server, 6);
        QUrlQuery last = searches(server).last();
        QCOMPARE(last.queryItemValue(u"offset"_s), u"0"_s);
        QCOMPARE(last.queryItemValue(u"food_brand"_s), QString());
        QVERIFY(last.hasQueryItem(u"food_brand"_s));
        QCOMPARE(last.queryItemValue(u"food_category"_s), u"Fruits and Fruit Juices"_s);
        QCOMPARE(view.nonBrandedResults().size(), 2); // the first page replaced the lists

        view.setBrandFilterValue(u"Dole"_s);
        view.onFinishTyping(u"pineapple"_s);
        settle(view, server, 8);
        last = searches(server).last();
        QCOMPARE(last.queryItemValue(u"food_brand"_s), u"Dole"_s);
        QCOMPARE(last.queryItemValue(u"search"_s), u"pineapple"_s);
    }

    void onlyTheLastRowOfThePagingSectionLoadsMore_data()
    {
        QTest::addColumn<int>("generic");
        QTest::addColumn<int>("branded");
        QTest::addColumn<bool>("fromBranded");
        QTest::addColumn<int>("index");
        QTest::addColumn<bool>("loads");
        QTest::newRow("last generic, no branded") << 3 << 0 << false << 2 << true;
        QTest::newRow("earlier generic") << 3 << 0 << false << 1 << false;
        QTest::newRow("last generic, branded below") << 3 << 2 << false << 2 << false;
        QTest::newRow("last branded") << 3 << 2 << true << 1 << true;
        QTest::newRow("earlier branded") << 3 << 2 << true << 0 << false;
        QTest::newRow("last branded, no generic") << 0 << 2 << true << 1 << true;
    }

    void onlyTheLastRowOfThePagingSectionLoadsMore()
    {
        QFETCH(int, generic);
        QFETCH(int, branded);
        QFETCH(bool, fromBranded);
        QFETCH(int, index);
        QFETCH(bool, loads);
        RecordingServer server;
        server.setReply({200, page(100, generic, branded)});
        pointAt(server.origin());
        ItemSearchUIView view;
        QAbstractItemModelTester tester(view.results(),
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        view.onFinishTyping(u"apple"_s);
        settle(view, server, 2);

        // The view draws a header over each run of one section; an empty section keeps one row for it.
        const QAbstractItemModel &model = *view.results();
        const auto role = [&](int row, const char *name) {
            return model.data(model.index(row, 0), int(model.roleNames().key(name)));
        };
        QStringList layout;
        for (int row = 0; row < model.rowCount(); ++row)
            layout << role(row, "section").toString() +
                          (role(row, "isPlaceholder").toBool() ? u" (none)"_s : u""_s);
        QStringList expected;
        for (int i = 0; i < std::max(generic, 1); ++i)
            expected << (generic ? u"Non-Branded"_s : u"Non-Branded (none)"_s);
        for (int i = 0; i < std::max(branded, 1); ++i)
            expected << (branded ? u"Branded"_s : u"Branded (none)"_s);
        QCOMPARE(layout, expected);
        const int row = fromBranded ? std::max(generic, 1) + index : index;
        QCOMPARE(role(row, "indexInSection").toInt(), index);

        view.rowAppeared(fromBranded, index);
        QTest::qWait(loads ? 0 : 200);
        settle(view, server, loads ? 3 : 2);
    }

    void failuresRaiseTheAlertAndKeepThePage_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("body");
        QTest::newRow("connection refused")
            << 0 << u"Connection Error"_s << u"Unable to connect to server, try again later"_s;
        QTest::newRow("server error") << 500 << u"Error"_s << u"Error loading data"_s;
        QTest::newRow("not found") << 404 << u"Error"_s << u"Error loading data"_s;
        QTest::newRow("not JSON") << 200 << u"Error"_s << u"Error loading data"_s;
    }

    void failuresRaiseTheAlertAndKeepThePage()
    {
        QFETCH(int, status);
        QFETCH(QString, title);
        QFETCH(QString, body);
        QTcpServer closed;
        closed.listen(QHostAddress::LocalHost, 0);
        const quint16 closedPort = closed.serverPort();
        closed.close();
        RecordingServer server;
        server.setReply({status, status == 200 ? QByteArray("<html>") : QByteArray(R"({"detail":"x"})")});
        pointAt(status == 0 ? u"https://127.0.0.1:%1"_s.arg(closedPort) : server.origin());
        ItemSearchUIView view;
        QCOMPARE(view.errorMessageTitle(), u"Error"_s);
        QCOMPARE(view.errorMessageBody(), u"An Unknown Error Has Occoured"_s);

        StdoutCapture capture;
        view.onFinishTyping(u"banana"_s);
        QTRY_VERIFY(view.showErrorMessage());
        QCOMPARE(view.errorMessageTitle(), title);
        QCOMPARE(view.errorMessageBody(), body);
        QVERIFY(!view.isLoading());
        QCOMPARE(view.offset(), 0);
        QTRY_VERIFY(capture.lines().contains(body.toUtf8()));
        view.setShowErrorMessage(false);
        QCOMPARE(view.errorMessageTitle(), title); // the texts stay until the next failure
    }

    void searchesTheRealService()
    {
        FoodServiceProcess service(QStringLiteral(NUTRIKA_FOOD_DB));
        QVERIFY2(service.isReady(), qPrintable(service.errorString()));
        ServiceClient *client = EnvironmentVariables::shared()->serviceClient();
        client->setOrigin(QUrl(service.origin()));
        client->setCaCertificates(QSslCertificate::fromPath(service.caPath()));
        client->setApiKey(service.apiKey());
        ItemSearchUIView view;

        view.onFinishTyping(u"banana"_s);
        QTRY_VERIFY_WITH_TIMEOUT(view.offset() == 50, 10000);
        QVERIFY(!view.showErrorMessage());
        QVERIFY(view.numSearchResults() > 1);
        QCOMPARE(view.nonBrandedResults().first().description, u"Bananas, raw"_s);
        QTRY_VERIFY(view.categoryOptions().size() > 1);
        QCOMPARE(view.categoryOptions().first(), ItemSearchUIView::ALL_CATEGORIES);

        view.selectRow(0);
        QCOMPARE(EnvironmentVariables::shared()->portionActive(), view.nonBrandedResults().first().id);
    }

    void countLine_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("brand");
        QTest::addColumn<QString>("category");
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("resetHint");
        const QString none = u"0 items matching your search"_s;
        QTest::newRow("none") << 0 << QString() << QString() << none << false;
        QTest::newRow("none, all brands")
            << 0 << ItemSearchUIView::ALL_BRANDS << ItemSearchUIView::ALL_CATEGORIES << none << false;
        QTest::newRow("none with a brand") << 0 << u"Dole"_s << QString() << none << true;
        QTest::newRow("none with a category")
            << 0 << ItemSearchUIView::ALL_BRANDS << u"Fruits"_s << none << true;
        QTest::newRow("one with a brand")
            << 1 << u"Dole"_s << QString() << u"1 item matching your search"_s << false;
        QTest::newRow("two") << 2 << QString() << QString() << u"2 items matching your search"_s << false;
    }

    void countLine()
    {
        QFETCH(int, count);
        QFETCH(QString, brand);
        QFETCH(QString, category);
        QFETCH(QString, text);
        QFETCH(bool, resetHint);
        RecordingServer server;
        server.setReply({200, page(count, 0, 0)});
        pointAt(server.origin());
        ItemSearchUIView view;
        QCOMPARE(view.countText(), QString());
        view.setBrandFilterValue(brand);
        view.setCategoryFilterValue(category);
        view.onFinishTyping(u"x"_s);
        settle(view, server, 2);
        QCOMPARE(view.countText(), text);
        QCOMPARE(!view.filterResetHint().isEmpty(), resetHint);
        view.onFinishTyping(QString());
        QCOMPARE(view.countText(), QString()); // hidden again, the lists stay
        QCOMPARE(view.filterResetHint(), QString());
        QCOMPARE(server.requests().size(), 2);
    }

    void filterOptionsFollowTheLatestText_data()
    {
        QTest::addColumn<QString>("then");
        QTest::addColumn<QString>("brand");
        QTest::newRow("Done before they arrive") << QString() << u"apple brand"_s;
        QTest::newRow("a new text before they arrive") << u"banana"_s << u"banana brand"_s;
    }

    void filterOptionsFollowTheLatestText()
    {
        QFETCH(QString, then);
        QFETCH(QString, brand);
        RecordingServer server;
        // Each text's options name it; the first text's come late, after anything sent next.
        server.setResponder([](const RecordingServer::Request &request) -> RecordingServer::Reply {
            const QByteArray target = request.requestLine.split(' ').value(1);
            if (!target.contains("brands_and_categories"))
                return {200, page(0, 0, 0)};
            const QString text =
                QUrlQuery(QString::fromUtf8(target.mid(target.indexOf('?') + 1))).queryItemValue(u"search"_s);
            return {200, R"({"brands":[")" + text.toUtf8() + R"( brand"],"categories":[]})",
                    "application/json", -1, text == u"apple"_s ? 300 : 0};
        });
        pointAt(server.origin());
        ItemSearchUIView view;
        view.onFinishTyping(u"apple"_s);
        if (then.isEmpty())
            view.filterDone();
        else
            view.onFinishTyping(then);
        QTest::qWait(600);
        QCOMPARE(view.brandOptions(), (QStringList{ItemSearchUIView::ALL_BRANDS, brand}));
    }
};

QTEST_MAIN(ItemSearchTest)
#include "tst_itemsearch.moc"
