import QtQuick
import QtQuick.Controls.Basic
import QtTest
import Nutrika
import NutrikaTest

TestCase {
    id: testCase
    name: "Navigation"
    width: 400
    height: 640
    when: windowShown
    visible: true

    Component {
        id: stackComponent
        StackView { anchors.fill: parent; initialItem: Item {} }
    }
    Component {
        id: emptyStackComponent
        StackView { anchors.fill: parent }
    }
    Component {
        id: linkComponent
        NavigationLink { destinationUrl: Qt.resolvedUrl("PushedScreen.qml") }
    }
    Component {
        id: rootComponent
        NutrikaRoot { anchors.fill: parent }
    }

    function init() { SessionProbe.reset() }

    function shoot(item, name) {
        if (SessionProbe.screenshotDir !== "")
            grabImage(item).save(SessionProbe.screenshotDir + "/" + name + ".png")
    }

    function makeLink(stack, extra) {
        return createTemporaryObject(linkComponent, testCase, Object.assign({ navigation: stack }, extra || {}))
    }

    function test_settingTheFlagPushesAndClearingItPopsEverythingAbove() {
        const stack = createTemporaryObject(stackComponent, testCase)
        const first = makeLink(stack)
        first.active = true
        tryCompare(stack, "depth", 2)
        compare(stack.currentItem.presentationMode, first)
        const second = makeLink(stack, { properties: { title: "Second" } })
        second.active = true
        tryCompare(stack, "depth", 3)
        compare(stack.currentItem.title, "Second")
        first.active = false
        tryCompare(stack, "depth", 1)
        compare(first.screen, null)
    }

    function test_goingBackWritesTheFlag() {
        const stack = createTemporaryObject(stackComponent, testCase)
        const link = makeLink(stack)
        link.dismissed.connect(() => link.active = false)
        link.active = true
        tryCompare(stack, "depth", 2)
        tryCompare(stack, "busy", false)
        shoot(stack, "frame-with-back-row")
        mouseClick(findChild(stack.currentItem, "backButton"))
        compare(link.active, false)
        tryCompare(stack, "depth", 1)
    }

    function test_aReadOnlyLinkPopsByItselfAndStaysDown() {
        const stack = createTemporaryObject(stackComponent, testCase)
        const link = makeLink(stack, { writesBack: false })
        link.active = true
        tryCompare(stack, "depth", 2)
        tryCompare(stack, "busy", false)
        link.dismiss()
        tryCompare(stack, "depth", 1)
        wait(400)
        compare(stack.depth, 1)
        compare(link.active, true)
        link.active = false
        link.active = true
        tryCompare(stack, "depth", 2)
    }

    function test_closeRunsTheSessionDismissFunction() {
        const stack = createTemporaryObject(stackComponent, testCase)
        const link = makeLink(stack)
        link.active = true
        tryCompare(stack, "depth", 2)
        tryCompare(stack, "busy", false)
        mouseClick(findChild(stack.currentItem, "closeButton"))
        compare(SessionProbe.dismissCount, 1)
        compare(stack.depth, 2) // the module's host decides; the frame does not pop
    }

    function test_escapeGoesBackOneScreen() {
        SessionProbe.addExampleLines()
        const root = createTemporaryObject(rootComponent, testCase)
        const link = makeLink(root.navigation)
        link.dismissed.connect(() => link.active = false)
        link.active = true
        tryCompare(root.navigation, "depth", 2)
        tryCompare(root.navigation, "busy", false)
        root.forceActiveFocus()
        keyClick(Qt.Key_Escape)
        tryCompare(root.navigation, "depth", 1)
        keyClick(Qt.Key_Escape) // nothing below the calculator
        compare(root.navigation.depth, 1)
    }

    function test_aLinkCreatedWithItsFlagSetPushesOnceTheStackHoldsItsFirstScreen() {
        // As on a second opening of the module: the flag is still set from the first.
        const stack = createTemporaryObject(emptyStackComponent, testCase)
        const link = makeLink(stack, { active: true })
        compare(stack.depth, 0)
        stack.push(Qt.resolvedUrl("PushedScreen.qml"), { title: "First" })
        tryCompare(stack, "depth", 2)
        compare(stack.currentItem.presentationMode, link)
    }

    function test_aReadOnlyLinkFollowsAFlagWrittenAgainAfterGoingBack() {
        const stack = createTemporaryObject(stackComponent, testCase)
        const link = makeLink(stack, { writesBack: false, active: true })
        tryCompare(stack, "depth", 2)
        tryCompare(stack, "busy", false)
        link.dismiss()
        tryCompare(stack, "depth", 1)
        tryCompare(stack, "busy", false)
        link.rearm() // the same row tapped again
        tryCompare(stack, "depth", 2)
    }

    function test_aMissingDestinationWarnsAndPushesNothing() {
        const stack = createTemporaryObject(stackComponent, testCase)
        ignoreWarning("Destinations: no screen for 99")
        const link = createTemporaryObject(linkComponent, testCase,
                                           { navigation: stack, destinationUrl: Destinations.screen(99) })
        link.active = true
        wait(50)
        compare(stack.depth, 1)
    }
}
