#include "CarbCounterUIView.h"

#include "AccompanyingFoodsRequest.h"
#include "Diagnostics.h"
#include "EnvironmentVariables.h"
#include "ExampleData.h"
#include "Formatting.h"
#include "HostSettings.h"
#include "MealNutrients.h"
#include "nutrika/Nutrika.h"
#include "Totals.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QPointer>

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

CarbCounterUIView::CarbCounterUIView(QObject *parent) : CarbCounterUIView({}, parent)
{
    m_onDismissCallback = [self = QPointer(this)] {
        if (self)
            emit self->dismissCallback();
    };
}

CarbCounterUIView::CarbCounterUIView(std::function<void()> onDismissCallback, QObject *parent)
    : QObject(parent), m_onDismissCallback(std::move(onDismissCallback)),
      m_lines(new CalculatorLinesModel(EnvironmentVariables::shared(), this)),
      m_request([](qint64 foodId, QObject *context, FoodsDone done) {
          requestAccompanyingFoods(*EnvironmentVariables::shared()->serviceClient(), foodId, context,
                                   std::move(done));
      }),
      m_showTimer(new QTimer(this)), m_undoTimer(new QTimer(this))
{
    connect(m_lines, &CalculatorLinesModel::totalChanged, this, &CarbCounterUIView::totalChanged);
    connect(HostSettings::shared(), &HostSettings::changed, this, &CarbCounterUIView::totalChanged);
    m_undoTimer->setSingleShot(true);
    m_undoTimer->setInterval(undoMs);
    connect(m_undoTimer, &QTimer::timeout, this, [this] { forgetRemoved(); });
    m_showTimer->setSingleShot(true);
    m_showTimer->setTimerType(Qt::PreciseTimer);
    m_showTimer->setInterval(accompanimentDelayMs);
    connect(m_showTimer, &QTimer::timeout, this, [this] { setShowAccompanimentList(true); });
}

double CarbCounterUIView::calculateTotal() const
{
    return nutrika::calculateTotal(EnvironmentVariables::shared()->TrackedNutrientListItems());
}

QString CarbCounterUIView::totalText() const
{
    return amountText(calculateTotal());
}

QString CarbCounterUIView::totalUnitText() const
{
    return carbUnitText(calculateTotal(), HostSettings::shared()->options().carbUnit);
}

QString CarbCounterUIView::totalNote() const
{
    const HostOptions &options = HostSettings::shared()->options();
    if (!options.netCarbohydrates && !options.fatProteinUnits)
        return {};
    const MealResult result = mealResult();
    const auto unknown = [&](std::optional<double> MealLine::*field) {
        return std::count_if(result.lines.begin(), result.lines.end(),
                             [&](const MealLine &line) { return !(line.*field).has_value(); });
    };
    const auto sum = [&](std::optional<double> MealLine::*field) {
        double total = 0;
        for (const MealLine &line : result.lines)
            total += (line.*field).value_or(0);
        return total;
    };
    QStringList notes;
    if (options.netCarbohydrates) {
        const qsizetype missing = unknown(&MealLine::fibre);
        notes.append(missing == 0 ? netText(result.totalCarbohydrates, sum(&MealLine::fibre))
                                  : tr("net unknown: %n line(s) without fibre", nullptr, int(missing)));
    }
    if (options.fatProteinUnits) {
        const qsizetype missing = std::max(unknown(&MealLine::fat), unknown(&MealLine::protein));
        const double units = round1(fatProteinUnits(sum(&MealLine::fat), sum(&MealLine::protein)));
        const int hours = absorptionHours(units);
        notes.append(missing != 0
                         ? tr("FPU unknown: %n line(s) without fat or protein", nullptr, int(missing))
                     : hours == 0 ? tr("%1 FPU").arg(units, 0, 'f', 1)
                                  : tr("%1 FPU · absorbed over %2 h").arg(units, 0, 'f', 1).arg(hours));
    }
    return notes.join(u'\n');
}

QString CarbCounterUIView::counterHeader() const
{
    // The nutrient's name is the service's, shown translated.
    return tr("Total %1").arg(tr("Carbohydrates"));
}

DiaryEntry *CarbCounterUIView::line(int index) const
{
    return m_lines->line(index).data();
}

void CarbCounterUIView::remove(int index)
{
    EnvironmentVariables *env = EnvironmentVariables::shared();
    QList<DiaryEntryPtr> items = env->TrackedNutrientListItems();
    if (index < 0 || index >= items.size()) {
        qWarning("CarbCounterUIView: no line %d to remove", index);
        return;
    }
    const DiaryEntryPtr removed = items.takeAt(index);
    env->setTrackedNutrientListItems(items);
    if (HostSettings::shared()->undoRemoval()) {
        m_removed = removed;
        m_removedIndex = index;
        m_undoTimer->start();
        emit undoTextChanged();
    }
}

