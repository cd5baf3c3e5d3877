#include "CarbCounterUIView.h"

#include "AccompanyingFoodsRequest.h"
#include "Diagnostics.h"
#include "EnvironmentVariables.h"
#include "ExampleData.h"
#include "Totals.h"

#include <QJsonDocument>
#include <QPointer>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

CarbCounterUIView::CarbCounterUIView(QObject *parent)
    : CarbCounterUIView({}, parent)
{
    m_onDismissCallback = [self = QPointer(this)] {
        if (self)
            emit self->dismissCallback();
    };
}

CarbCounterUIView::CarbCounterUIView(std::function<void()> onDismissCallback, QObject *parent)
    : QObject(parent), m_onDismissCallback(std::move(onDismissCallback)),
      m_request([](qint64 foodId, QObject *context, FoodsDone done) {
          requestAccompanyingFoods(*EnvironmentVariables::shared()->serviceClient(), foodId, context,
                                   std::move(done));
      })
{
    EnvironmentVariables *env = EnvironmentVariables::shared();
    connect(env, &EnvironmentVariables::trackedNutrientListItemsChanged, this, [this] {
        watchLines();
        emit linesChanged();
        emit totalChanged();
    });
    watchLines();
}

QString CarbCounterUIView::amountText(double amount)
{
    QString text = QString::number(amount, 'g', QLocale::FloatingPointShortest);
    const bool finite = qIsFinite(amount);
    if (finite && !text.contains(u'.') && !text.contains(u'e'))
        text += u".0"_s;
    // Drop each ".0" that ends the number part; a ".0" followed by more digits is a real digit and stays.
    for (qsizetype at = text.indexOf(u".0"_s); at >= 0; at = text.indexOf(u".0"_s, at)) {
        const qsizetype after = at + 2;
        if (after < text.size() && text.at(after).isDigit())
            at = after;
        else
            text.remove(at, 2);
    }
    return text + u" g"_s;
}

QList<QObject *> CarbCounterUIView::lines() const
{
    QList<QObject *> result;
    for (const DiaryEntryPtr &entry : EnvironmentVariables::shared()->TrackedNutrientListItems())
        result.append(entry.data());
    return result;
}

double CarbCounterUIView::calculateTotal() const
{
    return nutrika::calculateTotal(EnvironmentVariables::shared()->TrackedNutrientListItems());
}

QString CarbCounterUIView::counterHeader() const
{
    return u"Total "_s + COUNTER_TYPE;
}

DiaryEntryPtr CarbCounterUIView::lineAt(int index) const
{
    const QList<DiaryEntryPtr> &items = EnvironmentVariables::shared()->TrackedNutrientListItems();
    return index >= 0 && index < items.size() ? items.at(index) : DiaryEntryPtr();
}

QString CarbCounterUIView::lineTitle(int index) const
{
    const DiaryEntryPtr entry = lineAt(index);
    if (!entry)
        return {};
    if (entry->type() == EntryType::Food)
        return entry->foodItem() ? entry->foodItem()->description : QString();
    return entry->recipeItem() ? entry->recipeItem()->name : QString();
}

bool CarbCounterUIView::lineIsFood(int index) const
{
    const DiaryEntryPtr entry = lineAt(index);
    return entry && entry->type() == EntryType::Food;
}

QString CarbCounterUIView::lineAmount(int index) const
{
    const DiaryEntryPtr entry = lineAt(index);
    if (!entry)
        return {};
    const bool complete = entry->type() == EntryType::Food ? entry->foodItem() && entry->hasTrackedNutrient()
                                                            : entry->recipeItem().has_value();
    return complete ? amountText(entry->totalTrackedNutrient()) : QString();
}

DiaryEntry *CarbCounterUIView::line(int index) const
{
    return lineAt(index).data();
}

void CarbCounterUIView::remove(int index)
{
    EnvironmentVariables *env = EnvironmentVariables::shared();
    QList<DiaryEntryPtr> items = env->TrackedNutrientListItems();
    if (index < 0 || index >= items.size()) {
        qWarning("CarbCounterUIView: no line %d to remove", index);
        return;
    }
    items.removeAt(index);
    env->setTrackedNutrientListItems(items);
}

void CarbCounterUIView::appear()
{
    EnvironmentVariables *env = EnvironmentVariables::shared();
    env->setAccompanimentsActive(false);
    env->setPortionActive(-1);
    env->setDismissFunction([callback = m_onDismissCallback, self = QPointer(this)] {
        if (callback)
            callback();
        if (self)
            emit self->dismissPresentation();
    });
    if (m_preview != Preview::NotPreview) {
        env->setTrackedNutrientListItems({example::exampleTrackedNutrient1(), example::exampleTrackedNutrient2(),
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
        if (!self->m_accompanimentListItems.isEmpty() && !self->m_showAccompanimentList) {
            QTimer::singleShot(accompanimentDelayMs, Qt::PreciseTimer, self, [self] { self->setShowAccompanimentList(true); });
        }
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

void CarbCounterUIView::setPreview(Preview::Value preview)
{
    m_preview = preview;
    emit previewChanged();
}

void CarbCounterUIView::watchLines()
{
    for (const QMetaObject::Connection &c : std::as_const(m_lineConnections))
        disconnect(c);
    m_lineConnections.clear();
    for (const DiaryEntryPtr &entry : EnvironmentVariables::shared()->TrackedNutrientListItems())
        m_lineConnections.append(connect(entry.data(), &DiaryEntry::totalChanged, this, &CarbCounterUIView::totalChanged));
}

} // namespace nutrika
