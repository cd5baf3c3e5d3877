#include "SessionProbe.h"
#include "nutrika/Nutrika.h"

#include <QQmlEngine>
#include <QtQuickTest>

class Setup : public QObject
{
    Q_OBJECT

public slots:
    void qmlEngineAvailable(QQmlEngine *engine)
    {
        nutrika::prepareNutrikaEngine(*engine);
        qmlRegisterSingletonInstance("NutrikaTest", 1, 0, "SessionProbe", &m_probe);
    }

private:
    SessionProbe m_probe;
};

QUICK_TEST_MAIN_WITH_SETUP(nutrika_qml, Setup)
#include "main.moc"
