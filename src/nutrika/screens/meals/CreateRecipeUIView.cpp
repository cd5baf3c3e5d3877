#include "CreateRecipeUIView.h"

#include "Diagnostics.h"
#include "EnvironmentVariables.h"
#include "ExampleData.h"
#include "Formatting.h"
#include "RecipeSearchUIView.h"
#include "RecipeStore.h"
#include "Totals.h"

#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

CreateRecipeUIView::CreateRecipeUIView(QObject *parent) : QObject(parent)
{
    connect(this, &CreateRecipeUIView::quantityChanged, this, &CreateRecipeUIView::totalTrackedChanged);
    connect(this, &CreateRecipeUIView::servingsChanged, this, &CreateRecipeUIView::mealChanged);
}

QString CreateRecipeUIView::rawValue(Mode mode)
{
    switch (mode) {
    case New:
        return u"New"_s;
    case View:
        return u"View"_s;
    case Edit:
        return u"Edit"_s;
    case Select:
        return u"Select"_s;
    }
    return {};
}

bool CreateRecipeUIView::open(const DiaryEntryPtr &entry, Mode mode)
{
    return open(entry, mode, Select, entry ? QString::number(entry->quantity()) : QString());
}

bool CreateRecipeUIView::open(const DiaryEntryPtr &entry, Mode mode, Mode lastMode, const QString &quantity)
{
    if (!entry)
        return refuse(u"diaryEntry is missing"_s);
    if (entry->type() == EntryType::Food)
        return refuse(foodRefusal);
    if (!entry->recipeItem())
        return refuse(u"diaryEntry holds no recipe"_s);

    for (const QMetaObject::Connection &watch : std::as_const(m_entryWatches))
        disconnect(watch);
    m_diaryEntry = entry;
    m_finished = false;
    m_entryWatches = {
        connect(entry.data(), &DiaryEntry::recipeItemChanged, this, &CreateRecipeUIView::mealChanged),
        connect(entry.data(), &DiaryEntry::totalChanged, this, &CreateRecipeUIView::totalTrackedChanged),
    };
    m_error.clear();
    m_mode = mode;
    m_lastMode = lastMode;
    m_quantity = quantity;
    const RecipeItem &recipe = *entry->recipeItem();
    m_title = recipe.name;
    m_recipeName = recipe.name;
    m_servings = QString::number(recipe.servings);
    if (m_preview == NotPreview) {
        // A working list or an ingredient search left by an earlier editor belongs to another meal.
        EnvironmentVariables *env = EnvironmentVariables::shared();
        env->setCurrentRecipeItems({});
        env->setRecipeSearchActive(false);
    }
    emit entryChanged();
    emit modeChanged();
    emit quantityChanged();
    emit recipeNameChanged();
    emit servingsChanged();
    emit mealChanged();
    return true;
}

bool CreateRecipeUIView::openLine(DiaryEntry *entry, Mode mode)
{
    // The calculator passes its own line: take the list's shared handle of that very object.
    for (const DiaryEntryPtr &line : EnvironmentVariables::shared()->TrackedNutrientListItems()) {
        if (line.data() == entry)
            return open(line, mode);
    }
    return refuse(entry && entry->type() == EntryType::Food
                      ? foodRefusal
                      : u"diaryEntry is not a line of the calculator"_s);
}

bool CreateRecipeUIView::refuse(const QString &refusal)
{
    qWarning("CreateRecipeUIView: %s", qPrintable(refusal));
    m_error = refusal;
    emit entryChanged();
    return false;
}

bool CreateRecipeUIView::openSavedMeal(const RecipeItem &meal, Mode mode, Mode lastMode,
                                       const QString &quantity)
{
    return open(RecipeSearchUIView::savedMealEntry(meal), mode, lastMode, quantity);
}

bool CreateRecipeUIView::openNewMeal(Mode mode, Mode lastMode, const QString &quantity)
{
    return open(RecipeSearchUIView::newMealEntry(), mode, lastMode, quantity);
}

