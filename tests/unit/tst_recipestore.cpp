#include "DiaryEntry.h"
#include "ExampleData.h"
#include "RecipeSearchUIView.h"
#include "RecipeStore.h"
#include "StdoutCapture.h"
#include "StoreFixture.h"

#include <QElapsedTimer>
#include <QJsonDocument>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>

using namespace nutrika;
using namespace Qt::Literals::StringLiterals;

namespace {
RecipeItem meal(qint64 id, const QString &name, double carbs = 1)
{
    const NutrientValue tracked{u"Carbohydrates"_s, u"grams"_s, carbs, 1};
    const DiaryEntryPtr line = DiaryEntryPtr::create(
        123, example::examplePortionItem(), example::exampleSelectedFood(), 1, std::nullopt, tracked);
    return {name, id, {line}, 1};
}

QByteArray randomBytes(int words)
{
    QList<quint32> random(words);
    QRandomGenerator(42).fillRange(random.data(), random.size());
    return {reinterpret_cast<const char *>(random.constData()), words * 4};
}

QByteArray compact(const RecipeItem &recipe)
{
    return QJsonDocument(recipe.toJson()).toJson(QJsonDocument::Compact);
}

QByteArray storedMealWith(const char *key, const QJsonValue &value)
{
    QJsonObject json = meal(0, QStringLiteral("Soup")).toJson();
    json.insert(QLatin1String(key), value);
    return QJsonDocument(QJsonArray{json}).toJson(QJsonDocument::Compact);
}
} // namespace

// The meal store, and the saved-meal list that reads it.
class RecipeStoreTest : public QObject
{
    Q_OBJECT
    StoreFixture m_store;

private slots:
    void init() { StoreFixture::clear(); }

    // A save replaces the meal with its id, or appends the next id, and leaves every other byte as it was;
    // any other id, or a number JSON cannot hold, writes nothing.
    void saveSplicesOneMeal_data()
    {
        QTest::addColumn<QByteArrayList>("meals");
        QTest::addColumn<QByteArray>("document");
        QTest::addColumn<qint64>("id");
        QTest::addColumn<double>("carbs");

        const QStringList awkward{u"Quote \" in"_s,   u"Bracket ] in"_s, u"Ends in backslash \\"_s,
                                  u"Brace } and {"_s, u"Two\nlines"_s,   u"Emoji \U0001F35D\U0001F963"_s};
        QByteArrayList neighbours;
        for (qsizetype i = 0; i < awkward.size(); ++i)
            neighbours << compact(meal(i, awkward.at(i)));
        const QByteArray plain = '[' + neighbours.join(',') + ']';
        for (qint64 id = -1; id <= 7; ++id)
            QTest::addRow("awkward names, id %lld", qlonglong(id)) << neighbours << plain << id << 4.0;
        // With NaN or infinity the document would read as no meals at all.
        QTest::newRow("NaN, replacing") << neighbours << plain << qint64(1) << qQNaN();
        QTest::newRow("infinity, appending") << neighbours << plain << qint64(6) << qInf();

        // Indented, keys in another order, escapes where a plain character would do, CR LF and tabs.
        const QByteArrayList written{
            QJsonDocument(meal(0, u"Indented ]}"_s).toJson()).toJson(QJsonDocument::Indented).trimmed(),
            "{ \"servings\" : 2 , \"items\" : [ ] , \"id\" : 1 , "
            "\"name\" : \"Esc \\\"\\\\\\/ \\u00e9 \\ud83c\\udf5d ]}\" }",
            QJsonDocument(meal(2, u"\\"_s).toJson()).toJson(QJsonDocument::Indented).trimmed()};
        for (const qint64 id : {0, 1, 2, 3})
            QTest::addRow("another writer's layout, id %lld", qlonglong(id))
                << written << "[\r\n  " + written.join(",\r\n\t") + "\n]" << id << 4.0;
    }

