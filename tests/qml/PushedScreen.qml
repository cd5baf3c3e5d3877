import QtQuick.Templates as T
import Nutrika

// A framed screen for the navigation tests, pushed the way the module's screens are.
ViewContainer {
    property T.StackView navigation
    property string title: "Pushed"
    titleText: title
    backButton: true
}
