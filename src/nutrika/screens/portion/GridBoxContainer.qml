import QtQuick
import Nutrika

// The frame of every box of the portion grid: a rounded panel, dark and marked when selected, with a
// thin border.
// `boxSize` square, or half as high.
Item {
    id: box

    property bool selected: false
    property bool halfSize: false
    property real boxSize: 150
    // The keyboard's current box in the grid.
    property bool current: false
    default property alias content: inner.data

    implicitWidth: boxSize
    implicitHeight: halfSize ? boxSize / 2 : boxSize

    Rectangle {
        anchors.fill: parent
        radius: 10
        color: box.selected ? Look.titleText : Look.detailColor
        opacity: box.selected ? 1 : 0.5
    }
    Rectangle {
        anchors.fill: parent
        radius: 10
        color: "transparent"
        border.width: box.current ? 3 : 1
        border.color: box.current ? "#ffbf00" : Look.detailColor
    }
    Item {
        id: inner
        anchors.fill: parent
        anchors.margins: 8
    }
    // A mark, not only a darker panel, says which box is chosen.
    Rectangle {
        objectName: "selectedMark"
        visible: box.selected
        anchors.top: parent.top
        anchors.right: parent.right
        anchors.margins: -6
        width: 28
        height: 28
        radius: 14
        color: "white"
        Text {
            anchors.centerIn: parent
            text: Look.symbol("checkmark.circle.fill")
            font.family: Look.symbolFont
            font.pixelSize: 28
            color: "#1b7f3b"
        }
    }
}
