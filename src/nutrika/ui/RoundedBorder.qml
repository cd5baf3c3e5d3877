import QtQuick

// The rounded outline drawn inside its owner's edge, over the owner's content (roundedBorder).
Rectangle {
    property color style: "black"
    property real lineWidth: 1
    property real cornerRadius: 0

    anchors.fill: parent
    color: "transparent"
    radius: cornerRadius
    border.width: lineWidth
    border.color: style
}
