import QtQuick
import Nutrika

// Two open rings turning in opposite directions, one turn every 1.4 s, from the moment it is first shown.
Item {
    id: spinner

    property color outerColor: Look.detailColor
    property color innerColor: Look.titleText
    property real size: 100
    property bool isAnimating: false
    readonly property real lineWidth: Math.min(width, height) / 14

    implicitWidth: size
    implicitHeight: size
    Accessible.role: Accessible.Animation
    Accessible.name: qsTr("Loading")

    Component.onCompleted: isAnimating = true

    TrimmedCircle {
        objectName: "outerRing"
        anchors.fill: parent
        color: spinner.outerColor
        lineWidth: spinner.lineWidth
        NumberAnimation on rotation {
            from: 0; to: 360; duration: 1400; loops: Animation.Infinite; running: spinner.isAnimating
        }
    }

    TrimmedCircle {
        objectName: "innerRing"
        anchors.fill: parent
        scale: 0.75
        color: spinner.innerColor
        lineWidth: spinner.lineWidth
        NumberAnimation on rotation {
            from: 360; to: 0; duration: 1400; loops: Animation.Infinite; running: spinner.isAnimating
        }
    }
}
