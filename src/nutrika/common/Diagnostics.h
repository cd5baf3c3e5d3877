#pragma once

#include <QByteArrayView>
#include <QStringView>

namespace nutrika {

/// Writes one developer diagnostic line to standard output. Nothing parses these lines.
void printDiagnostic(QStringView line);
/// The same for text that is already UTF-8, such as a JSON document, without converting it.
void printDiagnostic(QByteArrayView prefix, QByteArrayView utf8);

} // namespace nutrika
