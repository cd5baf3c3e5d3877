#pragma once

#include "FoodItem.h"
#include "PortionItem.h"
#include "Preview.h"

#include <optional>
#include <QList>
#include <QObject>
#include <QStringList>
#include <QtQmlIntegration>
#include <QVariantList>

namespace nutrika {

/// State and operations of the portion selection screen: the food's pictured and described portions,
/// the selected box, the custom amount in grams and "Select Portion". Its look is SelectPortionScreen.qml,
/// whose grid shows the custom box first and then `portionOptions`, two or more to a row.
class SelectPortionUIView : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(
        nutrika::FoodItem selectedFood READ selectedFood WRITE setSelectedFood NOTIFY selectedFoodChanged)
    Q_PROPERTY(nutrika::Preview::Value preview READ preview WRITE setPreview NOTIFY previewChanged)
    /// "Images", "Descriptions".
    Q_PROPERTY(QStringList options READ options CONSTANT)
    Q_PROPERTY(int tabOption READ tabOption WRITE setTabOption NOTIFY portionsChanged)
    /// The portions of the tab in force (PortionItem values), in grid order after the custom box.
    Q_PROPERTY(QVariantList portionOptions READ portionOptionsVariant NOTIFY portionsChanged)
    Q_PROPERTY(bool hasImagePortions READ hasImagePortions NOTIFY portionsChanged)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY isLoadingChanged)
    Q_PROPERTY(bool hasSelectedPortion READ hasSelectedPortion NOTIFY selectionChanged)
    /// The `_id` of the selected portion: -1 is the custom amount.
    Q_PROPERTY(qint64 selectedPortionId READ selectedPortionId NOTIFY selectionChanged)
    /// The text of the custom field; only digits are kept.
    Q_PROPERTY(QString customText READ customText WRITE setCustomText NOTIFY customTextChanged)
    Q_PROPERTY(bool canSelectPortion READ canSelectPortion NOTIFY selectionChanged)
    /// The portion "Select Portion" handed on last.
    Q_PROPERTY(nutrika::PortionItem chosenPortion READ chosenPortion NOTIFY chosenPortionChanged)
    Q_PROPERTY(
        bool navigationActive READ navigationActive WRITE setNavigationActive NOTIFY navigationActiveChanged)
    /// Whether the opener takes the portion back (completed()) instead of the preview opening.
    Q_PROPERTY(bool hasCompleteCallback READ hasCompleteCallback WRITE setHasCompleteCallback NOTIFY
                   hasCompleteCallbackChanged)

public:
    explicit SelectPortionUIView(QObject *parent = nullptr);

    /// Asks the service for the food's portions and sorts them into pictured and described ones.
    Q_INVOKABLE void loadData();
    /// The steps run each time the screen is shown.
    Q_INVOKABLE void appear();
    /// A single tap on the box of portionOptions[index].
    Q_INVOKABLE void selectBox(int index);
    /// A tap on the custom amount box.
    Q_INVOKABLE void selectCustom();
    /// "Select Portion".
    Q_INVOKABLE void selectPortion();

    [[nodiscard]] const FoodItem &selectedFood() const { return m_selectedFood; }
    void setSelectedFood(const FoodItem &food);
    [[nodiscard]] Preview::Value preview() const { return m_preview; }
    void setPreview(Preview::Value preview);
    [[nodiscard]] QStringList options() const;
    [[nodiscard]] int tabOption() const { return m_tabOption; }
    void setTabOption(int tab);
    [[nodiscard]] const QList<PortionItem> &portionOptions() const { return m_portionOptions; }
    [[nodiscard]] QVariantList portionOptionsVariant() const;
    [[nodiscard]] const QList<PortionItem> &imagePortions() const { return m_imagePortions; }
    [[nodiscard]] const QList<PortionItem> &descPortions() const { return m_descPortions; }
    [[nodiscard]] bool hasImagePortions() const { return !m_imagePortions.isEmpty(); }
    [[nodiscard]] bool isLoading() const { return m_isLoading; }
    [[nodiscard]] const std::optional<PortionItem> &selectedPortion() const { return m_selectedPortion; }
    [[nodiscard]] bool hasSelectedPortion() const { return m_selectedPortion.has_value(); }
    [[nodiscard]] qint64 selectedPortionId() const { return m_selectedPortion ? m_selectedPortion->_id : -2; }
    /// -1 while the field is empty; absent when its digits are too many for a number.
    [[nodiscard]] const std::optional<qint64> &customPortionSize() const { return m_customPortionSize; }
    [[nodiscard]] const QString &customText() const { return m_customText; }
    void setCustomText(const QString &text);
    [[nodiscard]] bool canSelectPortion() const;
    [[nodiscard]] const PortionItem &chosenPortion() const { return m_chosenPortion; }
    [[nodiscard]] bool navigationActive() const { return m_navigationActive; }
    void setNavigationActive(bool active);
    [[nodiscard]] bool hasCompleteCallback() const { return m_hasCompleteCallback; }
    void setHasCompleteCallback(bool has);

signals:
    void selectedFoodChanged();
    void previewChanged();
    void portionsChanged();
    void isLoadingChanged();
    void selectionChanged();
    void customTextChanged();
    void chosenPortionChanged();
    void navigationActiveChanged();
    void hasCompleteCallbackChanged();
    /// "Select Portion" with a callback: the opener takes `portion`, then this screen closes.
    void completed(const nutrika::PortionItem &portion);

private:
    void setPortions(const QList<PortionItem> &portions);
    void showPreviewPortions();
    [[nodiscard]] bool customSelected() const
    {
        return m_selectedPortion && m_selectedPortion->_id == basePortionItem()._id;
    }

    FoodItem m_selectedFood{QString(), -1, -1, QString(), false};
    Preview::Value m_preview = Preview::NotPreview;
    int m_tabOption = 0;
    QList<PortionItem> m_portionOptions;
    QList<PortionItem> m_imagePortions;
    QList<PortionItem> m_descPortions;
    bool m_isLoading = false;
    std::optional<PortionItem> m_selectedPortion;
    std::optional<qint64> m_customPortionSize;
    QString m_customText;
    PortionItem m_chosenPortion;
    bool m_navigationActive = false;
    bool m_hasCompleteCallback = false;
};

} // namespace nutrika
