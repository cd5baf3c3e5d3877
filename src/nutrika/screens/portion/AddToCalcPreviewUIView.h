#pragma once

#include "DiaryEntry.h"
#include "Preview.h"

#include <QObject>
#include <QtQmlIntegration>

namespace nutrika {

using namespace Qt::Literals::StringLiterals;

/// State and operations of the add-to-calculator preview: one food line with its portion, quantity and
/// carbohydrates, before it is added (add mode) or while a calculator line is changed (edit mode). Its
/// look is AddToCalcPreviewScreen.qml.
class AddToCalcPreviewUIView : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(nutrika::Preview::Value preview READ preview WRITE setPreview NOTIFY previewChanged)
    Q_PROPERTY(ViewMode mode READ mode NOTIFY entryChanged)
    /// The line shown and changed; in edit mode the calculator's own line.
    Q_PROPERTY(nutrika::DiaryEntry *diaryEntry READ diaryEntryObject NOTIFY entryChanged)
    /// The stepper's text.
    Q_PROPERTY(QString quantity READ quantity WRITE setQuantity NOTIFY quantityChanged)
    /// The line's food.
    Q_PROPERTY(nutrika::FoodItem foodItem READ foodItem NOTIFY entryChanged)
    Q_PROPERTY(QString description READ description NOTIFY entryChanged)
    /// "118g".
    Q_PROPERTY(QString portionText READ portionText NOTIFY portionChanged)
    /// The carbohydrates of the portion times the quantity ("37.5g"), or "" while unknown.
    Q_PROPERTY(QString carbohydratesText READ carbohydratesText NOTIFY carbohydratesChanged)
    /// A nutrient request for the current portion is on its way.
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY isLoadingChanged)
    /// The last nutrient request failed: the carbohydrates shown may not be those of this portion.
    Q_PROPERTY(bool nutrientsFailed READ nutrientsFailed NOTIFY isLoadingChanged)
    /// "Add to meal" while a meal is being composed, else "Add to calculator".
    Q_PROPERTY(QString addButtonText READ addButtonText NOTIFY addButtonTextChanged)

public:
    enum ViewMode
    {
        AddNew,
        Edit
    };
    Q_ENUM(ViewMode)

    explicit AddToCalcPreviewUIView(QObject *parent = nullptr);

    /// Add mode: a new line of one portion of `food`.
    Q_INVOKABLE void startAdding(const nutrika::FoodItem &food, const nutrika::PortionItem &portion);
    /// Edit mode on an existing line.
    Q_INVOKABLE void startEditing(nutrika::DiaryEntry *entry);
    void startEditing(const DiaryEntryPtr &entry);

    /// The steps run each time the screen is shown.
    Q_INVOKABLE void appear();
    /// Asks the service for the nutrients of the line's portion.
    Q_INVOKABLE void fetchNutrients();
    /// The add button: to the calculator, or to the meal being composed.
    Q_INVOKABLE void add();
    /// "Search more foods": back to the search results without adding.
    Q_INVOKABLE void searchMoreFoods();
    /// "Update": the calculator list reports the changed line; then the screen closes (closeRequested).
    Q_INVOKABLE void update();
    /// The stepper's report: its normalised text and the line's quantity.
    Q_INVOKABLE void setLineQuantity(qint64 quantity);
    /// The portion screen's answer in edit mode; it reaches the line with its nutrients.
    Q_INVOKABLE void replacePortion(const nutrika::PortionItem &portion);

    [[nodiscard]] Preview::Value preview() const { return m_preview; }
    void setPreview(Preview::Value preview);
    [[nodiscard]] ViewMode mode() const { return m_mode; }
    [[nodiscard]] const DiaryEntryPtr &diaryEntry() const { return m_diaryEntry; }
    [[nodiscard]] DiaryEntry *diaryEntryObject() const { return m_diaryEntry.data(); }
    [[nodiscard]] const QString &quantity() const { return m_quantity; }
    void setQuantity(const QString &quantity);
    [[nodiscard]] FoodItem foodItem() const;
    [[nodiscard]] QString description() const { return foodItem().description; }
    [[nodiscard]] QString portionText() const;
    [[nodiscard]] QString carbohydratesText() const;
    [[nodiscard]] bool isLoading() const { return m_pendingRequests > 0; }
    [[nodiscard]] bool nutrientsFailed() const { return m_nutrientsFailed; }
    [[nodiscard]] QString addButtonText() const;

signals:
    void previewChanged();
    void entryChanged();
    void quantityChanged();
    void portionChanged();
    void carbohydratesChanged();
    void isLoadingChanged();
    void addButtonTextChanged();
    /// The screen should go back one level.
    void closeRequested();

private:
    void setEntry(DiaryEntryPtr entry, ViewMode mode);
    /// True for the first of the actions that end the screen, false for any after it.
    bool finishOnce();

    Preview::Value m_preview = Preview::NotPreview;
    ViewMode m_mode = AddNew;
    DiaryEntryPtr m_diaryEntry;
    QString m_quantity = u"1"_s;
    int m_pendingRequests = 0;
    bool m_nutrientsFailed = false;
    bool m_finished = false;
    /// Edit mode: the portion chosen on the portion screen, waiting for its nutrients.
    std::optional<PortionItem> m_pendingPortion;
    QList<QMetaObject::Connection> m_entryWatches;
};

} // namespace nutrika
