#include "Destinations.h"

#include <QFile>
#include <QJSEngine>
#include <QMetaEnum>

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

Destinations *Destinations::create(QQmlEngine *, QJSEngine *)
{
    static Destinations *const instance = [] {
        auto *destinations = new Destinations;
        QJSEngine::setObjectOwnership(destinations, QJSEngine::CppOwnership);
        return destinations;
    }();
    return instance;
}

QString Destinations::path(Screen screen)
{
    switch (screen) {
    case SearchContainer:
        return u"/qt/qml/Nutrika/screens/search/SearchContainerScreen.qml"_s;
    case SelectPortion:
        return u"/qt/qml/Nutrika/screens/portion/SelectPortionScreen.qml"_s;
    case AddToCalcPreview:
        return u"/qt/qml/Nutrika/screens/portion/AddToCalcPreviewScreen.qml"_s;
    case CreateRecipe:
        return u"/qt/qml/Nutrika/screens/meals/CreateRecipeScreen.qml"_s;
    case IngredientSearch:
        return u"/qt/qml/Nutrika/screens/meals/IngredientSearchScreen.qml"_s;
    }
    return {};
}

QUrl Destinations::screen(int screen)
{
    const char *name = QMetaEnum::fromType<Screen>().valueToKey(screen);
    const QString file = name ? path(static_cast<Screen>(screen)) : QString();
    if (file.isEmpty() || !QFile::exists(u":"_s + file)) {
        qWarning("Destinations: no screen for %s", name ? name : qPrintable(QString::number(screen)));
        return {};
    }
    return QUrl(u"qrc:"_s + file);
}

} // namespace nutrika