void CreateRecipeUIView::appear()
{
    if (m_preview != NotPreview) {
        switch (m_preview) {
        case PreviewCreate:
            open(DiaryEntryPtr::create(123, RecipeItem{tr("New Meal"), -1, {}, 1}, 1), New, Select, u"1"_s);
            break;
        case PreviewEdit:
            open(DiaryEntryPtr::create(123, example::exampleRecipe(), 1), Edit, Select, u"1"_s);
            break;
        case PreviewSelect:
            open(DiaryEntryPtr::create(123, example::exampleRecipe(), 1), Select, Edit, u"1"_s);
            break;
        default:
            open(example::exampleDiaryRecipeItem1(), View);
            break;
        }
        return;
    }
    if (!m_diaryEntry)
        return;
    EnvironmentVariables *env = EnvironmentVariables::shared();
    env->setEditRecipeActive(true);
    if (env->CurrentRecipeItems().isEmpty()) {
        env->setCurrentRecipeItems(meal().items);
    } else {
        RecipeItem changed = meal();
        changed.items = env->CurrentRecipeItems();
        setMeal(changed);
    }
}

void CreateRecipeUIView::leave()
{
    if (m_preview == NotPreview)
        EnvironmentVariables::shared()->setEditRecipeActive(false);
}

void CreateRecipeUIView::setMode(Mode mode)
{
    m_lastMode = m_mode;
    m_mode = mode;
    emit modeChanged();
}

void CreateRecipeUIView::toggleMode()
{
    if (m_mode != New)
        setMode(m_lastMode);
}

void CreateRecipeUIView::saveMeal()
{
    if (!m_diaryEntry)
        return;
    RecipeItem recipe = meal();
    if (recipe.id == -1) {
        // The store gives the id while it holds the file, so another process saving at once cannot take it.
        recipe.id = saveNewRecipe(recipe);
        setMeal(recipe);
    } else {
        saveRecipe(recipe);
    }
    if (m_mode == New) {
        setMode(Select);
        m_lastMode = Edit;
        emit modeChanged();
    } else {
        setMode(m_lastMode);
    }
    EnvironmentVariables::shared()->setCurrentRecipeItems({});
    printDiagnostic(rawValue(m_mode));
}

bool CreateRecipeUIView::finishOnce()
{
    if (!m_diaryEntry || m_finished)
        return false;
    // The button stays live while the screen slides away: a second tap must not count the meal again.
    m_finished = true;
    return true;
}

void CreateRecipeUIView::addToCalculator()
{
    if (!finishOnce())
        return;
    bool number = false;
    if (const qint64 q = m_quantity.toLongLong(&number); number)
        m_diaryEntry->setQuantity(q);
    EnvironmentVariables *env = EnvironmentVariables::shared();
    env->setTrackedNutrientListItems(QList(env->TrackedNutrientListItems()) << m_diaryEntry);
    env->setCurrentRecipeItems({});
    env->setSearchActive(false);
}

void CreateRecipeUIView::update()
{
    if (!finishOnce())
        return;
    bool number = false;
    if (const qint64 q = m_quantity.toLongLong(&number); number)
        m_diaryEntry->setQuantity(q);
    EnvironmentVariables *env = EnvironmentVariables::shared();
    QList<DiaryEntryPtr> lines = env->TrackedNutrientListItems();
    if (const qsizetype at = lines.indexOf(m_diaryEntry); at >= 0) {
        lines[at] = m_diaryEntry;
        env->setTrackedNutrientListItems(lines);
    }
    emit closeRequested();
}

void CreateRecipeUIView::removeIngredient(int index)
{
    RecipeItem changed = meal();
    if (!removable() || index < 0 || index >= changed.items.size()) {
        qWarning("CreateRecipeUIView: no ingredient %d to remove", index);
        return;
    }
    changed.items.removeAt(index);
    setMeal(changed);
    EnvironmentVariables::shared()->setCurrentRecipeItems(changed.items);
}

void CreateRecipeUIView::addIngredients()
{
    EnvironmentVariables *env = EnvironmentVariables::shared();
    const bool opening = !env->recipeSearchActive();
    // After a save the working list is empty; an addition must join the meal's ingredients, not
    // replace them.
    if (opening && env->CurrentRecipeItems().isEmpty() && m_diaryEntry)
        env->setCurrentRecipeItems(meal().items);
    env->setRecipeSearchActive(opening);
}

void CreateRecipeUIView::setServings(qint64 servings)
{
    const QString text = QString::number(servings);
    if (m_diaryEntry && meal().servings != servings) {
        RecipeItem changed = meal();
        changed.servings = servings;
        setMeal(changed);
    }
    if (text != m_servings) {
        m_servings = text;
        emit servingsChanged();
    }
}

