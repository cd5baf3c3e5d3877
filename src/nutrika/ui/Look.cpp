#include "Look.h"

#include "NamedColors.h"
#include "SymbolIcons.h"

#include <QJSEngine>

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

namespace {

// A missing name stays unresolved: an invalid colour, which Qt Quick draws as nothing.
QColor declarative(const QString &name)
{
    return namedColor(name).value_or(QColor());
}

QFont font(const QStringList &families)
{
    QFont f;
    f.setFamilies(families);
    f.setPixelSize(15);
    return f;
}

} // namespace

Look::Look(QObject *parent) : QObject(parent) {}

Look *Look::create(QQmlEngine *, QJSEngine *)
{
    static Look *const instance = [] {
        auto *look = new Look;
        QJSEngine::setObjectOwnership(look, QJSEngine::CppOwnership);
        return look;
    }();
    return instance;
}

QColor Look::titleText() const
{
    return declarative(u"TitleText"_s);
}
QColor Look::headingText() const
{
    return declarative(u"HeadingText"_s);
}
QColor Look::detailColor() const
{
    return declarative(u"DetailColor1"_s);
}
QColor Look::lightGray() const
{
    return declarative(u"lightGray"_s);
}

// Liberation Sans is metric-compatible with Arial; DejaVu Sans is always on Debian.
QFont Look::azoSans() const
{
    return font({u"AzoSans"_s, u"Liberation Sans"_s, u"DejaVu Sans"_s});
}
QFont Look::arial() const
{
    return font({u"arial"_s, u"Liberation Sans"_s, u"DejaVu Sans"_s});
}

QString Look::symbolFont() const
{
    return symbolFontFamily();
}

QString Look::symbol(const QString &name) const
{
    return symbolGlyph(name);
}

} // namespace nutrika
