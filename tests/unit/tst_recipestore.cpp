#include "DiaryEntry.h"
#include "ExampleData.h"
#include "RecipeStore.h"
#include "StdoutCapture.h"
#include "StoreFixture.h"

#include <QElapsedTimer>
#include <QFile>
#include <QJsonDocument>
#include <QRandomGenerator>
#include <QTest>

using namespace nutrika;
using namespace Qt::Literals::StringLiterals;

namespace {
RecipeItem meal(qint64 id, const QString &name, qint64 servings = 1)
{
    return {name, id, {example::exampleTrackedNutrient1()}, servings};
}

QStringList names(const QList<RecipeItem> &recipes)
{
    QStringList result;
    for (const RecipeItem &r : recipes)
        result << QStringLiteral("%1:%2").arg(r.id).arg(r.name);
    return result;
}

QByteArray nested(int depth)
{
    return QByteArray(depth, '[') + QByteArray(depth, ']');
}

QByteArray randomBytes(int size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    QRandomGenerator gen(42);
    for (char &c : bytes)
        c = char(gen.bounded(256));
    return bytes;
}

QByteArray compact(const RecipeItem &recipe)
{
    return QJsonDocument(recipe.toJson()).toJson(QJsonDocument::Compact);
}

/// Meals laid out in one array the way another writer might: `lead` after "[", `between` the meals.
QByteArray layout(const QByteArrayList &meals, const QByteArray &lead, const QByteArray &between,
                  const QByteArray &trail)
{
    return '[' + lead + meals.join(between) + trail + ']';
}

QByteArray storedMealWith(const char *key, const QJsonValue &value)
{
    QJsonObject json = meal(0, QStringLiteral("Soup")).toJson();
    json.insert(QLatin1String(key), value);
    return QJsonDocument(QJsonArray{json}).toJson(QJsonDocument::Compact);
}
} // namespace

class RecipeStoreTest : public QObject
{
    Q_OBJECT
    StoreFixture m_store;

private slots:
    void init() { StoreFixture::clear(); }

    void emptyStoreThenFirstMeal()
    {
        QVERIFY(getRecipes().isEmpty());
        saveRecipe(meal(0, QStringLiteral("Porridge")));
        QCOMPARE(names(getRecipes()), QStringList{u"0:Porridge"_s});
    }

    void insertReplaceAndIgnore_data()
    {
        QTest::addColumn<qint64>("id");
        QTest::addColumn<QStringList>("expected");
        QTest::addColumn<QByteArray>("updateLine");
        QTest::newRow("next id appends") << qint64(2) << QStringList{"0:A", "1:B", "2:New"} << QByteArray();
        QTest::newRow("known id replaces in place")
            << qint64(1) << QStringList{"0:A", "1:New"} << QByteArray("Should update: 1");
        QTest::newRow("unknown id changes nothing")
            << qint64(7) << QStringList{"0:A", "1:B"} << QByteArray("Should update: none");
        QTest::newRow("never saved id changes nothing")
            << qint64(-1) << QStringList{"0:A", "1:B"} << QByteArray("Should update: none");
    }

    void insertReplaceAndIgnore()
    {
        QFETCH(qint64, id);
        QFETCH(QStringList, expected);
        QFETCH(QByteArray, updateLine);
        saveRecipe(meal(0, QStringLiteral("A")));
        saveRecipe(meal(1, QStringLiteral("B")));

        StdoutCapture capture;
        saveRecipe(meal(id, QStringLiteral("New"), 3));
        const QList<QByteArray> lines = capture.lines();

        QCOMPARE(names(getRecipes()), expected);
        QVERIFY(lines.first().startsWith("NOW SAVING: {"));
        QVERIFY(lines.first().contains("\"New\""));
        QCOMPARE(lines.size(), updateLine.isEmpty() ? 2 : 3);
        if (!updateLine.isEmpty())
            QCOMPARE(lines.at(1), updateLine);
        // The last line is the whole list as stored.
        QCOMPARE(QJsonDocument::fromJson(lines.last()).array().size(), expected.size());
    }

