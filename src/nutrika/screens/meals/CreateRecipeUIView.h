#pragma once

#include "DiaryEntry.h"

#include <QObject>
#include <QtQmlIntegration>
#include <QVariantList>

namespace nutrika {

using namespace Qt::Literals::StringLiterals;

/// State and operations of the meal editor: one meal, carried by a meal line, created, shown, edited,
/// saved, added to the calculator or updated there, in one of four modes. It also holds the state of the
/// meal table (name, servings, one portion), whose look is RecipeTopTable.qml. Its look is
/// CreateRecipeScreen.qml.
class CreateRecipeUIView : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(PreviewOption preview READ preview WRITE setPreview NOTIFY previewChanged)
    Q_PROPERTY(Mode mode READ mode NOTIFY modeChanged)
    Q_PROPERTY(Mode lastMode READ lastMode NOTIFY modeChanged)
    /// The line whose meal is worked on; null until opened.
    Q_PROPERTY(nutrika::DiaryEntry *diaryEntry READ diaryEntryObject NOTIFY entryChanged)
    /// How many servings go on the calculator, as decimal text.
    Q_PROPERTY(QString quantity READ quantity WRITE setQuantity NOTIFY quantityChanged)
    /// The refusal of the last opening, or "".
    Q_PROPERTY(QString error READ error NOTIFY entryChanged)
    /// The meal's name as it was when the editor was opened.
    Q_PROPERTY(QString title READ title NOTIFY entryChanged)
    /// "Edit", "Cancel", or "" for no header link.
    Q_PROPERTY(QString headerLinkText READ headerLinkText NOTIFY modeChanged)
    /// Name field and servings stepper are in use (new and edit).
    Q_PROPERTY(bool composing READ composing NOTIFY modeChanged)
    /// The "Quantity" and "Total Carbohydrates" rows are shown (view and select).
    Q_PROPERTY(bool quantityRowsShown READ quantityRowsShown NOTIFY modeChanged)
    /// The quantity is a stepper (select), else text.
    Q_PROPERTY(bool quantityEditable READ quantityEditable NOTIFY modeChanged)
    /// Each ingredient row has its remove button (edit).
    Q_PROPERTY(bool removable READ removable NOTIFY modeChanged)
    Q_PROPERTY(Actions actions READ actions NOTIFY modeChanged)
    Q_PROPERTY(QString recipeName READ recipeName WRITE setRecipeName NOTIFY recipeNameChanged)
    Q_PROPERTY(QString servings READ servings NOTIFY servingsChanged)
    /// One row per ingredient, in list order: { label, weight }.
    Q_PROPERTY(QVariantList ingredients READ ingredients NOTIFY mealChanged)
    /// "49 g".
    Q_PROPERTY(QString onePortionText READ onePortionText NOTIFY mealChanged)
    /// "195 g".
    Q_PROPERTY(QString totalWeightText READ totalWeightText NOTIFY mealChanged)
    /// "12.0 g": the decimal kept.
    Q_PROPERTY(QString totalTrackedText READ totalTrackedText NOTIFY totalTrackedChanged)

public:
    enum Mode
    {
        New,
        View,
        Edit,
        Select
    };
    Q_ENUM(Mode)

    /// The sample data of a design-time preview; the running module uses NotPreview.
    enum PreviewOption
    {
        PreviewCreate,
        PreviewEdit,
        PreviewSelect,
        PreviewView,
        NotPreview
    };
    Q_ENUM(PreviewOption)

    /// What the bottom of the screen offers.
    enum Actions
    {
        NoActions,
        /// "Add Ingredients" and "Save Meal".
        Compose,
        AddToCalculator,
        Update
    };
    Q_ENUM(Actions)

    /// The refusal of a food line.
    static inline const QString foodRefusal = u"diaryEntry cannot be a of type food, only recipes allowed"_s;

    explicit CreateRecipeUIView(QObject *parent = nullptr);

    /// The raw value modes are compared by: "New", "View", "Edit", "Select".
    [[nodiscard]] static QString rawValue(Mode mode);

