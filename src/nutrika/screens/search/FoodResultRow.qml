import QtQuick
import QtQuick.Layouts
import Nutrika

// One food of the search results: its description in bold, its brand below, a chevron at the right.
Rectangle {
    id: row

    property string title: ""
    property string brand: ""

    signal opened()

    implicitHeight: layout.implicitHeight + 20
    color: activeFocus ? "#e8f3f7" : "white"
    activeFocusOnTab: true
    Accessible.role: Accessible.Button
    Accessible.name: brand === "" ? title : title + ", " + brand
    Accessible.onPressAction: opened()
    Keys.onReturnPressed: opened()
    Keys.onEnterPressed: opened()

    TapHandler {
        onTapped: row.opened()
    }

    RowLayout {
        id: layout
        anchors.fill: parent
        anchors.margins: 10
        anchors.leftMargin: 16
        ColumnLayout {
            Layout.fillWidth: true
            spacing: 2
            Text {
                Layout.fillWidth: true
                text: row.title
                font.bold: true
                font.pixelSize: Look.bodySize
                color: "black"
                wrapMode: Text.Wrap
            }
            Text {
                Layout.fillWidth: true
                visible: row.brand !== ""
                text: row.brand
                font.pixelSize: Look.calloutSize
                color: "black"
            }
        }
        Text {
            text: Look.symbol("chevron.right")
            font.family: Look.symbolFont
            font.pixelSize: 20
            color: Look.lightGray
            Accessible.ignored: true
        }
    }

    EdgeBorder {
        anchors.fill: parent
        lineWidth: 1
        edges: [EdgeBorder.Bottom]
        color: Look.lightGray
    }
}
