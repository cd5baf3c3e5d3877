#include "RecipeStore.h"
#include "StoreFixture.h"

#include <csignal>
#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>

using namespace nutrika;
using namespace Qt::Literals::StringLiterals;

// The store shared with other processes: saving side by side, or killed in the middle of a save.
class RecipeStoreProcessTest : public QObject
{
    Q_OBJECT
    StoreFixture m_store;

    [[nodiscard]] QProcess *startWriter(const QStringList &args)
    {
        auto *writer = new QProcess(this);
        writer->setProgram(QStringLiteral(NUTRIKA_RECIPE_STORE_WRITER));
        writer->setArguments(args);
        writer->setReadChannel(QProcess::StandardError);
        writer->start();
        return writer;
    }

    /// Lets writers waiting for a line go at once, and waits until each has succeeded.
    static void releaseTogether(const QList<QProcess *> &writers)
    {
        for (QProcess *writer : writers)
            QVERIFY(writer->waitForStarted(30000));
        // A write is only queued until the pipe is flushed: flush each, or the second writer would wait
        // until the first has finished.
        for (QProcess *writer : writers) {
            writer->write("\n");
            QVERIFY(writer->waitForBytesWritten(30000));
            writer->closeWriteChannel();
        }
        for (QProcess *writer : writers) {
            QVERIFY(writer->waitForFinished(120000));
            QVERIFY2(writer->exitCode() == 0, writer->readAllStandardError().constData());
        }
    }

private slots:
    void init() { StoreFixture::clear(); }

    // The save lock: without it, one process would write back a list without the other's last save.
    void twoProcessesEachKeepTheirOwnLastSave()
    {
        QStringList expected;
        for (qint64 id = 0; id < 12; ++id) {
            saveRecipe(RecipeItem{QStringLiteral("Meal %1").arg(id), id, {}, 1});
            expected << QStringLiteral("Meal %1").arg(id) +
                            (id == 3 || id == 8 ? QStringLiteral(" rev 150") : QString());
        }
        QList<QProcess *> writers;
        for (const QString &id : {QStringLiteral("3"), QStringLiteral("8")})
            writers << startWriter({QStringLiteral("own"), id, QStringLiteral("150")});
        releaseTogether(writers);
        QStringList names;
        for (const RecipeItem &meal : getRecipes())
            names << meal.name;
        QCOMPARE(names, expected);
    }

    // New meals from two editors at once: each takes the next id while it holds the store.
    void twoProcessesSavingNewMealsKeepEveryMeal()
    {
        QList<QProcess *> writers;
        for (const QString &tag : {QStringLiteral("First"), QStringLiteral("Second")})
            writers << startWriter({QStringLiteral("new"), tag, QStringLiteral("30")});
        releaseTogether(writers);
        const QList<RecipeItem> recipes = getRecipes();
        QCOMPARE(recipes.size(), 60);
        QStringList first, second;
        for (qsizetype i = 0; i < recipes.size(); ++i) {
            QCOMPARE(recipes.at(i).id, i);
            (recipes.at(i).name.startsWith(QStringLiteral("First")) ? first : second) << recipes.at(i).name;
        }
        // Each editor's meals are all there, in the order it saved them.
        for (int n = 0; n < 30; ++n) {
            QCOMPARE(first.value(n), QStringLiteral("First %1").arg(n));
            QCOMPARE(second.value(n), QStringLiteral("Second %1").arg(n));
        }
    }

    // A kill at any moment of a save over an unreadable store leaves its bytes: still in place, or whole
    // in the copy kept beside it.
    void killedWhileKeepingAnUnreadableStoreLosesNothing()
    {
        const QByteArray unreadable = QByteArray("NTR1 but not a map ") + QByteArray(4000, 'x');
        for (int round = 0; round < 12; ++round) {
            StoreFixture::clear();
            StoreFixture::overwriteFile(unreadable);
            QProcess *writer = startWriter({QStringLiteral("loop")});
            QVERIFY(writer->waitForStarted(30000));
            QTest::qWait(QRandomGenerator::global()->bounded(0, 80));
            ::kill(pid_t(writer->processId()), SIGKILL);
            QVERIFY(writer->waitForFinished(30000));

            // A copy under its final name is whole.
            const QStringList copies = StoreFixture::keptCopies().filter(QRegularExpression(u"\\.prefs$"_s));
            for (const QString &copy : copies) {
                QFile kept(copy);
                QVERIFY(kept.open(QIODevice::ReadOnly));
                QCOMPARE(kept.readAll(), unreadable);
            }
            QFile store(Preferences().fileName());
            QVERIFY(store.open(QIODevice::ReadOnly));
            if (store.readAll() != unreadable)
                QVERIFY2(!copies.isEmpty(), "the unreadable store was written over without a copy");
            delete writer;
        }
    }

    void killedWhileSavingLeavesAWholeDocument()
    {
        static const QRegularExpression name(QStringLiteral("^Meal (\\d+) rev (\\d+)$"));
        qsizetype before = 0;
        for (int round = 0; round < 25; ++round) {
            QProcess *writer = startWriter({QStringLiteral("loop")});
            QVERIFY(writer->waitForReadyRead(30000));
            QTest::qWait(QRandomGenerator::global()->bounded(5, 120));
            ::kill(pid_t(writer->processId()), SIGKILL);
            QVERIFY(writer->waitForFinished(30000));

            const QList<RecipeItem> recipes = getRecipes();
            // Saved meals are never lost, and every meal is one whole revision.
            QVERIFY2(recipes.size() >= before && !recipes.isEmpty(),
                     qPrintable(QString::number(recipes.size())));
            for (qsizetype i = 0; i < recipes.size(); ++i) {
                const auto match = name.match(recipes.at(i).name);
                QVERIFY(match.hasMatch());
                QCOMPARE(match.captured(1).toLongLong(), i);
                QCOMPARE(recipes.at(i).id, i);
                const qint64 revision = match.captured(2).toLongLong();
                QCOMPARE(recipes.at(i).items.size(), 1 + revision % 7);
                QCOMPARE(recipes.at(i).servings, 1 + revision % 4);
            }
            before = recipes.size();
            delete writer;
        }
    }
};

QTEST_GUILESS_MAIN(RecipeStoreProcessTest)
#include "tst_recipestore_process.moc"
