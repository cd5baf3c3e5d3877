import QtQuick
import Nutrika

// The calculator's total, after the lines: "Total" and the amount, bold, on "DetailColor1". The amount is
// the largest figure on the screen and ends where the lines' amounts end.
Rectangle {
    id: row

    property string amount: ""
    // The same total in the host's carbohydrate unit, as large as the grams; "" in grams.
    property string unitAmount: ""
    // The host's net carbohydrates and fat-protein units, one per line; "" when not asked for.
    property string note: ""
    property real rightInset: 16

    objectName: "totalRow"
    implicitHeight: figures.implicitHeight + 32
    color: Look.detailColor
    Accessible.role: Accessible.StaticText
    Accessible.name: qsTr("Total %1").arg(amount) + (unitAmount === "" ? "" : ", " + unitAmount)
                     + (note === "" ? "" : ", " + note.replace("\n", ", "))

    Text {
        anchors.left: parent.left
        anchors.right: figures.left
        anchors.verticalCenter: parent.verticalCenter
        anchors.leftMargin: 16
        text: qsTr("Total")
        font.bold: true
        font.pixelSize: Look.bodySize
        color: Look.titleText
    }
    Column {
        id: figures
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        anchors.rightMargin: row.rightInset
        spacing: 4

        Text {
            id: totalAmount
            objectName: "totalAmount"
            anchors.right: parent.right
            width: Math.min(implicitWidth, 170)
            text: row.amount
            // Shrunk to fit, it still ends where the lines' amounts end.
            horizontalAlignment: Text.AlignRight
            font.bold: true
            font.pixelSize: Look.figureSize
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: Look.bodySize
            color: Look.titleText
        }
        Text {
            objectName: "totalUnitAmount"
            anchors.right: parent.right
            width: Math.min(implicitWidth, 170)
            visible: text !== ""
            text: row.unitAmount
            horizontalAlignment: Text.AlignRight
            font: totalAmount.font
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: Look.bodySize
            color: Look.titleText
        }
        Text {
            objectName: "totalNote"
            anchors.right: parent.right
            // Beside "Total", never over it.
            width: Math.min(implicitWidth, row.width - row.rightInset - 90)
            visible: text !== ""
            text: row.note
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignRight
            font.pixelSize: Look.calloutSize - 1
            color: Look.titleText
        }
    }
}
