import QtQuick
import Nutrika

// The module's root with the key and the service origin this host was started with, and a unit.
NutrikaRoot {
    serviceOrigin: String(Qt.application.arguments[1])
    apiKey: Qt.application.arguments[2]
    carbUnit: "BE"
    onDismissCallback: Qt.quit()
}
