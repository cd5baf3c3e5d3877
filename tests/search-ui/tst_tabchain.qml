import QtQuick
import QtTest
import Nutrika
import NutrikaTest

// Tab walks every control of a screen in reading order, and each one tells a screen reader what it is.
TestCase {
    id: testCase
    name: "TabChain"
    width: 400
    height: 720
    when: windowShown
    visible: true

    Component {
        id: rootComponent
        NutrikaRoot { anchors.fill: parent }
    }

    function cleanup() { ServiceProbe.resetSession() }

    // The tab stops from the focused item round to it again.
    function tabChain() {
        const start = testCase.Window.activeFocusItem
        const chain = [start]
        for (let i = 0; i < 80; ++i) {
            keyClick(Qt.Key_Tab)
            const next = testCase.Window.activeFocusItem
            if (next === start)
                return chain
            chain.push(next)
        }
        fail("Tab never comes back to " + start)
    }

    // Above, or level and to the left.
    function reads(a, b) {
        const pa = a.mapToItem(null, 0, 0), pb = b.mapToItem(null, 0, 0)
        return pa.y < pb.y - 0.5 || (Math.abs(pa.y - pb.y) <= 0.5 && pa.x < pb.x)
    }

    function checkChain(screen, minimum) {
        const chain = tabChain()
        verify(chain.length >= minimum, screen + ": " + chain.length + " tab stops")
        // The chain is a ring: it starts at the stop that reads first.
        let first = 0
        for (let i = 1; i < chain.length; ++i)
            if (reads(chain[i], chain[first])) first = i
        const ordered = chain.slice(first).concat(chain.slice(0, first))
        for (let i = 0; i < ordered.length; ++i) {
            const item = ordered[i]
            const what = screen + " stop " + i + " (" + item + ", " + item.Accessible.name + ")"
            verify(item.Accessible.name !== "", what + " has no name")
            verify(item.Accessible.role !== Accessible.NoRole, what + " has no role")
            if (i > 0)
                verify(reads(ordered[i - 1], item), what + " comes before " + ordered[i - 1].Accessible.name)
        }
    }

    function test_tabFollowsTheReadingOrderOnEveryScreen() {
        verify(ServiceProbe.ready)
        SessionProbe.addExampleLines()
        const root = createTemporaryObject(rootComponent, testCase)
        root.forceActiveFocus()
        keyClick(Qt.Key_Tab)
        checkChain("calculator", 3)

        EnvironmentVariables.searchActive = true
        tryVerify(() => root.navigation.depth === 2 && !root.navigation.busy)
        const container = root.navigation.currentItem
        for (const c of "banana")
            keyClick(c)
        keyClick(Qt.Key_Return)
        tryVerify(() => findChild(container, "results").count > 2, 5000)
        checkChain("food search", 7)

        mouseClick(findChild(container, "tabPicker"), 300, 20)
        tryVerify(() => findChild(container, "meals") !== null)
        findChild(container, "searchField").forceActiveFocus()
        checkChain("meal search", 5)
    }
}
