#include "Diagnostics.h"

#include <cstdio>
#include <QString>

namespace nutrika {

void printDiagnostic(QStringView line)
{
    printDiagnostic({}, line.toUtf8());
}

void printDiagnostic(QByteArrayView prefix, QByteArrayView utf8)
{
    // An empty view may carry a null pointer, which fwrite must not be given.
    if (!prefix.isEmpty())
        std::fwrite(prefix.data(), 1, size_t(prefix.size()), stdout);
    if (!utf8.isEmpty())
        std::fwrite(utf8.data(), 1, size_t(utf8.size()), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

} // namespace nutrika
