#include "HostSettings.h"

#include "MealNutrients.h"

#include <array>
#include <QQmlEngine>

using namespace Qt::Literals::StringLiterals;

namespace nutrika {
namespace {

struct UnitName
{
    CarbUnit unit;
    QStringView name;
};

constexpr std::array<UnitName, 4> unitNames = {{{CarbUnit::Grams, u"g"},
                                                {CarbUnit::BE, u"BE"},
                                                {CarbUnit::KE, u"KE"},
                                                {CarbUnit::Exchanges, u"exchanges"}}};

} // namespace

HostSettings *HostSettings::shared()
{
    static auto *const settings = new HostSettings;
    return settings;
}

HostSettings *HostSettings::create(QQmlEngine *, QJSEngine *)
{
    QJSEngine::setObjectOwnership(shared(), QJSEngine::CppOwnership);
    return shared();
}

void HostSettings::setOptions(const HostOptions &options)
{
    if (options == m_options)
        return;
    m_options = options;
    emit changed();
}

QString HostSettings::carbUnitName() const
{
    for (const UnitName &known : unitNames) {
        if (known.unit == m_options.carbUnit)
            return known.name.toString();
    }
    return u"g"_s;
}

void HostSettings::setCarbUnitName(const QString &name)
{
    for (const UnitName &known : unitNames) {
        if (known.name == name) {
            HostOptions options = m_options;
            options.carbUnit = known.unit;
            setOptions(options);
            return;
        }
    }
    qWarning("Nutrika: \"%s\" is not a carbohydrate unit; use g, BE, KE or exchanges", qPrintable(name));
}

void HostSettings::setNetCarbohydrates(bool on)
{
    HostOptions options = m_options;
    options.netCarbohydrates = on;
    setOptions(options);
}

void HostSettings::setFatProteinUnits(bool on)
{
    HostOptions options = m_options;
    options.fatProteinUnits = on;
    setOptions(options);
}

void HostSettings::setUndoRemoval(bool on)
{
    HostOptions options = m_options;
    options.undoRemoval = on;
    setOptions(options);
}

void HostSettings::setRecentFoods(bool on)
{
    HostOptions options = m_options;
    options.recentFoods = on;
    setOptions(options);
}

QString HostSettings::carbohydrateText(double roundedGrams) const
{
    return nutrika::carbohydrateText(roundedGrams, m_options.carbUnit);
}

} // namespace nutrika
