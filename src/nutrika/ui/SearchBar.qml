import QtQuick
import QtQuick.Controls.Basic
import QtQuick.Layouts
import Nutrika

// The search field: hands its owner the text once typing has paused for one second (finishTyping),
// and turns a rotating arrows icon while the owner's search runs (isLoading). Enter hands it over at
// once. A focus scope, so focus given to the bar reaches the field.
FocusScope {
    id: bar

    property bool isLoading: false
    property bool isAnimating: false
    property string placeholder: ""
    // Kept for the bar's lifetime, so the typed text survives the owner's rebuilds.
    readonly property TextFieldObserver textObserver: TextFieldObserver {}
    readonly property alias field: field

    signal finishTyping(string text)

    implicitWidth: 300
    implicitHeight: field.implicitHeight + 16

    // The loading icon appears and disappears with isLoading.
    onIsLoadingChanged: isAnimating = isLoading
    Component.onCompleted: finishTyping(textObserver.debouncedText)

    Connections {
        target: bar.textObserver
        function onDebouncedTextChanged() { bar.finishTyping(bar.textObserver.debouncedText) }
    }

    Rectangle {
        id: frame
        anchors.fill: parent
        radius: 25
        color: "white"
    }

    RowLayout {
        anchors.fill: parent
        anchors.leftMargin: 16
        anchors.rightMargin: 16
        spacing: 8

        Text {
            id: icon
            objectName: "searchIcon"
            text: Look.symbol(bar.isLoading ? "arrow.2.circlepath" : "magnifyingglass")
            font.family: Look.symbolFont
            font.pixelSize: 20
            color: Look.lightGray
            Accessible.ignored: true
            RotationAnimation on rotation {
                running: bar.isAnimating
                from: 0; to: 360; duration: 2000; loops: Animation.Infinite
                onStopped: icon.rotation = 0
            }
        }

        TextField {
            id: field
            objectName: "searchField"
            Layout.fillWidth: true
            focus: true
            placeholderText: bar.placeholder
            placeholderTextColor: Look.lightGray
            color: "black"
            font: Look.azoSans
            text: bar.textObserver.searchText
            onTextEdited: bar.textObserver.searchText = text
            onAccepted: bar.textObserver.settle()
            background: null
            Accessible.role: Accessible.EditableText
            Accessible.name: bar.placeholder
            Accessible.searchEdit: true
        }
    }

    RoundedBorder {
        style: field.activeFocus ? Look.detailColor : Look.lightGray
        cornerRadius: frame.radius
    }
}
