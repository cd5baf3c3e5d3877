#include "http/QueryString.h"

#include <cctype>

namespace foodservice {
namespace {

int hexValue(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    return -1;
}

} // namespace

std::optional<std::string> percentDecode(std::string_view text)
{
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '%') {
            out += text[i];
            continue;
        }
        if (i + 2 >= text.size())
            return std::nullopt;
        const int high = hexValue(text[i + 1]);
        const int low = hexValue(text[i + 2]);
        if (high < 0 || low < 0)
            return std::nullopt;
        out += static_cast<char>(high * 16 + low);
        i += 2;
    }
    return out;
}

std::string percentEncode(std::string_view text)
{
    static constexpr char digits[] = "0123456789ABCDEF";
    std::string out;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if ((byte < 0x80 && std::isalnum(byte) != 0) || c == '-' || c == '.' || c == '_' || c == '~') {
            out += c;
        } else {
            out += '%';
            out += digits[byte >> 4U];
            out += digits[byte & 0x0FU];
        }
    }
    return out;
}

std::optional<std::vector<std::pair<std::string, std::string>>> parseQueryString(std::string_view query)
{
    std::vector<std::pair<std::string, std::string>> pairs;
    std::size_t start = 0;
    while (start <= query.size()) {
        auto end = query.find('&', start);
        if (end == std::string_view::npos)
            end = query.size();
        const auto pair = query.substr(start, end - start);
        if (!pair.empty()) {
            const auto equals = pair.find('=');
            auto key = percentDecode(pair.substr(0, equals));
            auto value = percentDecode(equals == std::string_view::npos ? std::string_view()
                                                                        : pair.substr(equals + 1));
            if (!key || !value)
                return std::nullopt;
            pairs.emplace_back(std::move(*key), std::move(*value));
        }
        start = end + 1;
    }
    return pairs;
}

} // namespace foodservice
