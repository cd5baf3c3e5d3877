import QtQuick
import QtQuick.Layouts
import Nutrika

// The calculator's total, after the lines: "Total" and the amount, bold, on "DetailColor1".
Rectangle {
    id: row

    property string amount: ""

    objectName: "totalRow"
    implicitHeight: totalLayout.implicitHeight + 32
    color: Look.detailColor
    Accessible.role: Accessible.StaticText
    Accessible.name: qsTr("Total %1").arg(amount)

    RowLayout {
        id: totalLayout
        anchors.fill: parent
        anchors.margins: 16
        Text {
            Layout.fillWidth: true
            text: qsTr("Total")
            font.bold: true
            font.pixelSize: Look.bodySize
            color: Look.titleText
        }
        Text {
            objectName: "totalAmount"
            Layout.maximumWidth: 170
            text: row.amount
            font.bold: true
            font.pixelSize: Look.bodySize
            color: Look.titleText
        }
    }
}
