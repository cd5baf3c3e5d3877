import QtQuick
import Nutrika
import NutrikaTest

ScreenTestCase {
    id: testCase
    name: "Navigation"

    Component { id: stackComponent; NavigationStack { anchors.fill: parent; initialItem: Item {} } }
    Component { id: linkComponent; NavigationLink { destinationUrl: Qt.resolvedUrl("PushedScreen.qml") } }

    function makeLink(stack, extra) {
        return createTemporaryObject(linkComponent, testCase, Object.assign({ navigation: stack }, extra || {}))
    }

    // A stack with a link pushed on it, settled.
    function pushed(extra) {
        const stack = createTemporaryObject(stackComponent, testCase)
        const link = makeLink(stack, extra)
        link.active = true
        settle(stack, 2)
        return { stack: stack, link: link }
    }

    function test_settingTheFlagPushesAndClearingItPopsEverythingAbove() {
        const { stack, link } = pushed()
        compare(stack.currentItem.presentationMode, link)
        makeLink(stack, { active: true, properties: { title: "Second" } })
        tryCompare(stack, "depth", 3)
        compare(stack.currentItem.title, "Second")
        link.active = false
        tryCompare(stack, "depth", 1)
        compare(link.screen, null)
    }

    // A read-only link pops by itself and stays down while its flag stays set; the same row tapped again,
    // or the flag written anew, pushes again.
    function test_aReadOnlyLinkFollowsAFlagWrittenAgainAfterGoingBack() {
        const { stack, link } = pushed({ writesBack: false })
        link.dismiss()
        tryCompare(stack, "depth", 1)
        wait(400)
        compare(stack.depth, 1)
        compare(link.active, true)
        link.rearm()
        settle(stack, 2)
        link.dismiss()
        tryCompare(stack, "depth", 1)
        link.active = false
        link.active = true
        tryCompare(stack, "depth", 2)
    }

    function test_escapeGoesBackOneScreen() {
        SessionProbe.addExampleLines()
        const root = createTemporaryObject(rootComponent, testCase)
        const stack = root.navigation
        const link = makeLink(stack, { active: true })
        link.dismissed.connect(() => link.active = false)
        settle(stack, 2)
        root.forceActiveFocus()
        keyClick(Qt.Key_Escape)
        tryCompare(stack, "depth", 1)
        keyClick(Qt.Key_Escape) // nothing below the calculator
        compare(stack.depth, 1)
    }

    // Each screen hears when it comes to the front and when it leaves; a pop to a screen removes every
    // screen above it at once; a file that cannot be built, or a destination without a screen, is refused
    // with a warning.
    function test_theStackTellsEachScreenItsPlace() {
        const stack = createTemporaryObject(stackComponent, testCase)
        const url = Qt.resolvedUrl("PushedScreen.qml")
        const first = stack.push(url, { title: "First" })
        tryCompare(stack, "busy", false)
        const second = stack.push(url, { title: "Second" })
        tryCompare(stack, "busy", false)
        compare([first.NavigationStack.index, second.NavigationStack.index, first.visible], [1, 2, false])
        const heardByFirst = first.heard, heardBySecond = second.heard
        stack.pop(stack.get(0))
        compare([stack.depth, first.NavigationStack.index, second.NavigationStack.index], [1, -1, -1])
        tryCompare(stack, "busy", false)
        compare(heardByFirst, ["activating", "activated", "removed"])
        compare(heardBySecond, ["activating", "activated", "removed"])
        ignoreWarning(new RegExp("^NavigationStack: cannot show .*NoSuchScreen.qml"))
        compare(stack.push(Qt.resolvedUrl("NoSuchScreen.qml")), null)
        ignoreWarning("Destinations: no screen for 99")
        makeLink(stack, { destinationUrl: Destinations.screen(99), active: true })
        wait(50)
        compare(stack.depth, 1)
    }
}
