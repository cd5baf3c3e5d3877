#include "NamedColors.h"

#include <QFile>
#include <QHash>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

namespace {

const QColor systemBlue(0x00, 0x7a, 0xff);
const QColor systemGray(0x8e, 0x8e, 0x93);

QHash<QString, QColor> loadCatalogue()
{
    QHash<QString, QColor> colors;
    QFile file(u":/qt/qml/Nutrika/ui/colors.json"_s);
    if (!file.open(QIODevice::ReadOnly))
        return colors;
    const QJsonObject object = QJsonDocument::fromJson(file.readAll()).object();
    for (auto it = object.begin(); it != object.end(); ++it) {
        const QColor color = QColor::fromString(it.value().toString());
        if (color.isValid())
            colors.insert(it.key(), color);
    }
    return colors;
}

} // namespace

std::optional<QColor> namedColor(const QString &name)
{
    static const QHash<QString, QColor> catalogue = loadCatalogue();
    const auto it = catalogue.constFind(name);
    if (it == catalogue.cend())
        return std::nullopt;
    return *it;
}

bool notCanvas()
{
    static const bool value = qgetenv("XCODE_RUNNING_FOR_PREVIEWS") != "1";
    return value;
}

std::optional<QColor> resolveUIColor(const QString &name, bool running, const QColor &previewFallback)
{
    return running ? namedColor(name) : std::optional<QColor>(previewFallback);
}

namespace UIColor {

const std::optional<QColor> &titleText()
{
    static const auto color = resolveUIColor(u"TitleText"_s, notCanvas(), systemBlue);
    return color;
}

const std::optional<QColor> &headingText()
{
    // Widget code reads the lower-case entry; the declarative accessor reads "HeadingText".
    static const auto color = resolveUIColor(u"headingText"_s, notCanvas(), systemBlue);
    return color;
}

const std::optional<QColor> &detailColor()
{
    static const auto color = resolveUIColor(u"DetailColor1"_s, notCanvas(), systemBlue);
    return color;
}

const std::optional<QColor> &lightGray()
{
    static const auto color = resolveUIColor(u"lightGray"_s, notCanvas(), systemGray);
    return color;
}

} // namespace UIColor

} // namespace nutrika