QString CarbCounterUIView::undoText() const
{
    return m_removed ? tr("Removed %1").arg(m_removed->title()) : QString();
}

void CarbCounterUIView::undoRemove()
{
    if (!m_removed)
        return;
    EnvironmentVariables *env = EnvironmentVariables::shared();
    QList<DiaryEntryPtr> items = env->TrackedNutrientListItems();
    items.insert(std::min(m_removedIndex, int(items.size())), m_removed);
    env->setTrackedNutrientListItems(items);
    forgetRemoved();
}

void CarbCounterUIView::forgetRemoved()
{
    m_undoTimer->stop();
    if (!m_removed)
        return;
    m_removed.reset();
    emit undoTextChanged();
}

void CarbCounterUIView::appear()
{
    EnvironmentVariables *env = EnvironmentVariables::shared();
    env->setAccompanimentsActive(false);
    env->setPortionActive(-1);
    env->setDismissFunction([callback = m_onDismissCallback, self = QPointer(this)] {
        // A meal editor left open under "Close" never hears its removal; the next opening must not
        // send foods into a meal nobody is composing.
        EnvironmentVariables::shared()->setEditRecipeActive(false);
        // The host hears what was counted before it hears that the module closed.
        emit mealResults()->closed(mealResult());
        if (callback)
            callback();
        if (self)
            emit self->dismissPresentation();
    });
    if (m_preview == Preview::LongLines) {
        env->setTrackedNutrientListItems({example::exampleLongLine(), example::exampleDiaryRecipeItem2()});
    } else if (m_preview != Preview::NotPreview) {
        env->setTrackedNutrientListItems(
            {example::exampleTrackedNutrient1(), example::exampleTrackedNutrient2(),
             example::exampleDiaryRecipeItem1(), example::exampleDiaryRecipeItem2()});
    } else if (env->TrackedNutrientListItems().isEmpty()) {
        env->setSearchActive(true);
    }
    if (env->foodItemForAccompaniments())
        getAccompanimentData();
}

void CarbCounterUIView::getAccompanimentData()
{
    const std::optional<FoodItem> &food = EnvironmentVariables::shared()->foodItemForAccompaniments();
    if (!food || !m_request)
        return;
    m_request(food->id, this, [self = QPointer(this)](std::optional<QList<FoodItem>> foods) {
        if (!self || !foods)
            return;
        self->m_accompanimentListItems.append(*foods);
        emit self->accompanimentListItemsChanged();
        QJsonArray dump;
        for (const FoodItem &item : std::as_const(self->m_accompanimentListItems))
            dump.append(item.toJson());
        printDiagnostic("", QJsonDocument(dump).toJson(QJsonDocument::Compact));
        // A second reply before the pop-over shows keeps the first reply's schedule.
        if (!self->m_accompanimentListItems.isEmpty() && !self->m_showAccompanimentList &&
            !self->m_showTimer->isActive() && self->m_inFront)
            self->m_showTimer->start();
    });
}

void CarbCounterUIView::selectAccompaniment(const std::optional<FoodItem> &item)
{
    if (item)
        printDiagnostic("", QJsonDocument(item->toJson()).toJson(QJsonDocument::Compact));
    else
        printDiagnostic(u"nil");
    EnvironmentVariables *env = EnvironmentVariables::shared();
    env->setFoodItemForAccompaniments(std::nullopt);
    m_accompanimentItem = item;
    emit accompanimentItemChanged();
    setShowAccompanimentList(false);
    m_accompanimentListItems.clear();
    emit accompanimentListItemsChanged();
    env->setAccompanimentsActive(true);
}

void CarbCounterUIView::selectAccompanimentValue(const QVariant &item)
{
    if (item.canConvert<FoodItem>())
        selectAccompaniment(item.value<FoodItem>());
    else
        selectAccompaniment(std::nullopt);
}

QVariantList CarbCounterUIView::accompanimentListVariant() const
{
    QVariantList list;
    for (const FoodItem &food : m_accompanimentListItems)
        list.append(QVariant::fromValue(food));
    return list;
}

void CarbCounterUIView::setShowAccompanimentList(bool show)
{
    m_showAccompanimentList = show;
    emit showAccompanimentListChanged();
}

void CarbCounterUIView::setInFront(bool inFront)
{
    if (inFront == m_inFront)
        return;
    m_inFront = inFront;
    emit inFrontChanged();
    // Suggestions shown over another screen would add to whatever that screen composes.
    if (!m_inFront)
        m_showTimer->stop();
    else if (!m_accompanimentListItems.isEmpty() && !m_showAccompanimentList)
        m_showTimer->start();
}

void CarbCounterUIView::setPreview(Preview::Value preview)
{
    m_preview = preview;
    emit previewChanged();
}

} // namespace nutrika
