import QtQuick
import QtQuick.Layouts
import Nutrika

// Qt 6.4's linter knows neither 64-bit integers, nor the types of components that reach ids outside
// them (ComponentBehavior: Bound needs 6.5), nor Qt.callLater; the engine reads all of these well.
// qmllint disable

// One listed portion: its picture (a spinner until it arrives) and size in the "Images" tab, or its
// size and description in the "Descriptions" tab. A tap selects it; a double tap enlarges its picture.
GridBoxContainer {
    id: box

    required property var portion
    // The food the portion is of, named on the enlarged picture.
    property string foodName: ""
    property bool isImage: true
    // Sample data shows no pictures: nothing is fetched.
    property bool loadsPictures: true
    readonly property color textColor: selected ? "white" : Look.titleText
    readonly property string sizeText: portion.sizeText()

    signal tapped()

    halfSize: !isImage
    Accessible.role: Accessible.RadioButton
    // The picture tab shows no description; a screen reader says it in both tabs.
    Accessible.name: sizeText + " (" + portion.description + ")"
    Accessible.checkable: true
    Accessible.checked: selected
    Accessible.onPressAction: tapped()

    // Each time the box comes into view its thumbnail is asked for anew.
    Component.onCompleted: if (isImage && loadsPictures) thumbnail.load()

    MouseArea {
        anchors.fill: parent
        onClicked: box.tapped()
        onDoubleClicked: sheet.open()
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 4

        Item {
            visible: box.isImage
            Layout.fillWidth: true
            Layout.fillHeight: true
            PortionPicture {
                id: thumbnail
                objectName: "thumbnail"
                anchors.fill: parent
                portionId: box.portion.id
            }
            Spinner {
                anchors.centerIn: parent
                visible: !thumbnail.hasImage
                size: Math.min(parent.width, parent.height, 60)
            }
        }
        Text {
            objectName: "sizeText"
            Layout.fillWidth: true
            text: box.sizeText
            font.bold: true
            font.pixelSize: Look.bodySize
            color: box.textColor
            elide: Text.ElideRight
        }
        Text {
            visible: !box.isImage
            Layout.fillWidth: true
            Layout.fillHeight: true
            text: "(" + box.portion.description + ")"
            font.pixelSize: Look.captionSize
            color: box.textColor
            wrapMode: Text.Wrap
            elide: Text.ElideRight
        }
    }

    FullImageSheet {
        id: sheet
        portion: box.portion
        foodName: box.foodName
        loadsPictures: box.loadsPictures
    }
}
