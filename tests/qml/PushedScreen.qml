import Nutrika

// A framed screen for the navigation tests, pushed the way the module's screens are.
ViewContainer {
    property NavigationStack navigation
    property string title: "Pushed"
    titleText: title
    backButton: true
}