    void savedMealIsSplicedAndOtherMealsKeepTheirBytes_data()
    {
        QTest::addColumn<QByteArrayList>("meals");
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<qint64>("id");
        QTest::addColumn<QString>("name");

        const QStringList awkward{u"Quote \" in"_s,   u"Bracket ] in"_s, u"Ends in backslash \\"_s,
                                  u"Brace } and {"_s, u"Two\nlines"_s,   u"Emoji \U0001F35D\U0001F963"_s};
        QByteArrayList neighbours;
        for (qsizetype i = 0; i < awkward.size(); ++i)
            neighbours << compact(meal(i, awkward.at(i)));
        for (qsizetype i = 0; i < awkward.size(); ++i) {
            const QByteArray document = layout(neighbours, {}, ",", {});
            QTest::addRow("replace, name %lld", qlonglong(i))
                << neighbours << document << qint64(i) << awkward.at((i + 1) % awkward.size());
        }
        QTest::newRow("append after awkward names")
            << neighbours << layout(neighbours, {}, ",", {}) << qint64(neighbours.size()) << awkward.last();

        // Indented, keys in another order, escapes where a plain character would do, CR LF and tabs.
        const QByteArrayList written{
            QJsonDocument(meal(0, u"Indented ]}"_s).toJson()).toJson(QJsonDocument::Indented).trimmed(),
            "{ \"servings\" : 2 , \"items\" : [ ] , \"id\" : 1 , "
            "\"name\" : \"Esc \\\"\\\\\\/ \\u00e9 \\ud83c\\udf5d ]}\" }",
            QJsonDocument(meal(2, u"\\"_s).toJson()).toJson(QJsonDocument::Indented).trimmed()};
        const QByteArray indented = layout(written, "\r\n  ", ",\r\n\t", "\n");
        for (const qint64 id : {0, 1, 2, 3})
            QTest::addRow("another writer's layout, id %lld", qlonglong(id))
                << written << indented << id << awkward.at(id);

        QByteArrayList thousand;
        for (qint64 id = 0; id < 1000; ++id)
            thousand << compact(meal(id, u"Meal %1"_s.arg(id)));
        const QByteArray large = layout(thousand, {}, ",", {});
        for (const qint64 id : {0, 500, 999, 1000})
            QTest::addRow("1000 meals, id %lld", qlonglong(id))
                << thousand << large << id << awkward.at(id % 6);
    }

    void savedMealIsSplicedAndOtherMealsKeepTheirBytes()
    {
        QFETCH(QByteArrayList, meals);
        QFETCH(QByteArray, document);
        QFETCH(qint64, id);
        QFETCH(QString, name);
        StoreFixture::storeRaw(document);
        QCOMPARE(getRecipes().size(), meals.size());

        const RecipeItem saved = meal(id, name, 4);
        {
            StdoutCapture quiet;
            saveRecipe(saved);
        }
        const QByteArray stored = StoreFixture::storedDocument();
        if (id < meals.size()) {
            QCOMPARE(stored, QByteArray(document).replace(meals.at(id), compact(saved)));
        } else {
            const qsizetype lastMealEnd = document.lastIndexOf(meals.last()) + meals.last().size();
            QVERIFY(stored.startsWith(document.left(lastMealEnd)));
        }
        const QList<RecipeItem> recipes = getRecipes();
        QCOMPARE(recipes.size(), std::max(meals.size(), qsizetype(id + 1)));
        QCOMPARE(recipes.at(id).toJson(), saved.toJson());
    }

    void mealJsonCannotHoldKeepsTheStore_data()
    {
        QTest::addColumn<qint64>("id");
        QTest::addColumn<double>("carbs");
        QTest::newRow("NaN, replacing") << qint64(1) << qQNaN();
        QTest::newRow("infinity, appending") << qint64(2) << qInf();
    }

    void mealJsonCannotHoldKeepsTheStore()
    {
        QFETCH(qint64, id);
        QFETCH(double, carbs);
        saveRecipe(meal(0, QStringLiteral("A")));
        saveRecipe(meal(1, QStringLiteral("B")));
        const QByteArray before = StoreFixture::storedDocument();

        const NutrientValue tracked{u"Carbohydrates"_s, u"grams"_s, carbs, 1};
        const RecipeItem broken{
            u"Broken"_s,
            id,
            {DiaryEntryPtr::create(123, example::examplePortionItem(), example::exampleSelectedFood(), 1,
                                   std::nullopt, tracked)},
            1};
        saveRecipe(broken);
        QCOMPARE(StoreFixture::storedDocument(), before);
        QCOMPARE(names(getRecipes()), (QStringList{u"0:A"_s, u"1:B"_s}));
    }

