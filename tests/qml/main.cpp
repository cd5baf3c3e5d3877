// The one Qt Quick Test runner: the module and the NutrikaTest probes, for any folder of QML tests.
#include "nutrika/Nutrika.h"

#include <QQmlEngine>
#include <QQmlExtensionPlugin>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtQuickTest>

Q_IMPORT_QML_PLUGIN(NutrikaTestPlugin)

class Setup : public QObject
{
    Q_OBJECT

public:
    // Saved meals go to a private, empty folder, never to the user's preferences; made before the
    // application, so the preferences store finds it.
    Setup()
    {
        QStandardPaths::setTestModeEnabled(true);
        qputenv("HOME", m_home.path().toUtf8());
        qputenv("XDG_CONFIG_HOME", QByteArray(m_home.path().toUtf8() + "/config"));
    }

private:
    QTemporaryDir m_home;

public slots:
    void qmlEngineAvailable(QQmlEngine *engine) { nutrika::prepareNutrikaEngine(*engine); }
};

QUICK_TEST_MAIN_WITH_SETUP(nutrika_quick_test, Setup)
#include "main.moc"
