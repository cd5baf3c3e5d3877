#include "RecipeStore.h"
#include "StoreFixture.h"

#include <csignal>
#include <QProcess>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTest>

using namespace nutrika;

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

private slots:
    void init() { StoreFixture::clear(); }

    void anotherProcessReadsWhatOneSaved()
    {
        QProcess *writer = startWriter({QStringLiteral("save"), QStringLiteral("12")});
        QVERIFY(writer->waitForFinished(30000));
        QCOMPARE(writer->exitCode(), 0);
        const QList<RecipeItem> recipes = getRecipes();
        QCOMPARE(recipes.size(), 12);
        QCOMPARE(recipes.at(11).name, QStringLiteral("Meal 11 rev 0"));
    }

    void twoProcessesEachKeepTheirOwnLastSave()
    {
        QProcess *setup = startWriter({QStringLiteral("save"), QStringLiteral("12")});
        QVERIFY(setup->waitForFinished(30000));
        const QList<RecipeItem> before = getRecipes();
        QCOMPARE(before.size(), 12);

        const QList<qint64> owned{3, 8};
        const int rounds = 150;
        QList<QProcess *> writers;
        for (const qint64 id : owned)
            writers << startWriter({QStringLiteral("own"), QString::number(id), QString::number(rounds)});
        for (QProcess *writer : writers)
            QVERIFY(writer->waitForStarted(30000));
        for (QProcess *writer : writers) {
            writer->write("\n");
            writer->closeWriteChannel();
        }
        for (QProcess *writer : writers) {
            QVERIFY(writer->waitForFinished(120000));
            QVERIFY2(writer->exitCode() == 0, writer->readAllStandardError().constData());
        }

        const QList<RecipeItem> after = getRecipes();
        QCOMPARE(after.size(), before.size());
        for (qsizetype i = 0; i < after.size(); ++i) {
            if (owned.contains(i))
                QCOMPARE(after.at(i).name, QStringLiteral("Meal %1 rev %2").arg(i).arg(rounds));
            else
                QCOMPARE(after.at(i).toJson(), before.at(i).toJson());
        }
    }

    void killedWhileSavingLeavesAWholeDocument_data()
    {
        QTest::addColumn<QString>("mode");
        QTest::newRow("store calls") << QStringLiteral("loop");
        QTest::newRow("meal editor") << QStringLiteral("edit");
    }

    void killedWhileSavingLeavesAWholeDocument()
    {
        QFETCH(QString, mode);
        static const QRegularExpression name(QStringLiteral("^Meal (\\d+) rev (\\d+)$"));
        qsizetype before = 0;
        for (int round = 0; round < 15; ++round) {
            QProcess *writer = startWriter({mode});
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
