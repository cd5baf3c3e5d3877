import QtQuick
import QtQuick.Templates as T
import Nutrika

// A button drawn by its owner's colours that Enter and Return activate as well as Space and a tap.
// Built on the template alone: the style's button is not drawn, and loading it slows the first screen.
T.Button {
    id: button

    // When set, the button shows this system symbol instead of its text.
    property string symbol: ""
    property color textColor: "black"
    property color fillColor: "transparent"
    property real radius: 0
    property int pixelSize: Look.bodySize
    property bool bold: false

    implicitWidth: Math.max(implicitBackgroundWidth + leftInset + rightInset,
                            implicitContentWidth + leftPadding + rightPadding)
    implicitHeight: Math.max(implicitBackgroundHeight + topInset + bottomInset,
                             implicitContentHeight + topPadding + bottomPadding)
    focusPolicy: Qt.StrongFocus
    padding: 0
    Accessible.role: Accessible.Button
    Accessible.name: text
    Accessible.onPressAction: if (enabled) clicked()
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()

    contentItem: Text {
        text: button.symbol !== "" ? Look.symbol(button.symbol) : button.text
        font.family: button.symbol !== "" ? Look.symbolFont : button.font.family
        font.pixelSize: button.pixelSize
        font.bold: button.bold
        color: button.textColor
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }

    background: Rectangle {
        color: button.fillColor
        radius: button.radius
        opacity: !button.enabled ? 0.4 : button.down ? 0.7 : 1
        border.width: button.visualFocus ? 2 : 0
        border.color: "#ffbf00"
    }
}
