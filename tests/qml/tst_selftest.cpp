#include "Destinations.h"
#include "nutrika/Nutrika.h"

#include <QFile>
#include <QMetaEnum>

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

    // Navigation names its destinations from a closed list; each one must have its screen.
    void everyDestinationHasItsScreen()
    {
        const QMetaEnum screens = QMetaEnum::fromType<nutrika::Destinations::Screen>();
        for (int i = 0; i < screens.keyCount(); ++i) {
            const auto screen = nutrika::Destinations::Screen(screens.value(i));
            QVERIFY2(QFile::exists(u":"_s + nutrika::Destinations::path(screen)), screens.key(i));
        }
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
