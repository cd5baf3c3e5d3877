import QtQuick
import QtQuick.Layouts
import Nutrika

// One suggested food on a rounded panel: its description in bold, its brand below, a chevron at the
// right. A tap, Enter or Space chooses it.
Rectangle {
    id: row

    property string title: ""
    property string brand: ""

    signal chosen()

    implicitHeight: layout.implicitHeight + 20
    radius: 10
    color: activeFocus ? "#d7e9ef" : "#ebebeb"
    border.width: activeFocus ? 2 : 0
    border.color: "#ffbf00"
    activeFocusOnTab: true
    Accessible.role: Accessible.Button
    Accessible.name: brand === "" ? title : title + ", " + brand
    Accessible.onPressAction: chosen()
    Keys.onReturnPressed: chosen()
    Keys.onEnterPressed: chosen()
    Keys.onSpacePressed: chosen()

    TapHandler {
        onTapped: row.chosen()
    }

    RowLayout {
        id: layout
        anchors.fill: parent
        anchors.margins: 10
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
            // Kept when empty, so every row has the same two lines.
            Text {
                Layout.fillWidth: true
                text: row.brand
                font.pixelSize: Look.calloutSize
                color: "black"
            }
        }
        Text {
            Layout.rightMargin: 4
            text: Look.symbol("chevron.right")
            font.family: Look.symbolFont
            font.pixelSize: 20
            color: "black"
            Accessible.ignored: true
        }
    }
}
