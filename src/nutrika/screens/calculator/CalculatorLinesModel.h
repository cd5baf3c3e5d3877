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
        DetailRole,
        NoteRole
    };

    explicit CalculatorLinesModel(EnvironmentVariables *session, QObject *parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// The line at `row`, or null.
    [[nodiscard]] DiaryEntryPtr line(int row) const;
    /// The line's amount with the host's unit beside it, or "" when the line lacks what its amount needs.
    [[nodiscard]] static QString lineAmount(const DiaryEntry &entry);
    /// The net carbohydrates under the amount, or that fibre is unknown, when the host shows them; "".
    [[nodiscard]] static QString lineNote(const DiaryEntry &entry);

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
