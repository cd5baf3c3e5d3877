// The one Qt Quick Test runner: the module and the NutrikaTest probes, for any folder of QML tests.
#include "nutrika/Nutrika.h"

#include <QQmlEngine>
#include <QQmlExtensionPlugin>
#include <QtQuickTest>

Q_IMPORT_QML_PLUGIN(NutrikaTestPlugin)

class Setup : public QObject
{
    Q_OBJECT

public slots:
    void qmlEngineAvailable(QQmlEngine *engine) { nutrika::prepareNutrikaEngine(*engine); }
};

QUICK_TEST_MAIN_WITH_SETUP(nutrika_quick_test, Setup)
#include "main.moc"
