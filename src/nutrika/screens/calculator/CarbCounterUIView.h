#pragma once

#include "CalculatorLinesModel.h"
#include "DiaryEntry.h"
#include "FoodItem.h"
#include "Preview.h"

#include <functional>
#include <optional>
#include <QList>
#include <QObject>
#include <QTimer>
#include <QtQmlIntegration>
#include <QVariant>

namespace nutrika {

/// State and operations of the calculator, the module's root screen: the session's lines and their
/// total, removal, the appearance steps, the "Close" action and the suggestion flow. Its look is
/// CarbCounterScreen.qml.
class CarbCounterUIView : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    /// The session's lines, in display order, each with its title and amount.
    Q_PROPERTY(nutrika::CalculatorLinesModel *lines READ lines CONSTANT)
    Q_PROPERTY(QString totalText READ totalText NOTIFY totalChanged)
    /// The total in the host's carbohydrate unit ("13.6 KE"); "" in grams.
    Q_PROPERTY(QString totalUnitText READ totalUnitText NOTIFY totalChanged)
    /// The host's extra figures for the total: net carbohydrates and fat-protein units, one per line of
    /// text; "" when the host asked for none.
    Q_PROPERTY(QString totalNote READ totalNote NOTIFY totalChanged)
    /// "Removed …" while the last removed line can be put back; "".
    Q_PROPERTY(QString undoText READ undoText NOTIFY undoTextChanged)
    /// "Total Carbohydrates".
    Q_PROPERTY(QString counterHeader READ counterHeader CONSTANT)
    Q_PROPERTY(bool hasAccompanimentItem READ hasAccompanimentItem NOTIFY accompanimentItemChanged)
    Q_PROPERTY(
        nutrika::FoodItem accompanimentItem READ accompanimentItemValue NOTIFY accompanimentItemChanged)
    /// The suggested foods (FoodItem values).
    Q_PROPERTY(QVariantList accompanimentListItems READ accompanimentListVariant NOTIFY
                   accompanimentListItemsChanged)
    Q_PROPERTY(bool showAccompanimentList READ showAccompanimentList WRITE setShowAccompanimentList NOTIFY
                   showAccompanimentListChanged)
    Q_PROPERTY(nutrika::Preview::Value preview READ preview WRITE setPreview NOTIFY previewChanged)
    /// Written by the screen: no other screen covers the calculator. The suggestions wait until it is.
    Q_PROPERTY(bool inFront READ inFront WRITE setInFront NOTIFY inFrontChanged)

public:
    using FoodsDone = std::function<void(std::optional<QList<FoodItem>>)>;
    using AccompanimentRequest = std::function<void(qint64 foodId, QObject *context, FoodsDone done)>;

    static constexpr int accompanimentDelayMs = 1000;
    /// How long a removed line can be put back.
    static constexpr int undoMs = 6000;

    /// For a QML host: the host's callback is the dismissCallback() signal.
    explicit CarbCounterUIView(QObject *parent = nullptr);
    explicit CarbCounterUIView(std::function<void()> onDismissCallback, QObject *parent = nullptr);

    [[nodiscard]] CalculatorLinesModel *lines() const { return m_lines; }
    [[nodiscard]] double calculateTotal() const;
    [[nodiscard]] QString totalText() const;
    [[nodiscard]] QString totalUnitText() const;
    [[nodiscard]] QString totalNote() const;
    [[nodiscard]] QString undoText() const;
    [[nodiscard]] QString counterHeader() const;

    /// The line at `index`, for the screen that edits it.
    [[nodiscard]] Q_INVOKABLE nutrika::DiaryEntry *line(int index) const;

    /// Removes the line at `index` from the session; an index out of range changes nothing.
    Q_INVOKABLE void remove(int index);
    /// Puts the last removed line back at its place, when the host offers undo.
    Q_INVOKABLE void undoRemove();
    /// The steps run each time the screen is shown.
    Q_INVOKABLE void appear();

    /// Asks the service for the foods eaten with the session's foodItemForAccompaniments.
    void getAccompanimentData();
    void setAccompanimentRequest(AccompanimentRequest request) { m_request = std::move(request); }
    /// The suggestion screen's selection handler.
    void selectAccompaniment(const std::optional<FoodItem> &item);
    /// The same for QML: a foodItem value, or undefined for none.
    Q_INVOKABLE void selectAccompanimentValue(const QVariant &item);

    [[nodiscard]] const std::optional<FoodItem> &accompanimentItem() const { return m_accompanimentItem; }
    [[nodiscard]] bool hasAccompanimentItem() const { return m_accompanimentItem.has_value(); }
    [[nodiscard]] FoodItem accompanimentItemValue() const { return m_accompanimentItem.value_or(FoodItem()); }
    [[nodiscard]] const QList<FoodItem> &accompanimentListItems() const { return m_accompanimentListItems; }
    [[nodiscard]] QVariantList accompanimentListVariant() const;
    [[nodiscard]] bool showAccompanimentList() const { return m_showAccompanimentList; }
    void setShowAccompanimentList(bool show);
    [[nodiscard]] Preview::Value preview() const { return m_preview; }
    void setPreview(Preview::Value preview);
    [[nodiscard]] bool inFront() const { return m_inFront; }
    void setInFront(bool inFront);

signals:
    void totalChanged();
    void accompanimentItemChanged();
    void accompanimentListItemsChanged();
    void showAccompanimentListChanged();
    void previewChanged();
    void inFrontChanged();
    void undoTextChanged();
    /// The host's callback, for a host that embeds the module in QML.
    void dismissCallback();
    /// The module's presentation should end (the container hides).
    void dismissPresentation();

private:
    void forgetRemoved();

    std::function<void()> m_onDismissCallback;
    CalculatorLinesModel *m_lines;
    AccompanimentRequest m_request;
    std::optional<FoodItem> m_accompanimentItem;
    QList<FoodItem> m_accompanimentListItems;
    bool m_showAccompanimentList = false;
    Preview::Value m_preview = Preview::NotPreview;
    bool m_inFront = true;
    QTimer *m_showTimer;
    DiaryEntryPtr m_removed;
    int m_removedIndex = 0;
    QTimer *m_undoTimer;
};

} // namespace nutrika
