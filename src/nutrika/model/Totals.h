#pragma once

#include <QList>
#include <QSharedPointer>
#include <QString>

namespace nutrika {

using namespace Qt::Literals::StringLiterals;

class DiaryEntry;

/// The nutrient the calculator counts.
inline const QString COUNTER_TYPE = u"Carbohydrates"_s;

/// Rounds to one decimal, halves away from zero (0.05 -> 0.1, 0.25 -> 0.3).
[[nodiscard]] double round1(double value);

/// The calculator total: every line's rounded amount, summed in order and rounded again.
[[nodiscard]] double calculateTotal(const QList<QSharedPointer<DiaryEntry>> &lines);

} // namespace nutrika
