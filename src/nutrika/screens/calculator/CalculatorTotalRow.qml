import QtQuick
import Nutrika

// The calculator's total, after the lines: "Total" and the amount, bold, on "DetailColor1". The amount is
// the largest figure on the screen and ends where the lines' amounts end.
Rectangle {
    id: row

    property string amount: ""
    property real rightInset: 16

    objectName: "totalRow"
    implicitHeight: totalAmount.implicitHeight + 32
    color: Look.detailColor
    Accessible.role: Accessible.StaticText
    Accessible.name: qsTr("Total %1").arg(amount)

    Text {
        anchors.left: parent.left
        anchors.right: totalAmount.left
        anchors.verticalCenter: parent.verticalCenter
        anchors.leftMargin: 16
        text: qsTr("Total")
        font.bold: true
        font.pixelSize: Look.bodySize
        color: Look.titleText
    }
    Text {
        id: totalAmount
        objectName: "totalAmount"
        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        anchors.rightMargin: row.rightInset
        width: Math.min(implicitWidth, 170)
        text: row.amount
        font.bold: true
        font.pixelSize: Look.figureSize
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: Look.bodySize
        color: Look.titleText
    }
}
