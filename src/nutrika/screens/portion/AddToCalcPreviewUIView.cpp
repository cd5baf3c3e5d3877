#include "AddToCalcPreviewUIView.h"

#include "EnvironmentVariables.h"
#include "ExampleData.h"
#include "Formatting.h"
#include "HostSettings.h"
#include "MealNutrients.h"
#include "NutrientsRequest.h"
#include "RecentFoods.h"
#include "Totals.h"

#include <QPointer>

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

AddToCalcPreviewUIView::AddToCalcPreviewUIView(QObject *parent) : QObject(parent)
{
    connect(EnvironmentVariables::shared(), &EnvironmentVariables::editRecipeActiveChanged, this,
            &AddToCalcPreviewUIView::addButtonTextChanged);
}

void AddToCalcPreviewUIView::startAdding(const FoodItem &food, const PortionItem &portion)
{
    setEntry(DiaryEntryPtr::create(123, portion, food), AddNew);
    setQuantity(u"1"_s);
}

void AddToCalcPreviewUIView::startEditing(DiaryEntry *entry)
{
    // The line is the calculator's own: find its shared handle there.
    for (const DiaryEntryPtr &line : EnvironmentVariables::shared()->TrackedNutrientListItems()) {
        if (line.data() == entry)
            return startEditing(line);
    }
    qWarning("AddToCalcPreviewUIView: the line to edit is not on the calculator");
}

void AddToCalcPreviewUIView::startEditing(const DiaryEntryPtr &entry)
{
    setEntry(entry, Edit);
    setQuantity(QString::number(entry->quantity()));
}

void AddToCalcPreviewUIView::setEntry(DiaryEntryPtr entry, ViewMode mode)
{
    for (const QMetaObject::Connection &watch : std::as_const(m_entryWatches))
        disconnect(watch);
    m_diaryEntry = std::move(entry);
    m_mode = mode;
    m_finished = false;
    m_pendingPortion.reset();
    m_entryWatches = {
        connect(m_diaryEntry.data(), &DiaryEntry::trackedNutrientChanged, this,
                &AddToCalcPreviewUIView::carbohydratesChanged),
        connect(m_diaryEntry.data(), &DiaryEntry::quantityChanged, this,
                &AddToCalcPreviewUIView::carbohydratesChanged),
        connect(m_diaryEntry.data(), &DiaryEntry::portionChanged, this,
                &AddToCalcPreviewUIView::portionChanged),
        connect(HostSettings::shared(), &HostSettings::changed, this,
                &AddToCalcPreviewUIView::carbohydratesChanged),
    };
    emit entryChanged();
    emit portionChanged();
    emit carbohydratesChanged();
}

void AddToCalcPreviewUIView::appear()
{
    if (m_preview == Preview::NotPreview) {
        fetchNutrients();
        return;
    }
    if (m_preview == Preview::Edit)
        startEditing(example::exampleTrackedNutrient1());
    else
        startAdding(example::exampleSelectedFood(), example::examplePortionItem());
    if (m_preview == Preview::AddNew)
        m_diaryEntry->setTrackedNutrient(example::exampleNutrientCarb());
}

void AddToCalcPreviewUIView::fetchNutrients()
{
    if (!m_diaryEntry || !m_diaryEntry->foodItem() || !m_diaryEntry->portion())
        return;
    const PortionItem portion = m_pendingPortion.value_or(*m_diaryEntry->portion());
    if (!m_pendingPortion)
        m_diaryEntry->setNutrients(QList<NutrientValue>());
    ++m_pendingRequests;
    emit isLoadingChanged();
    const DiaryEntryPtr entry = m_diaryEntry;
    const bool replacing = m_pendingPortion.has_value();
    // The answer fills the line even when this screen has gone: the line may already be on a list. A new
    // portion joins the line only together with its own values, so the line never pairs one portion
    // with the carbohydrates of another.
    requestNutrients(
        *EnvironmentVariables::shared()->serviceClient(), *entry->foodItem(), portion, entry.data(),
        [entry, portion, replacing, self = QPointer(this)](const std::optional<PortionNutrients> &answer) {
            if (answer) {
                if (replacing)
                    entry->setPortion(portion);
                entry->setNutrients(answer->nutrients);
                entry->setTrackedNutrient(answer->trackedNutrient);
            }
            if (self) {
                if (answer && replacing && self->m_pendingPortion == portion &&
                    self->m_pendingPortion->size == portion.size) {
                    self->m_pendingPortion.reset();
                    emit self->portionChanged();
                    emit self->carbohydratesChanged();
                }
                self->m_nutrientsFailed = !answer;
                --self->m_pendingRequests;
                emit self->isLoadingChanged();
            }
        });
}

