import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Templates as T
import QtQuick.Layouts
import Nutrika

// Qt 6.4's linter knows neither 64-bit integers, nor the types of components that reach ids outside
// them (ComponentBehavior: Bound needs 6.5), nor Qt.callLater; the engine reads all of these well.
// qmllint disable

// The enlarged picture of one portion, over the whole screen: its size as the title with the food's name
// under it, a close cross, and the full-size picture (a spinner until it arrives). Each opening asks for
// the picture anew.
Popup {
    id: sheet
    objectName: "fullImageSheet"

    required property var portion
    property string foodName: ""
    property bool loadsPictures: true
    readonly property bool showFullImage: opened
    readonly property alias picture: picture

    parent: T.Overlay.overlay
    x: 0
    y: 0
    width: parent ? parent.width : 0
    height: parent ? parent.height : 0
    modal: true
    focus: true
    padding: 16
    background: Rectangle { color: "white" }
    onAboutToShow: if (loadsPictures) picture.load()

    ColumnLayout {
        anchors.fill: parent
        Accessible.role: Accessible.Dialog
        Accessible.name: sheet.foodName === "" ? title.text : title.text + ", " + sheet.foodName

        RowLayout {
            Layout.fillWidth: true
            ColumnLayout {
                Layout.fillWidth: true
                spacing: 2
                Text {
                    id: title
                    Layout.fillWidth: true
                    text: sheet.portion.sizeText()
                    font.pixelSize: Look.titleSize
                    font.bold: true
                    color: Look.titleText
                }
                Text {
                    objectName: "sheetFoodName"
                    Layout.fillWidth: true
                    visible: text !== ""
                    text: sheet.foodName
                    font.pixelSize: Look.bodySize
                    color: "black"
                    wrapMode: Text.Wrap
                }
            }
            ActionButton {
                objectName: "closeImageButton"
                implicitWidth: 44
                implicitHeight: 44
                symbol: "xmark"
                text: qsTr("Close picture")
                pixelSize: 20
                // Grey, dark enough to be seen against white.
                textColor: "#6e6e6e"
                onClicked: sheet.close()
            }
        }
        Item {
            Layout.fillWidth: true
            Layout.fillHeight: true
            PortionPicture {
                id: picture
                objectName: "fullImage"
                anchors.fill: parent
                portionId: sheet.portion.id
                fullSize: true
            }
            Spinner {
                anchors.centerIn: parent
                visible: !picture.hasImage
            }
        }
    }
}
