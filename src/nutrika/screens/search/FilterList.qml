import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Templates as T
import QtQuick.Layouts
import Nutrika

// A filter button of the food search and its choice sheet. The wheel writes the chosen value at once;
// only "Done" asks for a new search, closing the sheet any other way does not.
Rectangle {
    id: filter

    property string title: ""
    property string selectedFilterItem: ""
    property var options: []
    property bool enabledForText: false
    readonly property alias isPresented: sheet.visible

    signal choose(string value)
    signal done()

    implicitHeight: label.implicitHeight + 20
    color: "white"
    activeFocusOnTab: true
    Accessible.role: Accessible.ComboBox
    Accessible.name: title + ": " + (selectedFilterItem === "" ? qsTr("none") : selectedFilterItem)
    Accessible.description: enabledForText ? "" : qsTr("Type a search first")
    Accessible.onPressAction: toggle()
    Keys.onReturnPressed: toggle()
    Keys.onEnterPressed: toggle()
    Keys.onSpacePressed: toggle()

    function toggle() {
        if (enabledForText)
            sheet.visible = !sheet.visible
    }

    TapHandler {
        onTapped: filter.toggle()
    }

    Row {
        id: label
        anchors.centerIn: parent
        spacing: 4
        // Disabled is told by a lighter grey that still reads, not by fading the text.
        Text {
            objectName: "filterLabel"
            text: filter.selectedFilterItem === "" ? filter.title : qsTranslate("ItemSearchUIView", filter.selectedFilterItem)
            font.pixelSize: Look.captionSize
            font.bold: true
            color: filter.enabledForText ? "#595959" : Look.lightGray
            elide: Text.ElideRight
            width: Math.min(implicitWidth, filter.width - 40)
        }
        Text {
            text: Look.symbol("chevron.down")
            font.family: Look.symbolFont
            font.pixelSize: Look.captionSize
            color: filter.enabledForText ? "#595959" : Look.lightGray
            Accessible.ignored: true
        }
    }

    Drawer {
        id: sheet
        objectName: "filterSheet"
        parent: T.Overlay.overlay
        edge: Qt.BottomEdge
        width: parent ? parent.width : 0
        height: 250
        modal: true
        onOpened: wheel.forceActiveFocus()

        ColumnLayout {
            anchors.fill: parent
            spacing: 0
            Item {
                Layout.fillWidth: true
                implicitHeight: 50
                Text {
                    anchors.centerIn: parent
                    text: filter.title
                    font.bold: true
                    font.pixelSize: Look.bodySize
                    Accessible.role: Accessible.Heading
                    Accessible.name: text
                }
                ActionButton {
                    objectName: "doneButton"
                    anchors.right: parent.right
                    anchors.rightMargin: 16
                    anchors.verticalCenter: parent.verticalCenter
                    implicitWidth: 60
                    implicitHeight: 44
                    text: qsTr("Done")
                    bold: true
                    textColor: Look.titleText
                    onClicked: {
                        sheet.close()
                        filter.done()
                    }
                }
            }
            Tumbler {
                id: wheel
                objectName: "filterWheel"
                Layout.fillWidth: true
                Layout.fillHeight: true
                model: filter.options
                visibleItemCount: 5
                currentIndex: Math.max(0, filter.options.indexOf(filter.selectedFilterItem))
                // Only a turn to another option is reported: the owner's value moving the wheel is not.
                onCurrentIndexChanged: if (sheet.visible && filter.options.length > 0
                                               && filter.options[currentIndex] !== filter.selectedFilterItem)
                                           filter.choose(filter.options[currentIndex])
                Accessible.role: Accessible.List
                Accessible.name: filter.title
                Keys.onReturnPressed: doneOnKey()
                Keys.onEnterPressed: doneOnKey()
                Keys.onUpPressed: step(-1)
                Keys.onDownPressed: step(1)
                function doneOnKey() {
                    sheet.close()
                    filter.done()
                }
                // One option up or down, reported to the owner, whose value moves the wheel back here.
                function step(delta) {
                    const next = Math.max(0, Math.min(filter.options.length - 1, currentIndex + delta))
                    if (next !== currentIndex)
                        filter.choose(filter.options[next])
                }
                // The mouse wheel turns it one option per notch, as the arrow keys do.
                WheelHandler {
                    acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
                    onWheel: event => wheel.step(event.angleDelta.y > 0 ? -1 : 1)
                }
                // Qt 6.4 cannot create every component bound to its file (ComponentBehavior: Bound), so the
                // component below reaches ids outside it, which the linter counts as unqualified access.
                // qmllint disable unqualified
                delegate: Text {
                    id: option
                    required property string modelData
                    // The wheel reads each option's place through its attached displacement.
                    required property int index
                    objectName: "filterOption " + modelData
                    // A press the wheel's view would otherwise take for the start of a drag.
                    MouseArea {
                        anchors.fill: parent
                        onClicked: filter.choose(option.modelData)
                    }
                    // "All Brands" and "All Categories" in the person's language; brands as the service names them.
                    text: qsTranslate("ItemSearchUIView", modelData)
                    font.pixelSize: Look.bodySize
                    color: "black"
                    opacity: 1.0 - Math.abs(Tumbler.displacement) / (Tumbler.tumbler.visibleItemCount / 2)
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                }
                // qmllint enable unqualified
            }
        }
    }
}