    void saveSplicesOneMeal()
    {
        QFETCH(QByteArrayList, meals);
        QFETCH(QByteArray, document);
        QFETCH(qint64, id);
        QFETCH(double, carbs);
        StoreFixture::storeRaw(document);
        const RecipeItem saved = meal(id, u"Saved \"]}\\"_s, carbs);
        StdoutCapture capture;
        saveRecipe(saved);
        const QByteArray stored = StoreFixture::storedDocument();

        const bool appending = id == meals.size();
        const bool replacing = id >= 0 && id < meals.size();
        QByteArrayList lines{"NOW SAVING: " + compact(saved)};
        if (!appending)
            lines << "Should update: " + (replacing ? QByteArray::number(id) : QByteArray("none"));
        lines << stored; // the whole list as it is stored now
        QCOMPARE(capture.lines().join('\n'), lines.join('\n'));

        if (!qIsFinite(carbs) || !(appending || replacing)) {
            QCOMPARE(stored, document);
            return;
        }
        if (replacing) {
            QCOMPARE(stored, QByteArray(document).replace(meals.at(id), compact(saved)));
        } else {
            const qsizetype lastMealEnd = document.lastIndexOf(meals.last()) + meals.last().size();
            QVERIFY(stored.startsWith(document.left(lastMealEnd)));
        }
        const QList<RecipeItem> recipes = getRecipes();
        QCOMPARE(recipes.size(), meals.size() + (appending ? 1 : 0));
        QCOMPARE(recipes.at(id).toJson(), saved.toJson());
    }

    // Every field survives, nested meals included, and an id past 2^53 is not rounded through a double.
    void everyFieldAndLargeIdsRoundTrip()
    {
        const qint64 id = 9007199254740993;
        StoreFixture::storeRaw(storedMealWith("id", id));
        QCOMPARE(getRecipes().value(0).id, id);

        const RecipeItem recipe{QStringLiteral("Burger menu"),
                                id,
                                {example::exampleTrackedNutrient2(), example::exampleDiaryRecipeItem1()},
                                2};
        saveRecipe(recipe); // replaces the stored meal only if its id was read exactly
        const QList<RecipeItem> recipes = getRecipes();
        QCOMPARE(recipes.size(), 1);
        QCOMPARE(recipes.at(0).id, id);
        QCOMPARE(recipes.at(0).toJson(), recipe.toJson());
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
        QCOMPARE(getRecipes().value(0).name, u"After a crash"_s);
    }

