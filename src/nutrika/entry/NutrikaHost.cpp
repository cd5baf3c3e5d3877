#include "NutrikaHost.h"

#include "nutrika/Nutrika.h"

#include <QJSEngine>
#include <QVariantList>

using namespace Qt::Literals::StringLiterals;

namespace nutrika {
namespace {

QVariant orNull(const std::optional<double> &value)
{
    return value ? QVariant(*value) : QVariant::fromValue(nullptr);
}

} // namespace

NutrikaHost::NutrikaHost()
{
    MealResults *results = mealResults();
    connect(results, &MealResults::changed, this, &NutrikaHost::mealResultChanged);
    connect(results, &MealResults::closed, this,
            [this](const MealResult &result) { emit closedWith(toVariant(result)); });
}

NutrikaHost *NutrikaHost::create(QQmlEngine *, QJSEngine *)
{
    static auto *const host = new NutrikaHost;
    QJSEngine::setObjectOwnership(host, QJSEngine::CppOwnership);
    return host;
}

QVariantMap NutrikaHost::mealResult() const
{
    return toVariant(mealResults()->result());
}

void NutrikaHost::clearCalculator()
{
    nutrika::clearCalculator();
}

QVariantMap NutrikaHost::toVariant(const MealResult &result)
{
    QVariantList lines;
    for (const MealLine &line : result.lines) {
        lines.append(QVariantMap{{u"name"_s, line.name},
                                 {u"portion"_s, line.portion},
                                 {u"quantity"_s, line.quantity},
                                 {u"carbohydrates"_s, line.carbohydrates},
                                 {u"fibre"_s, orNull(line.fibre)},
                                 {u"fat"_s, orNull(line.fat)},
                                 {u"protein"_s, orNull(line.protein)}});
    }
    return {{u"lines"_s, lines}, {u"totalCarbohydrates"_s, result.totalCarbohydrates}};
}

} // namespace nutrika
