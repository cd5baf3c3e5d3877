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

    void killedWhileSavingLeavesAWholeDocument()
    {
        static const QRegularExpression name(QStringLiteral("^Meal (\\d+) rev (\\d+)$"));
        qsizetype before = 0;
        for (int round = 0; round < 15; ++round) {
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
                QCOMPARE(recipes.at(i).items.size(), 1 + match.captured(2).toLongLong() % 7);
            }
            before = recipes.size();
            delete writer;
        }
    }
};

QTEST_GUILESS_MAIN(RecipeStoreProcessTest)
#include "tst_recipestore_process.moc"
