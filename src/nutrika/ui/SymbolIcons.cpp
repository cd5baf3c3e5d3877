#include "SymbolIcons.h"

#include <QFontDatabase>
#include <QHash>
#include <QStandardPaths>

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

QString symbolGlyph(const QString &symbolName)
{
    // Code points of the Material Icons font (Debian fonts-material-design-icons-iconfont).
    static const QHash<QString, char16_t> table = {
        {u"chevron.left"_s, 0xe5cb},          // chevron_left
        {u"chevron.right"_s, 0xe5cc},         // chevron_right
        {u"chevron.down"_s, 0xe5cf},          // expand_more
        {u"xmark"_s, 0xe5cd},                 // close
        {u"xmark.circle"_s, 0xe888},          // highlight_off
        {u"magnifyingglass"_s, 0xe8b6},       // search
        {u"arrow.2.circlepath"_s, 0xe627},    // sync
        {u"plus.circle.fill"_s, 0xe147},      // add_circle
        {u"minus.circle.fill"_s, 0xe15c},     // remove_circle
        {u"checkmark.circle.fill"_s, 0xe86c}, // check_circle
    };
    const auto it = table.constFind(symbolName);
    return it == table.cend() ? QString() : QString(QChar(*it));
}

QString symbolFontFamily()
{
    static const QString family = [] {
        // The TrueType file, not the family: fontconfig prefers the installed WOFF2 copy, whose
        // decompression costs the first screen more than reading the plain file.
        const QString path = QStandardPaths::locate(
            QStandardPaths::GenericDataLocation,
            u"fonts/truetype/material-design-icons-iconfont/MaterialIcons-Regular.ttf"_s);
        const QStringList families =
            path.isEmpty() ? QStringList()
                           : QFontDatabase::applicationFontFamilies(QFontDatabase::addApplicationFont(path));
        if (!families.isEmpty())
            return families.first();
        const QString installed = u"Material Icons"_s;
        return QFontDatabase::hasFamily(installed) ? installed : QString();
    }();
    return family;
}

} // namespace nutrika