    // Whatever is stored, or whatever became of the whole file, reads as no meals and takes a new first one;
    // bytes that held anything are first copied whole beside the store, once.
    void unreadableStoreReadsAsEmptyAndIsKept_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<bool>("wholeFile");
        QTest::addColumn<bool>("kept");
        QTest::newRow("null") << QVariant(QByteArray("null")) << false << false;
        QTest::newRow("empty bytes") << QVariant(QByteArray()) << false << false;
        QTest::newRow("random bytes") << QVariant(randomBytes(1024)) << false << true;
        QTest::newRow("text, not bytes") << QVariant(u"[]"_s) << false << true;
        QTest::newRow("nested 100000 deep")
            << QVariant(QByteArray(100000, '[') + QByteArray(100000, ']')) << false << true;
        QTest::newRow("an object") << QVariant(QByteArray(R"({"recipes":[]})")) << false << true;
        QTest::newRow("array of numbers") << QVariant(QByteArray("[1,2,3]")) << false << true;
        QTest::newRow("id out of range") << QVariant(storedMealWith("id", 1e300)) << false << true;
        QTest::newRow("id as text") << QVariant(storedMealWith("id", u"0"_s)) << false << true;
        QTest::newRow("items missing a key")
            << QVariant(storedMealWith("items", QJsonArray{QJsonObject{{u"id"_s, 1}}})) << false << true;
        QTest::newRow("truncated document")
            << QVariant(storedMealWith("name", u"x"_s).chopped(3)) << false << true;
        QJsonArray three{meal(0, u"Kept"_s).toJson(), meal(1, u"No servings"_s).toJson(),
                         meal(2, u"Kept"_s).toJson()};
        QJsonObject noServings = three.at(1).toObject();
        noServings.remove(u"servings"_s);
        three.replace(1, noServings);
        QTest::newRow("three meals, one without servings")
            << QVariant(QJsonDocument(three).toJson(QJsonDocument::Compact)) << false << true;
        QTest::newRow("empty file") << QVariant(QByteArray()) << true << false;
        QTest::newRow("random file") << QVariant(randomBytes(250)) << true << true;
        QTest::newRow("text settings file")
            << QVariant(QByteArray("[General]\nrecipes=@ByteArray([])\n")) << true << true;
        QTest::newRow("right header, truncated map")
            << QVariant(QByteArray("NTR1\0\0\0\x05", 8)) << true << true;
        saveRecipe(meal(0, u"Whole"_s));
        saveRecipe(meal(1, u"Cut short"_s));
        QTest::newRow("truncated file that still holds a whole meal")
            << QVariant(StoreFixture::fileBytes().chopped(40)) << true << true;
    }

    void unreadableStoreReadsAsEmptyAndIsKept()
    {
        QFETCH(QVariant, stored);
        QFETCH(bool, wholeFile);
        QFETCH(bool, kept);
        saveRecipe(meal(0, QStringLiteral("Lost")));
        wholeFile ? StoreFixture::overwriteFile(stored.toByteArray()) : StoreFixture::storeRaw(stored);
        const QByteArray before = StoreFixture::fileBytes();
        QVERIFY(getRecipes().isEmpty());
        if (kept)
            QTest::ignoreMessage(QtWarningMsg,
                                 QRegularExpression(u"^Saved meals could not be read; the file is "
                                                    u"kept as .*/nutrika-unreadable-"
                                                    u"\\d{4}-\\d\\d-\\d\\dT\\d\\d-\\d\\d-\\d\\d.prefs$"_s));
        saveRecipe(meal(0, QStringLiteral("New")));
        saveRecipe(meal(1, QStringLiteral("Then another")));
        QCOMPARE(getRecipes().value(0).name, u"New"_s);
        QCOMPARE(getRecipes().value(1).name, u"Then another"_s);

        const QStringList copies = StoreFixture::keptCopies();
        QCOMPARE(copies.size(), kept ? 1 : 0);
        if (kept) {
            QFile copy(copies.first());
            QVERIFY(copy.open(QIODevice::ReadOnly));
            QCOMPARE(copy.readAll(), before);
        }
    }

    void searchFilterIsACaseSensitiveSubstring_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("listed");
        QTest::newRow("empty lists all")
            << QString() << u"Chicken Curry, Rice with chicken, Pancakes, Curry Chicken Wrap"_s;
        QTest::newRow("capitalised word") << u"Chicken"_s << u"Chicken Curry, Curry Chicken Wrap"_s;
        QTest::newRow("lower-case word") << u"chicken"_s << u"Rice with chicken"_s;
        QTest::newRow("inside a word") << u"cake"_s << u"Pancakes"_s;
        QTest::newRow("no match") << u"Soup"_s << QString();
    }

    void searchFilterIsACaseSensitiveSubstring()
    {
        const QStringList saved{u"Chicken Curry"_s, u"Rice with chicken"_s, u"Pancakes"_s,
                                u"Curry Chicken Wrap"_s};
        RecipeSearchUIView view;
        for (qsizetype id = 0; id < saved.size(); ++id) {
            saveRecipe(RecipeItem{saved.at(id), id, {}, 1});
            // Each appearance reloads the store: a meal just saved in the editor is listed.
            view.appear();
        }
        QCOMPARE(view.counter(), 4);
        QFETCH(QString, text);
        view.onFinishTyping(text);
        QStringList listed;
        for (const RecipeItem &meal : view.filteredMeals())
            listed << meal.name;
        QTEST(listed.join(u", "_s), "listed");
    }
};

QTEST_GUILESS_MAIN(RecipeStoreTest)
#include "tst_recipestore.moc"