    void abandonedEmptyLockDoesNotStallASave()
    {
        // What a process killed between creating the settings lock and writing its owner leaves.
        QFile lock(Preferences().fileName() + u".lock"_s);
        QVERIFY(lock.open(QIODevice::WriteOnly));
        lock.close();
        QElapsedTimer timer;
        timer.start();
        saveRecipe(meal(0, QStringLiteral("After a crash")));
        QCOMPARE_LT(timer.elapsed(), 10000);
        QCOMPARE(names(getRecipes()), QStringList{u"0:After a crash"_s});
    }

    void linesRoundTripWithEveryField()
    {
        RecipeItem recipe{QStringLiteral("Burger menu"),
                          0,
                          {example::exampleTrackedNutrient2(), example::exampleDiaryRecipeItem1()},
                          2};
        saveRecipe(recipe);
        const RecipeItem stored = getRecipes().at(0);
        QCOMPARE(stored.toJson(), recipe.toJson());
        QCOMPARE(stored.items.at(1)->recipeItem()->items.size(), 2);
        QCOMPARE(stored.getTotalTracked(), recipe.getTotalTracked());
    }

    void unreadableDocumentsReadAsEmpty_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<qint64>("nextId");
        QTest::addColumn<QStringList>("afterSave");
        const QStringList one{u"0:New"_s};
        QTest::newRow("null") << QVariant(QByteArray("null")) << qint64(0) << one;
        QTest::newRow("empty bytes") << QVariant(QByteArray()) << qint64(0) << one;
        QTest::newRow("random bytes") << QVariant(randomBytes(4096)) << qint64(0) << one;
        QTest::newRow("1 MB of [") << QVariant(QByteArray(1 << 20, '[')) << qint64(0) << one;
        QTest::newRow("nested 100000 deep") << QVariant(nested(100000)) << qint64(0) << one;
        QTest::newRow("an object") << QVariant(QByteArray(R"({"recipes":[]})")) << qint64(3) << QStringList();
        QTest::newRow("array of numbers") << QVariant(QByteArray("[1,2,3]")) << qint64(0) << one;
        QTest::newRow("id out of range") << QVariant(storedMealWith("id", 1e300)) << qint64(0) << one;
        QTest::newRow("id as text") << QVariant(storedMealWith("id", u"0"_s)) << qint64(0) << one;
        QTest::newRow("servings as text") << QVariant(storedMealWith("servings", u"2"_s)) << qint64(0) << one;
        QTest::newRow("items missing a key")
            << QVariant(storedMealWith("items", QJsonArray{QJsonObject{{u"id"_s, 1}}})) << qint64(0) << one;
        QTest::newRow("text instead of bytes") << QVariant(QStringLiteral("[]")) << qint64(0) << one;
        QTest::newRow("a number instead of bytes") << QVariant(42) << qint64(1) << QStringList();
        QTest::newRow("truncated document")
            << QVariant(storedMealWith("name", u"x"_s).chopped(3)) << qint64(0) << one;
    }

    void unreadableDocumentsReadAsEmpty()
    {
        QFETCH(QVariant, stored);
        QFETCH(qint64, nextId);
        QFETCH(QStringList, afterSave);
        StoreFixture::storeRaw(stored);
        QVERIFY(getRecipes().isEmpty());
        saveRecipe(meal(nextId, QStringLiteral("New")));
        QCOMPARE(names(getRecipes()), afterSave);
    }

    void corruptPreferencesFileReadsAsEmpty_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("empty file") << QByteArray();
        QTest::newRow("random bytes") << randomBytes(1000);
        QTest::newRow("text settings") << QByteArray("[General]\nrecipes=@ByteArray([])\n");
        QTest::newRow("right header, truncated map") << QByteArray("NTR1\0\0\0\x05", 8);
    }

    void corruptPreferencesFileReadsAsEmpty()
    {
        QFETCH(QByteArray, file);
        saveRecipe(meal(0, QStringLiteral("Lost")));
        StoreFixture::overwriteFile(file);
        QVERIFY(getRecipes().isEmpty());
        saveRecipe(meal(0, QStringLiteral("Again")));
        QCOMPARE(names(getRecipes()), QStringList{u"0:Again"_s});
    }
};

QTEST_GUILESS_MAIN(RecipeStoreTest)
#include "tst_recipestore.moc"
