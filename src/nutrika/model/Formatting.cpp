#include "Formatting.h"

#include <QtNumeric>

using namespace Qt::Literals::StringLiterals;

#include <array>
#include <cctype>
#include <charconv>

namespace nutrika {

QString formatUnitShort(const QString &unit)
{
    struct ShortForm
    {
        QStringView name;
        QStringView shortForm;
    };
    static constexpr std::array table{
        ShortForm{u"micrograms", u"µg"}, ShortForm{u"milligrams", u"mg"},  ShortForm{u"grams", u"g"},
        ShortForm{u"kilograms", u"kg"},  ShortForm{u"millilitres", u"ml"}, ShortForm{u"centilitres", u"cl"},
        ShortForm{u"litres", u"l"},      ShortForm{u"calories", u" kcal"},
    };
    for (const ShortForm &row : table) {
        if (unit == row.name)
            return row.shortForm.toString();
    }
    return u' ' + unit;
}

namespace {

/// Parses optional sign, digits, optional fraction and optional exponent, and nothing else.
std::optional<double> parseNumber(const QString &text)
{
    QByteArray bytes = text.toLatin1();
    if (bytes.startsWith('+'))
        bytes.remove(0, 1);
    // from_chars would also take "inf" and "nan", which are not numbers here.
    const qsizetype first = bytes.startsWith('-') ? 1 : 0;
    if (bytes.size() <= first ||
        !(std::isdigit(static_cast<unsigned char>(bytes[first])) || bytes[first] == '.'))
        return std::nullopt;
    double value = 0;
    const char *end = bytes.constData() + bytes.size();
    const auto [ptr, ec] = std::from_chars(bytes.constData(), end, value, std::chars_format::general);
    if (ec != std::errc() || ptr != end)
        return std::nullopt;
    return value;
}

} // namespace

QString formatValueWithUnits(const QString &value, const QString &unit, std::optional<int> decimalPlaces)
{
    const QString shortUnit = formatUnitShort(unit);
    const std::optional<double> number =
        decimalPlaces && *decimalPlaces >= 0 ? parseNumber(value) : std::nullopt;
    if (!number)
        return value + shortUnit;
    // to_chars prints the exact decimal expansion, rounded as printf's %f does, without any locale.
    std::array<char, 400> buffer{};
    const auto [ptr, ec] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), *number,
                                         std::chars_format::fixed, *decimalPlaces);
    if (ec != std::errc())
        return value + shortUnit;
    return QString::fromLatin1(buffer.data(), ptr - buffer.data()) + shortUnit;
}

QString shortestDecimalText(double value)
{
    if (!qIsFinite(value))
        return QString::number(value);
    // Fixed notation without a precision is the shortest text that round-trips, with no exponent.
    std::array<char, 400> buffer{};
    const auto [ptr, ec] =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed);
    QString text = QString::fromLatin1(buffer.data(), ec == std::errc() ? ptr - buffer.data() : 0);
    if (!text.contains(u'.'))
        text += u".0"_s;
    return text;
}

QString withoutPointZero(QString text)
{
    for (qsizetype at = text.indexOf(u".0"); at >= 0; at = text.indexOf(u".0", at)) {
        const qsizetype after = at + 2;
        if (after < text.size() && text.at(after).isDigit())
            at = after;
        else
            text.remove(at, 2);
    }
    return text;
}

QString amountText(double amount)
{
    return withoutPointZero(shortestDecimalText(amount)) + u" g"_s;
}

} // namespace nutrika
