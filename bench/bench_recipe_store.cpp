// Reads and writes 1,000 saved meals of 10 lines each through the preferences store, beside the floor:
// a bare QJsonDocument::fromJson of the same bytes.
#include "ExampleData.h"
#include "Preferences.h"
#include "RecipeDocument.h"
#include "RecipeStore.h"

#include <cstdio>
#include <functional>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QJsonDocument>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <unistd.h>

using namespace nutrika;

namespace {

/// Median milliseconds per call over `runs` calls.
double medianMs(int runs, const std::function<void()> &call)
{
    std::vector<double> times;
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer timer;
        timer.start();
        call();
        times.push_back(double(timer.nsecsElapsed()) / 1e6);
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

RecipeItem mealOfTenLines(qint64 id)
{
    RecipeItem meal{QStringLiteral("Meal number %1").arg(id), id, {}, 2};
    for (int i = 0; i < 10; ++i)
        meal.items.append(i % 2 ? example::exampleTrackedNutrient1() : example::exampleTrackedNutrient2());
    return meal;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QTemporaryDir home;
    qputenv("HOME", home.path().toUtf8());
    qputenv("XDG_CONFIG_HOME", QByteArray(home.path().toUtf8() + "/config"));
    QStandardPaths::setTestModeEnabled(true);

    // The store writes a diagnostic dump of the whole list on every save; keep it off the report.
    std::fflush(stdout);
    const int report = dup(STDOUT_FILENO);
    std::freopen("/dev/null", "w", stdout);

    QList<RecipeItem> meals;
    for (qint64 id = 0; id < 1000; ++id)
        meals.append(mealOfTenLines(id));
    const QByteArray document = encodeRecipeDocument(meals);
    {
        Preferences settings;
        settings.setValue(QStringLiteral("recipes"), document);
    }
    if (getRecipes().size() != 1000)
        std::abort();

    const int runs = 15;
    const double floorMs = medianMs(runs, [&] { (void)QJsonDocument::fromJson(document); });
    const double getMs = medianMs(runs, [] {
        if (getRecipes().size() != 1000)
            std::abort();
    });
    // "Save Meal" on a stored meal: the editor's save of meal 500 of 1000, replaced in place.
    qint64 revision = 0;
    const double saveMs = medianMs(runs, [&] {
        RecipeItem changed = mealOfTenLines(500);
        changed.name = QStringLiteral("Meal number 500 revision %1").arg(++revision);
        saveRecipe(changed);
    });

    FILE *out = fdopen(report, "w");
    std::fprintf(out, "saved meals: 1000 x 10 lines, document %lld bytes, median of %d runs\n",
                 static_cast<long long>(document.size()), runs);
    std::fprintf(out, "floor  QJsonDocument::fromJson  %8.2f ms\n", floorMs);
    std::fprintf(out, "getRecipes                      %8.2f ms  %.2fx floor (goal <= 2x)\n", getMs,
                 getMs / floorMs);
    std::fprintf(out, "Save Meal (saveRecipe)          %8.2f ms  %.2fx floor (goal <= 3x)\n", saveMs,
                 saveMs / floorMs);
    std::fclose(out);
    return 0;
}
