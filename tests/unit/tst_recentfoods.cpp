// The recent foods beside the saved meals: newest first, one entry per food with its last portion, ten at
// most, unreadable as none, and never a write over a store that may hold a person's meals.
#include "RecentFoods.h"
#include "RecipeStore.h"
#include "StoreFixture.h"

#include <QtTest>

using namespace nutrika;
using namespace Qt::Literals::StringLiterals;

namespace {

FoodItem food(qint64 id)
{
    return {u"Food %1"_s.arg(id), id, id, {}, false};
}

PortionItem portion(qint64 id, qint64 grams)
{
    PortionItem item;
    item.id = id;
    item._id = id;
    item.size = grams;
    item.unit = u"grams"_s;
    item.description = u"1 cup"_s;
    return item;
}

QList<qint64> recentIds()
{
    QList<qint64> ids;
    for (const RecentFood &recent : recentFoods())
        ids.append(recent.food.id);
    return ids;
}

} // namespace

class RecentFoodsTest : public QObject
{
    Q_OBJECT

    StoreFixture m_store;

private slots:
    void init() { StoreFixture::clear(); }

    void newestFirstOnePerFoodTenAtMost()
    {
        QVERIFY(recentFoods().isEmpty());
        for (qint64 id = 1; id <= 12; ++id)
            rememberRecentFood(food(id), portion(id * 100, 50));
        QCOMPARE(recentIds(), (QList<qint64>{12, 11, 10, 9, 8, 7, 6, 5, 4, 3}));
        // The same food again moves to the front with its new portion, and is listed once.
        rememberRecentFood(food(5), portion(501, 118));
        QCOMPARE(recentIds().first(), 5);
        QCOMPARE(recentIds().count(5), 1);
        QCOMPARE(recentFoods().first().portion.size, 118);
        QCOMPARE(recentFoods().first().food.description, u"Food 5"_s);
    }

    void theMealsStayBeside()
    {
        saveRecipe({u"Porridge"_s, 0, {}, 2});
        rememberRecentFood(food(1), portion(100, 40));
        QCOMPARE(getRecipes().size(), 1);
        QCOMPARE(getRecipes().first().name, u"Porridge"_s);
        QCOMPARE(recentIds(), QList<qint64>{1});
    }

    void anUnreadableListReadsAsNone_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::newRow("not JSON") << QVariant(QByteArray("{{{"));
        QTest::newRow("not an array") << QVariant(QByteArray(R"({"foodItem":{}})"));
        QTest::newRow("an entry without its portion") << QVariant(
            QByteArray(R"([{"foodItem":{"description":"x","id":1,"_id":1,"brand":"","isBranded":false}}])"));
        QTest::newRow("text, not bytes") << QVariant(u"[]"_s);
    }

    void anUnreadableListReadsAsNone()
    {
        QFETCH(QVariant, stored);
        {
            Preferences settings;
            settings.setValue(u"recentFoods"_s, stored);
            settings.sync();
        }
        QVERIFY(recentFoods().isEmpty());
        rememberRecentFood(food(3), portion(300, 20));
        QCOMPARE(recentIds(), QList<qint64>{3});
    }

    // A file that is not preferences may still be the only copy of someone's meals: leave it alone.
    void aDamagedStoreIsNotWrittenOver()
    {
        QDir().mkpath(QFileInfo(Preferences().fileName()).absolutePath());
        QFile file(Preferences().fileName());
        QVERIFY(file.open(QIODevice::WriteOnly));
        const QByteArray damaged = "not a preferences file, perhaps with meals in it";
        file.write(damaged);
        file.close();
        rememberRecentFood(food(1), portion(100, 40));
        QCOMPARE(StoreFixture::fileBytes(), damaged);
        QVERIFY(recentFoods().isEmpty());
    }
};

QTEST_GUILESS_MAIN(RecentFoodsTest)
#include "tst_recentfoods.moc"
