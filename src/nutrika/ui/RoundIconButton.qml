import QtQuick
import Nutrika

// A symbol in a white circle. It has no action of its own: the embedding control attaches its gestures
// and receives `activated` from the keyboard.
Rectangle {
    id: button

    property string iconName: ""
    property color iconColor: Look.detailColor
    property string accessibleName: iconName

    signal activated()

    implicitWidth: 25
    implicitHeight: 25
    radius: Math.min(width, height) / 2
    color: "white"
    activeFocusOnTab: true
    Accessible.role: Accessible.Button
    Accessible.name: accessibleName
    Accessible.onPressAction: activated()
    Keys.onReturnPressed: activated()
    Keys.onEnterPressed: activated()
    Keys.onSpacePressed: activated()

    Text {
        anchors.centerIn: parent
        text: Look.symbol(button.iconName)
        font.family: Look.symbolFont
        font.pixelSize: 25
        color: button.iconColor
    }

    RoundedBorder {
        style: button.activeFocus ? "#ffbf00" : "white"
        lineWidth: button.activeFocus ? 2 : 1
        cornerRadius: button.radius
    }
}
