import QtQuick
import QtQuick.Controls.Basic
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
        StackView { anchors.fill: parent }
    }
    Component {
        id: containerComponent
        SearchContainerScreen {}
    }

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
        for (const c of text)
            keyClick(c)
    }

    function foodRows(list) {
        let rows = 0
        for (let i = 0; i < list.count; ++i)
            if (!list.model.data(list.model.index(i, 0), 257)) ++rows
        return rows
    }

    function test_1_typingShowsTheCountAndBothSections() {
        const container = openSearch()
        typeSearch(container, "banana")
        const count = findChild(container, "countLine")
        tryVerify(() => count.visible && count.text.endsWith("items matching your search"), 5000)
        const list = findChild(container, "results")
        tryVerify(() => foodRows(list) > 0, 5000)
        compare(list.itemAtIndex(0).item.shownTitle, "Non-Branded")
        compare(list.itemAtIndex(1).item.title, "Bananas, raw")
        shoot(container, "search-banana")

        // Scrolling to the end asks for the next page.
        const before = list.count
        list.positionViewAtEnd()
        tryVerify(() => list.count > before, 5000)
        shoot(container, "search-banana-paged")
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
        const chosen = brand.options[1]
        wheel.currentIndex = 1
        tryCompare(brand, "selectedFilterItem", chosen)
        shoot(container.Window.contentItem, "search-brand-sheet")
        mouseClick(findChild(brand, "doneButton"))
        tryVerify(() => !brand.isPresented)
        tryVerify(() => {
            if (foodRows(list) === 0)
                return false
            for (let i = 0; i < list.count; ++i) {
                const row = list.itemAtIndex(i)
                if (row && !row.isHeader && row.brand !== chosen)
                    return false
            }
            return true
        }, 5000)
        shoot(container, "search-brand-filtered")
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