    /// Opens on a meal line with the previous mode `select` and the line's quantity. Refuses a line that
    /// is not a meal with `error` set and returns false.
    bool open(const DiaryEntryPtr &entry, Mode mode);
    /// Opens with every field given.
    bool open(const DiaryEntryPtr &entry, Mode mode, Mode lastMode, const QString &quantity);
    /// The calculator's opening, on its own line (QML hands over the bare object).
    Q_INVOKABLE bool openLine(nutrika::DiaryEntry *entry, nutrika::CreateRecipeUIView::Mode mode);
    /// The saved-meal list's openings, on the line that list builds for a saved meal or a new one.
    Q_INVOKABLE bool openSavedMeal(const nutrika::RecipeItem &meal, nutrika::CreateRecipeUIView::Mode mode,
                                   nutrika::CreateRecipeUIView::Mode lastMode, const QString &quantity);
    Q_INVOKABLE bool openNewMeal(nutrika::CreateRecipeUIView::Mode mode,
                                 nutrika::CreateRecipeUIView::Mode lastMode, const QString &quantity);

    /// The steps run each time the screen is shown: collect ingredients through the session's working list.
    Q_INVOKABLE void appear();
    /// The screen left the navigation stack: the search adds to the calculator again.
    Q_INVOKABLE void leave();

    /// The header link: back to the previous mode.
    Q_INVOKABLE void toggleMode();
    Q_INVOKABLE void saveMeal();
    Q_INVOKABLE void addToCalculator();
    /// "Update": the calculator list reports the line again; then the screen closes (closeRequested).
    Q_INVOKABLE void update();
    /// The cross of ingredient `index`; only in edit mode.
    Q_INVOKABLE void removeIngredient(int index);
    /// "Add Ingredients": toggles the ingredient search.
    Q_INVOKABLE void addIngredients();
    /// The servings stepper's report.
    Q_INVOKABLE void setServings(qint64 servings);

    /// Carbohydrates of `quantity` servings, one decimal.
    [[nodiscard]] double getTotalTracked() const;
    /// Grams of all ingredients, one decimal.
    [[nodiscard]] double getTotalWeight() const;
    /// Grams of one serving, whole.
    [[nodiscard]] double getOnePortion() const;
    /// Grams of one ingredient, one decimal. A meal inside a meal weighs its servings' share of its
    /// own ingredients; a line without its portion or meal weighs nothing.
    [[nodiscard]] static double ingredientWeight(const DiaryEntry &ingredient);

    [[nodiscard]] PreviewOption preview() const { return m_preview; }
    void setPreview(PreviewOption preview);
    [[nodiscard]] Mode mode() const { return m_mode; }
    [[nodiscard]] Mode lastMode() const { return m_lastMode; }
    [[nodiscard]] const DiaryEntryPtr &diaryEntry() const { return m_diaryEntry; }
    [[nodiscard]] DiaryEntry *diaryEntryObject() const { return m_diaryEntry.data(); }
    [[nodiscard]] const QString &quantity() const { return m_quantity; }
    void setQuantity(const QString &quantity);
    [[nodiscard]] const QString &error() const { return m_error; }
    [[nodiscard]] const QString &title() const { return m_title; }
    [[nodiscard]] QString headerLinkText() const;
    [[nodiscard]] bool composing() const { return m_mode == New || m_mode == Edit; }
    [[nodiscard]] bool quantityRowsShown() const { return m_mode == View || m_mode == Select; }
    [[nodiscard]] bool quantityEditable() const { return m_mode == Select; }
    [[nodiscard]] bool removable() const { return m_mode == Edit; }
    [[nodiscard]] Actions actions() const;
    [[nodiscard]] const QString &recipeName() const { return m_recipeName; }
    void setRecipeName(const QString &name);
    [[nodiscard]] const QString &servings() const { return m_servings; }
    [[nodiscard]] QVariantList ingredients() const;
    [[nodiscard]] QString onePortionText() const;
    [[nodiscard]] QString totalWeightText() const;
    [[nodiscard]] QString totalTrackedText() const;

signals:
    void previewChanged();
    void modeChanged();
    void entryChanged();
    void quantityChanged();
    void recipeNameChanged();
    void servingsChanged();
    void mealChanged();
    void totalTrackedChanged();
    /// The screen should go back one level.
    void closeRequested();

private:
    /// True for the first of the actions that end the screen, false for any after it.
    bool finishOnce();
    bool refuse(const QString &refusal);
    /// Every write of the mode keeps the one before it.
    void setMode(Mode mode);
    [[nodiscard]] RecipeItem meal() const;
    void setMeal(const RecipeItem &meal);

    PreviewOption m_preview = NotPreview;
    Mode m_mode = View;
    Mode m_lastMode = Select;
    bool m_finished = false;
    DiaryEntryPtr m_diaryEntry;
    QString m_quantity = u"1"_s;
    QString m_error;
    QString m_title;
    QString m_recipeName;
    QString m_servings = u"1"_s;
    QList<QMetaObject::Connection> m_entryWatches;
};

} // namespace nutrika
