#include "HostSettings.h"

#include <array>
#include <memory>
#include <QCoreApplication>
#include <QLocale>
#include <QQmlEngine>
#include <QTranslator>

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
    const bool newLanguage = options.language != m_options.language;
    m_options = options;
    if (newLanguage)
        applyLanguage();
    emit changed();
}

void HostSettings::setLanguage(const QString &language)
{
    HostOptions options = m_options;
    options.language = language;
    setOptions(options);
}

void HostSettings::applyLanguage()
{
    if (m_translator) {
        QCoreApplication::removeTranslator(m_translator);
        delete m_translator;
        m_translator = nullptr;
    }
    const QLocale locale = m_options.language.isEmpty() ? QLocale::system() : QLocale(m_options.language);
    auto translator = std::make_unique<QTranslator>();
    // English has no file: its texts are the sources.
    if (translator->load(locale, u"nutrika"_s, u"_"_s, u":/i18n"_s) &&
        QCoreApplication::installTranslator(translator.get()))
        m_translator = translator.release();
    for (const QPointer<QQmlEngine> &engine : std::as_const(m_engines)) {
        if (engine)
            engine->retranslate();
    }
}

void HostSettings::addEngine(QQmlEngine *engine)
{
    m_engines.removeAll(nullptr);
    if (!m_engines.contains(engine))
        m_engines.append(engine);
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

void HostSettings::setFlag(bool HostOptions::*flag, bool on)
{
    HostOptions options = m_options;
    options.*flag = on;
    setOptions(options);
}

void HostSettings::setNetCarbohydrates(bool on)
{
    setFlag(&HostOptions::netCarbohydrates, on);
}

void HostSettings::setFatProteinUnits(bool on)
{
    setFlag(&HostOptions::fatProteinUnits, on);
}

void HostSettings::setUndoRemoval(bool on)
{
    setFlag(&HostOptions::undoRemoval, on);
}

void HostSettings::setRecentFoods(bool on)
{
    setFlag(&HostOptions::recentFoods, on);
}

} // namespace nutrika
