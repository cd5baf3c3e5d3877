#include "QueryEncoding.h"

namespace nutrika {

namespace {

bool keptAsIs(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-' ||
           c == '.' || c == '_' || c == '~' || c == '/' || c == '?';
}

void appendEscaped(QByteArray &out, const QString &text)
{
    static constexpr char hex[] = "0123456789ABCDEF";
    for (const char c : text.toUtf8()) {
        if (keptAsIs(c)) {
            out += c;
            continue;
        }
        const auto byte = static_cast<unsigned char>(c);
        out += '%';
        out += hex[byte >> 4];
        out += hex[byte & 0xF];
    }
}

} // namespace

QByteArray encodeQuery(const QueryParameters &query)
{
    QByteArray out;
    for (auto it = query.cbegin(); it != query.cend(); ++it) {
        if (it != query.cbegin())
            out += '&';
        appendEscaped(out, it.key());
        out += '=';
        appendEscaped(out, it.value());
    }
    return out;
}

} // namespace nutrika
