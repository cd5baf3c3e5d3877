// The floor of the start-up benchmark: the smallest Qt Quick window that draws a screen with a few
// texts, saves it as a PNG and exits, as `nutrika-demo --preview calculator --screenshot` does.
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickView>
#include <QTimer>

int main(int argc, char *argv[])
{
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication app(argc, argv);
    if (argc < 2)
        return 2;
    const QString path = QString::fromLocal8Bit(argv[1]);
    QQuickView view;
    view.setResizeMode(QQuickView::SizeRootObjectToView);
    QQmlComponent component(view.engine());
    component.setData("import QtQuick\n"
                      "Rectangle { color: 'white'\n"
                      "  Column { anchors.fill: parent\n"
                      "    Rectangle { width: parent.width; height: 40; color: '#1e7f9e'\n"
                      "      Text { anchors.centerIn: parent; text: 'Carb Calculator'; color: 'white' } }\n"
                      "    Repeater { model: 4; Text { padding: 16; text: 'Line ' + index + '   12.9 g' } }\n"
                      "    Text { padding: 16; text: 'Total   135.5 g'; font.bold: true } } }\n",
                      QUrl());
    view.setContent(QUrl(), &component, component.create());
    view.resize(430, 860);
    view.show();
    QObject::connect(
        &view, &QQuickWindow::afterRendering, &app,
        [&] {
            QTimer::singleShot(50, &app,
                               [&] { QCoreApplication::exit(view.grabWindow().save(path) ? 0 : 1); });
        },
        Qt::SingleShotConnection);
    return QGuiApplication::exec();
}