bool AddToCalcPreviewUIView::finishOnce()
{
    if (!m_diaryEntry || m_finished)
        return false;
    // The button stays live while the screen slides away: a second tap must not count the line again.
    m_finished = true;
    return true;
}

void AddToCalcPreviewUIView::add()
{
    if (!finishOnce())
        return;
    EnvironmentVariables *env = EnvironmentVariables::shared();
    if (env->editRecipeActive()) {
        env->setCurrentRecipeItems(QList(env->CurrentRecipeItems()) << m_diaryEntry);
        env->setRecipeSearchActive(false);
        return;
    }
    env->setTrackedNutrientListItems(QList(env->TrackedNutrientListItems()) << m_diaryEntry);
    if (HostSettings::shared()->recentFoods() && m_diaryEntry->foodItem() && m_diaryEntry->portion())
        rememberRecentFood(*m_diaryEntry->foodItem(), *m_diaryEntry->portion());
    env->setSearchActive(false);
    env->setAccompanimentsActive(false);
    env->setFoodItemForAccompaniments(m_diaryEntry->foodItem());
}

void AddToCalcPreviewUIView::searchMoreFoods()
{
    if (!finishOnce())
        return;
    EnvironmentVariables *env = EnvironmentVariables::shared();
    env->setPortionActive(-1);
    // Reached from a suggestion, the portion screen hangs on this flag instead.
    env->setAccompanimentsActive(false);
}

void AddToCalcPreviewUIView::update()
{
    if (!finishOnce())
        return;
    EnvironmentVariables *env = EnvironmentVariables::shared();
    QList<DiaryEntryPtr> lines = env->TrackedNutrientListItems();
    const qsizetype at = lines.indexOf(m_diaryEntry);
    if (at >= 0) {
        lines[at] = m_diaryEntry;
        env->setTrackedNutrientListItems(lines);
    }
    emit closeRequested();
}

void AddToCalcPreviewUIView::setLineQuantity(qint64 quantity)
{
    setQuantity(QString::number(quantity));
    if (m_diaryEntry)
        m_diaryEntry->setQuantity(quantity);
}

void AddToCalcPreviewUIView::replacePortion(const PortionItem &portion)
{
    if (!m_diaryEntry)
        return;
    // The calculator's line keeps its portion until the new one's carbohydrates have arrived.
    m_pendingPortion = portion;
    emit portionChanged();
    emit carbohydratesChanged();
}

void AddToCalcPreviewUIView::setPreview(Preview::Value preview)
{
    m_preview = preview;
    emit previewChanged();
}

void AddToCalcPreviewUIView::setQuantity(const QString &quantity)
{
    if (quantity == m_quantity)
        return;
    m_quantity = quantity;
    emit quantityChanged();
    emit carbohydratesChanged();
}

FoodItem AddToCalcPreviewUIView::foodItem() const
{
    return m_diaryEntry && m_diaryEntry->foodItem() ? *m_diaryEntry->foodItem() : FoodItem();
}

QString AddToCalcPreviewUIView::portionText() const
{
    if (m_pendingPortion)
        return m_pendingPortion->sizeText();
    if (!m_diaryEntry || !m_diaryEntry->portion())
        return {};
    return m_diaryEntry->portion()->sizeText();
}

QString AddToCalcPreviewUIView::carbohydratesText() const
{
    if (m_pendingPortion || !m_diaryEntry || !m_diaryEntry->trackedNutrient() || m_diaryEntry->quantity() < 1)
        return {};
    const NutrientValue &tracked = *m_diaryEntry->trackedNutrient();
    bool number = false;
    double q = m_quantity.toDouble(&number);
    if (!number)
        q = 0;
    const QString value = shortestDecimalText(q * tracked.value);
    const QString grams = withoutPointZero(formatValueWithUnits(value, tracked.unit, int(tracked.dp)));
    // The host's unit is taken from the grams the calculator will count for this line.
    const QString units = carbUnitText(round1(q * tracked.value), HostSettings::shared()->options().carbUnit);
    return units.isEmpty() ? grams : grams + u" · "_s + units;
}

QString AddToCalcPreviewUIView::addButtonText() const
{
    return EnvironmentVariables::shared()->editRecipeActive() ? tr("Add to meal") : tr("Add to calculator");
}

} // namespace nutrika