void CreateRecipeUIView::setRecipeName(const QString &name)
{
    if (name == m_recipeName)
        return;
    m_recipeName = name;
    if (m_diaryEntry) {
        RecipeItem changed = meal();
        changed.name = name;
        setMeal(changed);
    }
    emit recipeNameChanged();
}

RecipeItem CreateRecipeUIView::meal() const
{
    return m_diaryEntry && m_diaryEntry->recipeItem() ? *m_diaryEntry->recipeItem() : RecipeItem();
}

void CreateRecipeUIView::setMeal(const RecipeItem &meal)
{
    // In place: whoever holds the same line sees the change.
    m_diaryEntry->setRecipeItem(meal);
}

double CreateRecipeUIView::ingredientWeight(const DiaryEntry &ingredient)
{
    const double quantity = double(ingredient.quantity());
    if (ingredient.type() == EntryType::Food)
        return ingredient.portion() ? std::round(quantity * double(ingredient.portion()->size) * 10) / 10 : 0;
    if (!ingredient.recipeItem())
        return 0;
    const RecipeItem &inner = *ingredient.recipeItem();
    double sum = 0;
    for (const DiaryEntryPtr &line : inner.items)
        sum += line && line.data() != &ingredient ? ingredientWeight(*line) : 0;
    const double servings = inner.servings > 0 ? double(inner.servings) : 1;
    return std::round(quantity * round1(sum) / servings * 10) / 10;
}

double CreateRecipeUIView::getTotalWeight() const
{
    double sum = 0;
    for (const DiaryEntryPtr &line : meal().items)
        sum += line ? ingredientWeight(*line) : 0;
    return std::round(sum * 10) / 10;
}

double CreateRecipeUIView::getOnePortion() const
{
    const double servings = m_servings.toDouble();
    // The stepper never gives fewer than one serving; anything else counts as one.
    return std::round(getTotalWeight() / (servings >= 1 ? servings : 1));
}

double CreateRecipeUIView::getTotalTracked() const
{
    bool number = false;
    double q = m_quantity.toDouble(&number);
    if (!number)
        q = 0;
    return std::round(meal().getTotalTracked() * 10 * q) / 10;
}

QString CreateRecipeUIView::headerLinkText() const
{
    switch (m_mode) {
    case New:
        return {};
    case View:
    case Select:
        return tr("Edit");
    case Edit:
        return tr("Cancel");
    }
    return {};
}

CreateRecipeUIView::Actions CreateRecipeUIView::actions() const
{
    switch (m_mode) {
    case New:
    case Edit:
        return Compose;
    case View:
        return NoActions;
    case Select:
        return rawValue(m_lastMode) == rawValue(Edit) ? AddToCalculator : Update;
    }
    return NoActions;
}

QVariantList CreateRecipeUIView::ingredients() const
{
    QVariantList rows;
    for (const DiaryEntryPtr &line : meal().items) {
        if (!line)
            continue;
        const qint64 quantity = line->quantity();
        double size = 0;
        if (line->type() == EntryType::Food && line->portion())
            size = double(line->portion()->size);
        else if (line->type() == EntryType::Recipe && quantity != 0)
            size = ingredientWeight(*line) / double(quantity);
        const QString label = u"%1\n(%2 X %3 g)"_s.arg(line->title(), QString::number(quantity),
                                                       shortestDecimalText(round1(size)));
        const qint64 weight = line->type() == EntryType::Food && line->portion()
                                  ? quantity * line->portion()->size
                                  : qRound64(ingredientWeight(*line));
        rows.append(QVariantMap{{u"label"_s, label}, {u"weight"_s, u"%1 g"_s.arg(weight)}});
    }
    return rows;
}

QString CreateRecipeUIView::onePortionText() const
{
    return amountText(getOnePortion());
}

QString CreateRecipeUIView::totalWeightText() const
{
    return amountText(getTotalWeight());
}

QString CreateRecipeUIView::totalTrackedText() const
{
    return shortestDecimalText(getTotalTracked()) + u" g"_s;
}

void CreateRecipeUIView::setPreview(PreviewOption preview)
{
    m_preview = preview;
    emit previewChanged();
}

void CreateRecipeUIView::setQuantity(const QString &quantity)
{
    if (quantity == m_quantity)
        return;
    m_quantity = quantity;
    emit quantityChanged();
}

} // namespace nutrika
