#include "nutrika/Nutrika.h"

#include <QDirIterator>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

// Compiles every QML file of the module, so a broken import or type fails here.
class SelfTest : public QObject
{
    Q_OBJECT

private slots:
    void everyQmlFileLoads_data()
    {
        QTest::addColumn<QString>("path");
        QDirIterator it(u":/qt/qml/Nutrika"_s, {u"*.qml"_s}, QDir::Files, QDirIterator::Subdirectories);
        int count = 0;
        while (it.hasNext()) {
            const QString path = it.next();
            QTest::newRow(qPrintable(path)) << path;
            ++count;
        }
        QVERIFY(count >= 14);
    }

    void everyQmlFileLoads()
    {
        QFETCH(QString, path);
        QQmlEngine engine;
        nutrika::prepareNutrikaEngine(engine);
        QQmlComponent component(&engine, QUrl(u"qrc"_s + path));
        QVERIFY2(component.isReady(), qPrintable(component.errorString()));
    }
};

QTEST_MAIN(SelfTest)
#include "tst_selftest.moc"
