import QtQuick
import QtTest
import Nutrika
import NutrikaTest

TestCase {
    id: testCase
    name: "FoodSearch"
    width: 400
    height: 720
    when: windowShown
    visible: true

    Component {
        id: stackComponent
        NavigationStack { anchors.fill: parent }
    }
    Component {
        id: containerComponent
        SearchContainerScreen {}
    }
    Component {
        id: rootComponent
        NutrikaRoot { anchors.fill: parent }
    }

    function cleanup() { ServiceProbe.resetSession() }

    function shoot(item, name) {
        if (ServiceProbe.screenshotDir !== "")
            grabImage(item).save(ServiceProbe.screenshotDir + "/" + name + ".png")
    }

    function openSearch() {
        verify(ServiceProbe.ready)
        const stack = createTemporaryObject(stackComponent, testCase)
        const container = stack.push(containerComponent, { navigation: stack })
        tryVerify(() => !stack.busy)
        return container
    }

    function typeSearch(container, text) {
        const field = findChild(container, "searchField")
        field.forceActiveFocus()
        field.selectAll()
        for (const c of text)
            keyClick(c)
    }

    // Types and presses Enter, then waits for the reply to that text: on a slow machine a pause
    // between keys may have settled a shorter text whose rows would otherwise be taken for these.
    function searchFor(container, text) {
        typeSearch(container, text)
        keyClick(Qt.Key_Return)
        const view = findChild(container, "tabContent").item.uiView
        tryVerify(() => view.debouncedText === text && !view.isLoading, 5000)
    }

    // The header drawn at the top of the list, if any.
    function pinnedHeader(list) {
        const children = list.contentItem.children
        for (let i = 0; i < children.length; ++i) {
            const child = children[i]
            if (child.objectName === "sectionHeader" && child.visible && Math.abs(child.mapToItem(list, 0, 0).y) < 1)
                return child
        }
        return null
    }

    function test_0_theSearchFieldTakesKeysAtOnceAndEnterSearches() {
        verify(ServiceProbe.ready)
        const root = createTemporaryObject(rootComponent, testCase)
        root.forceActiveFocus()
        EnvironmentVariables.searchActive = true
        tryVerify(() => root.navigation.depth === 2 && !root.navigation.busy)
        const field = findChild(root.navigation.currentItem, "searchField")
        tryVerify(() => field.activeFocus)
        for (const c of "rice")
            keyClick(c)
        compare(field.text, "rice")
        const view = findChild(root.navigation.currentItem, "tabContent").item.uiView
        keyClick(Qt.Key_Return)
        compare(view.debouncedText, "rice") // not a second later
        shoot(root, "search-focused")
    }

    function foodRows(list) {
        let rows = 0
        for (let i = 0; i < list.count; ++i)
            if (!list.model.data(list.model.index(i, 0), 257)) ++rows
        return rows
    }

    function test_1_typingShowsTheCountAndBothSections() {
        const container = openSearch()
        shoot(container, "search-filters-disabled")
        searchFor(container, "banana")
        const count = findChild(container, "countLine")
        tryVerify(() => count.visible && count.text.endsWith("items matching your search"), 5000)
        const list = findChild(container, "results")
        tryVerify(() => foodRows(list) > 0, 5000)
        compare(pinnedHeader(list).shownTitle, "Non-Branded")
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
        typeSearch(container, "apple")
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
        const container = openSearch()
        typeSearch(container, "cereal")
        const list = findChild(container, "results")
        tryVerify(() => foodRows(list) > 0, 5000)
        const brand = findChild(container, "brandFilter")
        tryVerify(() => brand.options.length > 1, 5000)
        mouseClick(brand)
        tryVerify(() => brand.isPresented)
        const wheel = findChild(brand, "filterWheel")
        tryVerify(() => wheel.activeFocus) // once the sheet has slid in
        verify(brand.options.length > 2)
        // Keys, the mouse wheel and a click on an option all choose.
        keyClick(Qt.Key_Down)
        compare(brand.selectedFilterItem, brand.options[1])
        mouseWheel(wheel, wheel.width / 2, wheel.height / 2, 0, -120)
        compare(brand.selectedFilterItem, brand.options[2])
        mouseWheel(wheel, wheel.width / 2, wheel.height / 2, 0, 120)
        compare(brand.selectedFilterItem, brand.options[1])
        tryVerify(() => !wheel.moving)
        mouseClick(findChild(wheel, "filterOption " + brand.options[2]))
        compare(brand.selectedFilterItem, brand.options[2])
        const chosen = brand.options[2]
        shoot(container.Window.contentItem, "search-brand-sheet")
        mouseClick(findChild(brand, "doneButton"))
        tryVerify(() => !brand.isPresented)
        tryVerify(() => {
            if (foodRows(list) === 0)
                return false
            for (let i = 0; i < list.count; ++i) {
                const row = list.itemAtIndex(i)
                if (row && !row.isPlaceholder && row.brand !== chosen)
                    return false
            }
            return true
        }, 5000)
        shoot(container, "search-brand-filtered")

        // Nothing found under the brand: the count line as ever, and how to widen the search below it.
        typeSearch(container, "salmon")
        keyClick(Qt.Key_Return)
        const count = findChild(container, "countLine")
        tryCompare(count, "text", "0 items matching your search", 5000)
        verify(findChild(container, "filterResetHint").visible)
        shoot(container, "search-nothing-under-a-filter")
    }

    function test_3_mealsTabListsSavedMeals() {
        const container = openSearch()
        mouseClick(findChild(container, "tabPicker"), 300, 20)
        tryVerify(() => findChild(container, "meals") !== null)
        verify(findChild(container, "createMealButton").visible)
        shoot(container, "search-meals")
    }

    function test_4_aStoppedServiceRaisesTheAlert() {
        ServiceProbe.stop()
        const container = openSearch_withoutService()
        typeSearch(container, "apple")
        const alert = findChild(container, "errorAlert")
        tryVerify(() => alert.visible, 5000)
        compare(alert.title, "Connection Error")
        compare(findChild(alert.contentItem, "errorBody").text, "Unable to connect to server, try again later")
        shoot(container.Window.contentItem, "search-connection-error")
    }

    function openSearch_withoutService() {
        const stack = createTemporaryObject(stackComponent, testCase)
        const container = stack.push(containerComponent, { navigation: stack })
        tryVerify(() => !stack.busy)
        return container
    }
}
