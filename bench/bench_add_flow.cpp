// The add flow's waits, in-process against the local food-data service, each beside its floor, the bare
// HTTPS request the step waits for:
//   a tapped food until the portion screen has laid out all its boxes (floor: the portion list request);
//   until every visible thumbnail is drawn (floor: one thumbnail request);
//   the preview shown until its Carbohydrates value is drawn (floor: the nutrient request);
//   "Add to calculator" until the calculator shows the new line and total (goal: one frame).
#include "EnvironmentVariables.h"
#include "FoodServiceProcess.h"
#include "nutrika/Nutrika.h"
#include "SelectPortionUIView.h"

#include <cstdio>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QSslCertificate>

using namespace nutrika;

namespace {

struct Food
{
    qint64 id;
    qint64 portionId;
    qint64 grams;
};
// Foods with pictured portions, and one portion of each.
const QList<Food> foods{{9040, 904005, 118}, {9003, 900302, 182}, {20045, 2004501, 158}, {1077, 107701, 244}};

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

class Bench
{
public:
    Bench(const FoodServiceProcess &service, QQuickWindow *window) : m_service(service), m_window(window)
    {
        QObject::connect(window, &QQuickWindow::frameSwapped, [this] { ++m_frames; });
    }

    double bareMs(const QString &pathWithQuery, bool authorised = true)
    {
        QNetworkRequest request(QUrl::fromEncoded((m_service.origin() + pathWithQuery).toUtf8()));
        if (authorised)
            request.setRawHeader("Authorization", "Api-Key " + m_service.apiKey().toUtf8());
        request.setSslConfiguration(m_service.sslConfiguration());
        QElapsedTimer timer;
        timer.start();
        QNetworkReply *reply = m_network.get(request);
        waitUntil([reply] { return reply->isFinished(); });
        (void)reply->readAll();
        reply->deleteLater();
        return double(timer.nsecsElapsed()) / 1e6;
    }

