#include "Destinations.h"

#include <QFile>
#include <QJSEngine>

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

QUrl Destinations::screen(const QString &typeName)
{
    static const QString suffix = u"UIView"_s;
    if (!typeName.endsWith(suffix) || typeName.size() == suffix.size())
        return {};
    const QString path = u"/qt/qml/Nutrika/screens/"_s + typeName.chopped(suffix.size()) + u"Screen.qml"_s;
    if (!QFile::exists(u":"_s + path))
        return {};
    return QUrl(u"qrc:"_s + path);
}

} // namespace nutrika
