#include "ServiceProbe.h"
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
        qmlRegisterSingletonInstance("NutrikaTest", 1, 0, "ServiceProbe", &m_probe);
    }

private:
    ServiceProbe m_probe;
};

QUICK_TEST_MAIN_WITH_SETUP(nutrika_search_ui, Setup)
#include "main.moc"