    // Waits for `done`, then for the frame that shows it; the time since `timer` started.
    double untilDrawn(const QElapsedTimer &timer, const std::function<bool()> &done)
    {
        waitUntil(done);
        const int shown = m_frames;
        m_window->requestUpdate();
        waitUntil([this, shown] { return m_frames > shown; });
        return double(timer.nsecsElapsed()) / 1e6;
    }

private:
    const FoodServiceProcess &m_service;
    QQuickWindow *m_window;
    QNetworkAccessManager m_network;
    int m_frames = 0;
};

// The window pushes a screen the way a navigation link does, with the stack as its navigation.
QObject *push(QQuickWindow *window, const char *screen, const QVariantMap &properties)
{
    QVariant item;
    QMetaObject::invokeMethod(
        window, "pushScreen", Q_RETURN_ARG(QVariant, item),
        Q_ARG(QVariant, QUrl(QStringLiteral("qrc:/qt/qml/Nutrika/screens/portion/%1.qml")
                                 .arg(QLatin1StringView(screen)))),
        Q_ARG(QVariant, properties));
    return item.value<QObject *>();
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
    component.setData(
        "import QtQuick\nimport QtQuick.Controls.Basic\nimport Nutrika\n"
        "Window { width: 430; height: 860; visible: true\n"
        "  function pushScreen(url, properties) {\n"
        "    return root.navigation.push(url, Object.assign({ navigation: root.navigation }, properties)) }\n"
        "  NutrikaRoot { id: root; anchors.fill: parent } }",
        QUrl());
    auto *window = qobject_cast<QQuickWindow *>(component.create());
    if (!window) {
        std::fprintf(stderr, "%s\n", qPrintable(component.errorString()));
        return 1;
    }
    auto *stack = window->findChild<QQuickItem *>(QStringLiteral("navigation"));
    EnvironmentVariables *env = EnvironmentVariables::shared();
    Bench bench(service, window);
    (void)bench.bareMs(QStringLiteral("/api/v1/healthcare//food/9040")); // the TLS session and connection

    std::vector<double> portionsFloor, portionsMs, thumbFloor, thumbMs, nutrientFloor, nutrientMs, addMs;
    for (int round = 0; round < 5; ++round) {
        for (const Food &food : foods) {
            env->setSearchActive(true);
            waitUntil([stack] {
                return stack->property("depth").toInt() == 2 && !stack->property("busy").toBool();
            });
            portionsFloor.push_back(bench.bareMs(QStringLiteral("/api/v1/healthcare//food/%1").arg(food.id)));
            thumbFloor.push_back(bench.bareMs(
                QStringLiteral(
                    "/api/v1/healthcare//food_portion_images/%1?width=200&height=200&type=thumbnail")
                    .arg(food.portionId),
                false));
            nutrientFloor.push_back(bench.bareMs(
                QStringLiteral("/api/v1/healthcare//food/%1/get_nutrients?amount_value=%2&amount_unit=grams")
                    .arg(food.id)
                    .arg(food.grams)));

            const QVariant foodItem =
                QVariant::fromValue(FoodItem{QString(), food.id, food.id, QString(), false});
            QElapsedTimer timer;
            timer.start();
            QObject *portions =
                push(window, "SelectPortionScreen", {{QStringLiteral("selectedFood"), foodItem}});
            auto *state = portions->property("uiView").value<SelectPortionUIView *>();
            auto *grid = portions->findChild<QQuickItem *>(QStringLiteral("portionGrid"));
            portionsMs.push_back(bench.untilDrawn(timer, [state, grid] {
                return !state->portionOptions().isEmpty() &&
                       grid->property("count").toInt() == state->portionOptions().size() + 1;
            }));
            // Every thumbnail of a box in view.
            const double laidOut = portionsMs.back();
            thumbMs.push_back(bench.untilDrawn(timer, [grid] {
                const QList<QQuickItem *> pictures =
                    grid->findChildren<QQuickItem *>(QStringLiteral("thumbnail"));
                return std::all_of(pictures.begin(), pictures.end(),
                                   [](QQuickItem *p) { return p->property("hasImage").toBool(); });
            }) - laidOut);

            PortionItem portion = state->portionOptions().value(0, basePortionItem());
            timer.restart();
            QObject *preview = push(window, "AddToCalcPreviewScreen",
                                    {{QStringLiteral("selectedFood"), foodItem},
                                     {QStringLiteral("selectedPortion"), QVariant::fromValue(portion)}});
            auto *carbs = preview->findChild<QQuickItem *>(QStringLiteral("carbohydratesValue"));
            nutrientMs.push_back(
                bench.untilDrawn(timer, [carbs] { return !carbs->property("text").toString().isEmpty(); }));

            auto *lines = window->findChild<QQuickItem *>(QStringLiteral("lineList"));
            const int before = lines->property("count").toInt();
            timer.restart();
            QMetaObject::invokeMethod(preview->property("uiView").value<QObject *>(), "add");
            addMs.push_back(bench.untilDrawn(timer, [lines, before] {
                QQuickItem *line = nullptr;
                QMetaObject::invokeMethod(lines, "itemAtIndex", Q_RETURN_ARG(QQuickItem *, line),
                                          Q_ARG(int, before));
                return lines->property("count").toInt() == before + 1 && line;
            }));
            waitUntil([stack] {
                return stack->property("depth").toInt() == 1 && !stack->property("busy").toBool();
            });
            env->setFoodItemForAccompaniments(std::nullopt);
        }
    }
    const auto row = [](const char *what, const std::vector<double> &floor,
                        const std::vector<double> &measured, double goal) {
        const double f = median(floor), m = median(measured);
        std::printf("%-44s %7.2f ms  floor %7.2f ms  difference %6.2f ms (goal <= %.0f ms)\n", what, m, f,
                    m - f, goal);
    };
    row("tapped food to all portion boxes laid out", portionsFloor, portionsMs, 16);
    row("boxes laid out to every visible thumbnail", thumbFloor, thumbMs, 16);
    row("preview shown to Carbohydrates drawn", nutrientFloor, nutrientMs, 16);
    std::printf("%-44s %7.2f ms  (goal <= 16 ms, pop animation not counted)\n",
                "\"Add to calculator\" to line and total shown", median(addMs));
    delete window;
    return 0;
}
