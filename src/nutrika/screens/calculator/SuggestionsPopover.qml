import QtQuick
import QtQuick.Controls.Basic
import Nutrika

// Qt 6.4's linter does not know the types of components that reach properties outside them.
// qmllint disable

// The suggestions over the calculator after a food is added, hanging from `anchor` under the column
// header. The list is built for each showing and let go after the choice that closed it has finished.
Popup {
    id: popover
    objectName: "suggestions"

    required property CarbCounterUIView calculator
    required property Item anchor

    parent: anchor
    x: 10
    width: anchor.width - 20
    height: Math.min(520, anchor.parent.height - anchor.y - 20)
    modal: true
    focus: true
    padding: 0
    visible: calculator.showAccompanimentList
    onAboutToShow: content.active = true
    onClosed: {
        // Closed by Escape or a tap outside; a close that follows the flag leaves it as it is.
        if (calculator.showAccompanimentList)
            calculator.showAccompanimentList = false
        Qt.callLater(() => content.active = false)
    }
    background: Rectangle { radius: 14; color: "white"; border.color: Look.lightGray }

    contentItem: Loader {
        id: content
        active: false
        sourceComponent: FoodAccompanimentsScreen {
            uiView: FoodAccompanimentsUIView {
                // A copy: suggestions that arrive while the list shows wait for the next time.
                Component.onCompleted: items = popover.calculator.accompanimentListItems
                onIsPresentedChanged: popover.calculator.showAccompanimentList = isPresented
                onSelect: item => popover.calculator.selectAccompanimentValue(item)
            }
        }
    }
}
