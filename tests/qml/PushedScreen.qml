import Nutrika

// A framed screen for the navigation tests, pushed the way the module's screens are. It keeps what the
// stack told it.
ViewContainer {
    property NavigationStack navigation
    property string title: "Pushed"
    readonly property var heard: []
    titleText: title
    backButton: true

    NavigationStack.onActivating: heard.push("activating")
    NavigationStack.onActivated: heard.push("activated")
    NavigationStack.onRemoved: heard.push("removed")
}
