import QtQuick
import Nutrika

// The calculator's column titles: "Food/Drink" and "Total Carbohydrates", over a 2-point line.
Item {
    id: header

    property string counterHeader: ""
    // Where the amounts' column ends, from the right edge.
    property real rightInset: 16

    implicitHeight: counter.implicitHeight + 32
    height: implicitHeight

    Text {
        anchors.left: parent.left
        anchors.right: counter.left
        anchors.verticalCenter: parent.verticalCenter
        anchors.leftMargin: 16
        // The two columns' margins and the gap between them.
        anchors.rightMargin: 40
        text: qsTr("Food/Drink")
        font.bold: true
        font.pixelSize: Look.bodySize
        Accessible.role: Accessible.ColumnHeader
        Accessible.name: text
    }
    Text {
        id: counter
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        anchors.rightMargin: header.rightInset
        width: Math.min(implicitWidth, 170)
        text: header.counterHeader
        font.bold: true
        font.pixelSize: Look.bodySize
        // One line over the amounts' column: a little smaller rather than broken in two.
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: Look.captionSize
        Accessible.role: Accessible.ColumnHeader
        Accessible.name: text
    }

    EdgeBorder {
        anchors.fill: parent
        lineWidth: 2
        edges: [EdgeBorder.Bottom]
        color: Look.lightGray
    }
}
