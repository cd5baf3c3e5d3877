import QtQuick
import Nutrika

// A segmented picker: equally wide options, one selected. A tap emits select(index); the owner sets `selected`.
Rectangle {
    id: picker

    property var options: []
    property int selected: 0

    signal select(int index)

    // Reports the choice; the owner writes `selected`, so a binding of the owner's stays in force.
    function choose(index) {
        select(index)
    }

    implicitWidth: 300
    implicitHeight: metrics.height + 20
    radius: 20
    color: Look.lightGray
    Accessible.role: Accessible.PageTabList

    FontMetrics {
        id: metrics
        font.pixelSize: Look.bodySize
    }

    Row {
        id: row
        anchors.fill: parent
        spacing: 1

        Repeater {
            model: picker.options

            // Qt 6.4 cannot create every component bound to its file (ComponentBehavior: Bound), so the
            // components below reach ids outside them, which the linter counts as unqualified access.
            // qmllint disable unqualified
            delegate: Item {
                id: segment
                required property int index
                required property string modelData
                readonly property bool isSelected: picker.selected === index
                readonly property bool first: index === 0
                readonly property bool last: index === picker.options.length - 1
                readonly property color fill: isSelected ? Look.detailColor : "white"

                width: (picker.width - (picker.options.length - 1) * row.spacing) / picker.options.length
                height: picker.height
                activeFocusOnTab: true
                Accessible.role: Accessible.PageTab
                Accessible.name: modelData
                Accessible.checkable: true
                Accessible.checked: isSelected
                Accessible.onPressAction: picker.choose(index)
                Keys.onReturnPressed: picker.choose(index)
                Keys.onEnterPressed: picker.choose(index)
                Keys.onSpacePressed: picker.choose(index)

                // Rounded outer corners on the end segments, square inner ones.
                Rectangle {
                    anchors.fill: parent
                    radius: segment.first || segment.last ? picker.radius : 0
                    color: segment.fill
                }
                Rectangle {
                    visible: segment.first !== segment.last
                    width: parent.width / 2
                    height: parent.height
                    x: segment.first ? parent.width / 2 : 0
                    color: segment.fill
                }
                Text {
                    id: label
                    anchors.fill: parent
                    padding: 10
                    text: segment.modelData
                    color: segment.isSelected ? "white" : Look.lightGray
                    font.pixelSize: Look.bodySize
                    font.underline: segment.activeFocus
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                }
                TapHandler {
                    onTapped: picker.choose(segment.index)
                }
            }
            // qmllint enable unqualified
        }
    }

    RoundedBorder {
        style: Look.lightGray
        cornerRadius: picker.radius
    }
}
