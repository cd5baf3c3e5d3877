#include "Destinations.h"
#include "nutrika/Nutrika.h"

#include <QDirIterator>
#include <QFile>
#include <QMetaEnum>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using nutrika::Destinations;

class SelfTest : public QObject
{
    Q_OBJECT

private slots:
    // Navigation names its destinations from a closed list; each one must have its screen.
    void everyDestinationHasItsScreen()
    {
        const QMetaEnum screens = QMetaEnum::fromType<Destinations::Screen>();
        for (int i = 0; i < screens.keyCount(); ++i)
            QVERIFY2(QFile::exists(u":"_s + Destinations::path(Destinations::Screen(screens.value(i)))),
                     screens.key(i));
    }

    // Compiles every QML file of the module, so a broken import or type fails here.
    void everyQmlFileLoads_data()
    {
        QTest::addColumn<QString>("path");
        QDirIterator it(u":/qt/qml/Nutrika"_s, {u"*.qml"_s}, QDir::Files, QDirIterator::Subdirectories);
        int count = 0;
        for (; it.hasNext(); ++count) {
            const QString path = it.next();
            QTest::newRow(qPrintable(path)) << path;
        }
        QVERIFY(count >= 14); // the module's files are where the search looks
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
