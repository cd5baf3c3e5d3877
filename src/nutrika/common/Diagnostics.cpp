#include "Diagnostics.h"

#include <QString>
#include <cstdio>

namespace nutrika {

void printDiagnostic(QStringView line)
{
    printDiagnostic({}, line.toUtf8());
}

void printDiagnostic(QByteArrayView prefix, QByteArrayView utf8)
{
    std::fwrite(prefix.data(), 1, size_t(prefix.size()), stdout);
    std::fwrite(utf8.data(), 1, size_t(utf8.size()), stdout);
    std::fputc('\n', stdout);
    std::fflush(stdout);
}

} // namespace nutrika
