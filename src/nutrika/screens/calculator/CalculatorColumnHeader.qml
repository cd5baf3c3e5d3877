import QtQuick
import QtQuick.Layouts
import Nutrika

// The calculator's column titles: "Food/Drink" and "Total Carbohydrates", over a 2-point line.
Item {
    id: header

    property string counterHeader: ""

    implicitHeight: headerRow.implicitHeight
    height: implicitHeight

    RowLayout {
        id: headerRow
        anchors.fill: parent
        spacing: 8
        Text {
            Layout.fillWidth: true
            Layout.margins: 16
            text: qsTr("Food/Drink")
            font.bold: true
            font.pixelSize: Look.bodySize
            Accessible.role: Accessible.ColumnHeader
            Accessible.name: text
        }
        Text {
            Layout.maximumWidth: 170
            Layout.margins: 16
            text: header.counterHeader
            font.bold: true
            font.pixelSize: Look.bodySize
            wrapMode: Text.WordWrap
            Accessible.role: Accessible.ColumnHeader
            Accessible.name: text
        }
    }

    EdgeBorder {
        anchors.fill: parent
        lineWidth: 2
        edges: [EdgeBorder.Bottom]
        color: Look.lightGray
    }
}
