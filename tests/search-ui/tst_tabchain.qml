import QtQuick
import Nutrika
import NutrikaTest
import "../qml"

// Tab walks every control of a screen in reading order, and each one tells a screen reader what it is.
ScreenTestCase {
    id: testCase
    name: "TabChain"

    // Above, or level and to the left.
    function reads(a, b) {
        const pa = a.mapToItem(null, 0, 0), pb = b.mapToItem(null, 0, 0)
        return pa.y < pb.y - 0.5 || (Math.abs(pa.y - pb.y) <= 0.5 && pa.x < pb.x)
    }

    // The tab stops from the focused item round to it again, each named, with a role, in reading order.
    function checkChain(screen, minimum) {
        const start = testCase.Window.activeFocusItem
        const chain = [start]
        for (keyClick(Qt.Key_Tab); testCase.Window.activeFocusItem !== start; keyClick(Qt.Key_Tab)) {
            chain.push(testCase.Window.activeFocusItem)
            verify(chain.length <= 80, "Tab never comes back to " + start)
        }
        verify(chain.length >= minimum, screen + ": " + chain.length + " tab stops")
        // The chain is a ring: it starts at the stop that reads first.
        const first = chain.reduce((best, item, i) => reads(item, chain[best]) ? i : best, 0)
        const ordered = chain.slice(first).concat(chain.slice(0, first))
        ordered.forEach((item, i) => {
            const what = screen + " stop " + i + " (" + item + ", " + item.Accessible.name + ")"
            verify(item.Accessible.name !== "", what + " has no name")
            verify(item.Accessible.role !== Accessible.NoRole, what + " has no role")
            if (i > 0)
                verify(reads(ordered[i - 1], item), what + " comes before " + ordered[i - 1].Accessible.name)
        })
    }

    function test_tabFollowsTheReadingOrderOnEveryScreen() {
        verify(ServiceProbe.ready)
        SessionProbe.addExampleLines()
        const root = createTemporaryObject(rootComponent, testCase)
        root.forceActiveFocus()
        keyClick(Qt.Key_Tab)
        checkChain("calculator", 3)

        // The search field takes the keys at once.
        EnvironmentVariables.searchActive = true
        const container = settle(root.navigation, 2)
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
