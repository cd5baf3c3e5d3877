import QtQuick
import Nutrika

// A button drawn by its owner's colours. A tap, Space, Enter, Return and a screen reader's press action
// activate it. Built on the plain item: the control library would slow the first screen.
Item {
    id: button

    property string text: ""
    // When set, the button shows this system symbol instead of its text.
    property string symbol: ""
    property color textColor: "black"
    property color fillColor: "transparent"
    property real radius: 0
    property int pixelSize: Look.bodySize
    property bool bold: false
    property bool underline: false
    // Qt.NoFocus leaves the button out of the tab chain.
    property int focusPolicy: Qt.StrongFocus
    readonly property bool down: pointer.pressed
    readonly property alias contentItem: label

    signal clicked()

    function activate() {
        if (enabled)
            clicked()
    }

    implicitWidth: label.implicitWidth
    implicitHeight: label.implicitHeight
    activeFocusOnTab: focusPolicy !== Qt.NoFocus
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.focusable: activeFocusOnTab
    Accessible.onPressAction: activate()
    Keys.onReturnPressed: activate()
    Keys.onEnterPressed: activate()
    Keys.onSpacePressed: activate()

    Rectangle {
        anchors.fill: parent
        color: button.fillColor
        radius: button.radius
        opacity: !button.enabled ? 0.4 : button.down ? 0.7 : 1
        border.width: button.activeFocus ? 2 : 0
        border.color: "#ffbf00"
    }

    Text {
        id: label
        anchors.fill: parent
        text: button.symbol !== "" ? Look.symbol(button.symbol) : button.text
        // Qt 6.4's linter does not know the application font.
        font.family: button.symbol !== "" ? Look.symbolFont : Qt.application.font.family // qmllint disable
        font.pixelSize: button.pixelSize
        font.bold: button.bold
        font.underline: button.underline
        color: button.textColor
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }

    MouseArea {
        id: pointer
        anchors.fill: parent
        onClicked: button.activate()
    }
}
