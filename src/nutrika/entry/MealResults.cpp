#include "nutrika/Nutrika.h"

#include "EnvironmentVariables.h"
#include "HostSettings.h"
#include "MealNutrients.h"

namespace nutrika {

void setHostOptions(const HostOptions &options)
{
    HostSettings::shared()->setOptions(options);
}

HostOptions hostOptions()
{
    return HostSettings::shared()->options();
}

MealResult mealResult()
{
    return mealResultOf(EnvironmentVariables::shared()->TrackedNutrientListItems());
}

void clearCalculator()
{
    EnvironmentVariables::shared()->setTrackedNutrientListItems({});
}

MealResults *mealResults()
{
    static MealResults *const results = [] {
        auto *created = new MealResults;
        EnvironmentVariables *session = EnvironmentVariables::shared();
        created->m_result = mealResult();
        const auto refresh = [created] {
            MealResult now = mealResult();
            if (now == created->m_result)
                return;
            created->m_result = std::move(now);
            emit created->changed(created->m_result);
        };
        // Each line announces its own edits; the list announces added and removed lines.
        auto watches = std::make_shared<QList<QMetaObject::Connection>>();
        const auto watchLines = [created, session, refresh, watches] {
            for (const QMetaObject::Connection &watch : std::as_const(*watches))
                QObject::disconnect(watch);
            watches->clear();
            for (const DiaryEntryPtr &line : session->TrackedNutrientListItems()) {
                watches->append(QObject::connect(line.data(), &DiaryEntry::totalChanged, created, refresh));
                watches->append(
                    QObject::connect(line.data(), &DiaryEntry::nutrientsChanged, created, refresh));
                watches->append(QObject::connect(line.data(), &DiaryEntry::portionChanged, created, refresh));
                watches->append(
                    QObject::connect(line.data(), &DiaryEntry::quantityChanged, created, refresh));
                watches->append(QObject::connect(line.data(), &DiaryEntry::titleChanged, created, refresh));
            }
            refresh();
        };
        QObject::connect(session, &EnvironmentVariables::trackedNutrientListItemsChanged, created,
                         watchLines);
        watchLines();
        return created;
    }();
    return results;
}

} // namespace nutrika
