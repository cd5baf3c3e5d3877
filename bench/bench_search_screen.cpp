// From a settled search text to the first page of 50 rows laid out on screen, in-process against the
// local food-data service, beside the floor: the bare HTTPS request for the same URL with the same
// QNetworkAccessManager.
#include "EnvironmentVariables.h"
#include "FoodSearchRequest.h"
#include "FoodServiceProcess.h"
#include "ItemSearchUIView.h"
#include "nutrika/Nutrika.h"

#include <cstdio>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>

using namespace nutrika;

namespace {

const QStringList queries{QStringLiteral("banana"),  QStringLiteral("cheese"), QStringLiteral("bread"),
                          QStringLiteral("chicken"), QStringLiteral("milk"),   QStringLiteral("rice"),
                          QStringLiteral("apple"),   QStringLiteral("cereal")};

double median(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

void waitUntil(const std::function<bool()> &done)
{
    while (!done())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

double bareRequestMs(ServiceClient &client, const QString &text)
{
    QNetworkRequest request(QUrl::fromEncoded((client.originText() + foodSearchPath()).toUtf8() + '?' +
                                                  encodeQuery(foodSearchParameters({text, 0, {}, {}})),
                                              QUrl::StrictMode));
    request.setRawHeader("Authorization", "Api-Key " + client.apiKey().toUtf8());
    request.setSslConfiguration(client.sslConfiguration());
    QElapsedTimer timer;
    timer.start();
    QNetworkReply *reply = client.networkAccessManager()->get(request);
    waitUntil([reply] { return reply->isFinished(); });
    (void)reply->readAll();
    const double ms = double(timer.nsecsElapsed()) / 1e6;
    reply->deleteLater();
    return ms;
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    QGuiApplication app(argc, argv);
    FoodServiceProcess service(QStringLiteral(NUTRIKA_FOOD_DB));
    if (!service.isReady()) {
        std::fprintf(stderr, "the food-data service did not start: %s\n", qPrintable(service.errorString()));
        return 1;
    }
    ServiceClient &client = *EnvironmentVariables::shared()->serviceClient();
    client.setOrigin(QUrl(service.origin()));
    client.setCaCertificates(QSslCertificate::fromPath(service.caPath()));
    client.setApiKey(service.apiKey());

    QQmlEngine engine;
    prepareNutrikaEngine(engine);
    QQmlComponent component(&engine);
    component.setData("import QtQuick\nimport QtQuick.Controls.Basic\nimport Nutrika\n"
                      "Window { width: 400; height: 720; visible: true\n"
                      "  NavigationStack { id: stack; anchors.fill: parent\n"
                      "    initialItem: ItemSearchScreen { objectName: \"search\"; navigation: stack } } }",
                      QUrl());
    auto *window = qobject_cast<QQuickWindow *>(component.create());
    if (!window) {
        std::fprintf(stderr, "%s\n", qPrintable(component.errorString()));
        return 1;
    }
    auto *screen = window->findChild<QQuickItem *>(QStringLiteral("search"));
    auto *view = screen->property("uiView").value<ItemSearchUIView *>();
    int frames = 0;
    QObject::connect(window, &QQuickWindow::frameSwapped, [&frames] { ++frames; });

    (void)bareRequestMs(client, QStringLiteral("warm up")); // the TLS session and the connection
    std::vector<double> floorMs;
    std::vector<double> screenMs;
    std::vector<double> appliedMs;
    for (int round = 0; round < 5; ++round) {
        for (const QString &text : queries) {
            floorMs.push_back(bareRequestMs(client, text));
            view->onFinishTyping(QString()); // so the same text settles anew
            QElapsedTimer timer;
            timer.start();
            view->onFinishTyping(text);
            waitUntil([view] { return view->offset() == FOOD_SEARCH_PAGE_SIZE; });
            appliedMs.push_back(double(timer.nsecsElapsed()) / 1e6);
            const int shown = frames;
            window->requestUpdate();
            waitUntil([&frames, shown] { return frames > shown; });
            screenMs.push_back(double(timer.nsecsElapsed()) / 1e6);
        }
    }
    const double floor = median(floorMs);
    const double shown = median(screenMs);
    std::printf("floor  bare HTTPS search request      %7.2f ms (median of %zu)\n", floor, floorMs.size());
    std::printf("search settled text to first page shown %7.2f ms\n", shown);
    std::printf("  of which: reply applied to the state  %7.2f ms\n", median(appliedMs));
    std::printf("difference                              %7.2f ms (goal <= 16 ms, one frame)\n",
                shown - floor);
    delete window;
    return 0;
}
