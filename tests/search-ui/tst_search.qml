import QtQuick
import Nutrika
import NutrikaTest
import "../qml"

// The search screen against the local service: paging, the pinned section header, dimmed rows, the brand
// filter and the alert when the service has gone.
ScreenTestCase {
    id: testCase
    name: "FoodSearch"

    // An empty calculator opens the search.
    function openSearch() { return settle(createTemporaryObject(rootComponent, testCase).navigation, 2) }

    // Types and presses Enter, then waits for the reply to that text: on a slow machine a pause
    // between keys may have settled a shorter text whose rows would otherwise be taken for these.
    function searchFor(container, text) {
        type(findChild(container, "searchField"), text)
        keyClick(Qt.Key_Return)
        const view = findChild(container, "tabContent").item.uiView
        tryVerify(() => view.debouncedText === text && !view.isLoading, 5000)
    }

    // The header drawn at the top of the list, if any.
    function pinnedHeader(list) {
        return Array.from(list.contentItem.children).find(child => child.objectName === "sectionHeader"
                                                           && child.visible
                                                           && Math.abs(child.mapToItem(list, 0, 0).y) < 1)
    }

    function foodRows(list) {
        let rows = 0
        for (let i = 0; i < list.count; ++i)
            if (!list.model.data(list.model.index(i, 0), 257)) ++rows
        return rows
    }

    function test_1_typingShowsTheCountAndBothSections() {
        verify(ServiceProbe.ready)
        const container = openSearch()
        // Before anything is typed, the screen says what to type.
        verify(findChild(container, "searchHint").visible)
        shoot(container, "search-filters-disabled")
        searchFor(container, "banana")
        const count = findChild(container, "countLine")
        tryVerify(() => count.visible && count.text.endsWith("items matching your search"), 5000)
        verify(!findChild(container, "searchHint").visible)
        const list = findChild(container, "results")
        tryVerify(() => foodRows(list) > 0, 5000)
        compare(pinnedHeader(list).shownTitle, "Non-Branded")
        // A screen reader meets the rows as they are seen, each after its own section's header.
        tryVerify(() => {
            const shown = Array.from(list.contentItem.children)
                .filter(item => item.visible && item.height > 0 && item.title !== undefined)
            return shown.every((item, i) => i === 0 || shown[i - 1].y <= item.y)
        })
        // A pause between keys on a slow machine settles a shorter text first; its rows stay until
        // the reply for "banana" replaces them.
        tryVerify(() => list.itemAtIndex(0) && list.itemAtIndex(0).title === "Bananas, raw", 5000)
        shoot(container, "search-banana")

        // Scrolling to the end asks for the next page (a tall window may have asked already); the header
        // of the section in view stays on top.
        const view = findChild(container, "tabContent").item.uiView
        list.positionViewAtEnd()
        tryVerify(() => view.offset >= 100 && list.count > 50, 5000)
        list.positionViewAtIndex(Math.floor(list.count / 2), ListView.Beginning)
        const top = list.itemAt(10, list.contentY + pinnedHeader(list).height + 1)
        compare(pinnedHeader(list).shownTitle, top.branded ? "Branded" : "Non-Branded")
        shoot(container, "search-banana-paged")

        // A new text dims the rows shown until its first page replaces them.
        list.positionViewAtBeginning()
        type(findChild(container, "searchField"), "apple")
        keyClick(Qt.Key_Return)
        verify(view.resultsStale)
        verify(list.itemAt(10, list.contentY + 100).opacity < 1)
        shoot(container, "search-stale-rows")
        tryVerify(() => {
            const row = list.itemAt(10, list.contentY + 100)
            return row && row.opacity === 1 && row.title.startsWith("Apple")
        }, 5000)
    }

    function test_2_aBrandChosenWithDoneFilters() {
        verify(ServiceProbe.ready)
        const container = openSearch()
        type(findChild(container, "searchField"), "cereal")
        const list = findChild(container, "results")
        tryVerify(() => foodRows(list) > 0, 5000)
        const brand = findChild(container, "brandFilter")
        tryVerify(() => brand.options.length > 2, 5000)
        mouseClick(brand)
        tryVerify(() => brand.isPresented)
        const wheel = findChild(brand, "filterWheel")
        tryVerify(() => wheel.activeFocus) // once the sheet has slid in
        // Keys, the mouse wheel and a click on an option all choose.
        keyClick(Qt.Key_Down)
        compare(brand.selectedFilterItem, brand.options[1])
        mouseWheel(wheel, wheel.width / 2, wheel.height / 2, 0, -120)
        compare(brand.selectedFilterItem, brand.options[2])
        mouseWheel(wheel, wheel.width / 2, wheel.height / 2, 0, 120)
        compare(brand.selectedFilterItem, brand.options[1])
        tryVerify(() => !wheel.moving)
        const chosen = brand.options[2]
        mouseClick(findChild(wheel, "filterOption " + chosen))
        compare(brand.selectedFilterItem, chosen)
        shoot(container.Window.contentItem, "search-brand-sheet")
        mouseClick(findChild(brand, "doneButton"))
        tryVerify(() => !brand.isPresented)
        tryVerify(() => foodRows(list) > 0 && Array.from({ length: list.count }, (_, i) => list.itemAtIndex(i))
                  .every(row => !row || row.isPlaceholder || row.brand === chosen), 5000)
        shoot(container, "search-brand-filtered")

        // Nothing found under the brand: the count line as ever, and how to widen the search below it.
        type(findChild(container, "searchField"), "salmon")
        keyClick(Qt.Key_Return)
        tryCompare(findChild(container, "countLine"), "text", "0 items matching your search", 5000)
        verify(findChild(container, "filterResetHint").visible)
        shoot(container, "search-nothing-under-a-filter")
    }

    // Runs last: the service stays stopped for the rest of this file.
    function test_3_aStoppedServiceRaisesTheAlert() {
        ServiceProbe.stop()
        const container = openSearch()
        type(findChild(container, "searchField"), "apple")
        const alert = findChild(container, "errorAlert")
        tryVerify(() => alert.visible && alert.title === "Connection Error", 5000) // its texts: tst_screens
        shoot(container.Window.contentItem, "search-connection-error")
    }
}
