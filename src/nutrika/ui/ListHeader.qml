import QtQuick
import QtQuick.Layouts
import Nutrika

// The bar above a list section: a bold title at the left and an optional bold text at the right.
Rectangle {
    id: header

    // Read once, when the header is built; later changes do not show.
    property string title: ""
    // undefined draws nothing at the right; "" draws an empty text.
    property var rightTitle
    property bool clear: false
    property int preview: Preview.NotPreview
    readonly property string shownTitle: d.title
    readonly property color textColor: clear ? "black" : Look.titleText

    QtObject {
        id: d
        property string title
    }
    Component.onCompleted: d.title = title

    implicitHeight: row.implicitHeight + 20
    implicitWidth: row.implicitWidth + 20
    color: clear ? "transparent" : Look.detailColor
    Accessible.role: Accessible.Heading
    Accessible.name: header.shownTitle

    RowLayout {
        id: row
        anchors.fill: parent
        anchors.margins: 10

        Text {
            objectName: "title"
            text: header.shownTitle
            font.bold: true
            font.pixelSize: Look.bodySize
            color: header.textColor
        }
        Item { Layout.fillWidth: true }
        Text {
            objectName: "rightTitle"
            visible: header.rightTitle !== undefined && header.rightTitle !== null
            text: visible ? header.rightTitle : ""
            font.bold: true
            font.pixelSize: Look.bodySize
            color: header.textColor
        }
    }

    RoundedBorder {
        visible: header.clear
        style: Look.lightGray
    }
}
