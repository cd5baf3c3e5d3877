#pragma once

#include "DiaryEntry.h"

#include <QAbstractListModel>
#include <QtQmlIntegration>

namespace nutrika {

class EnvironmentVariables;

/// The session's calculator lines for the view. It follows every change inside a line, a meal's own
/// lines included, so each row's amount and the total are current whenever a line is edited anywhere.
class CalculatorLinesModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Owned by CarbCounterUIView")

public:
    enum Role
    {
        TitleRole = Qt::UserRole + 1,
        IsFoodRole,
        AmountRole,
        EntryRole,
        DetailRole
    };

    explicit CalculatorLinesModel(EnvironmentVariables *session, QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// The line at `row`, or null.
    [[nodiscard]] DiaryEntryPtr line(int row) const;
    /// The line's amount, or "" when the line lacks what its amount needs.
    [[nodiscard]] static QString lineAmount(const DiaryEntry &entry);
    /// What the line counts, so a person can check it before dosing: the portion and its weight, times
    /// the quantity above 1 ("1 medium · 118 g × 2"), or a meal's servings ("1 serving of 2").
    [[nodiscard]] static QString lineDetail(const DiaryEntry &entry);

signals:
    /// Some line's amount, or the set of lines, changed.
    void totalChanged();

private:
    void reload();
    void lineChanged(const DiaryEntry *entry);

    EnvironmentVariables *m_session;
    QList<DiaryEntryPtr> m_lines;
    QList<QMetaObject::Connection> m_watches;
};

} // namespace nutrika
