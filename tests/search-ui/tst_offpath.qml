import QtQuick
import Nutrika
import NutrikaTest
import "../qml"

// The paths beside the straight journey where a person could see or count a wrong number: a double tap,
// suggestions over another screen, a selection swapped on return, a portion without its values, a link
// that would close nothing, and a meal still composed after "Close".
ScreenTestCase {
    id: testCase
    name: "OffPath"

    readonly property int bananaId: 9040
    readonly property int mediumBanana: 904005

    function init() {
        verify(ServiceProbe.ready)
        SessionProbe.reset()
    }

    function carbsShown(preview) {
        const value = findChild(preview, "carbohydratesValue")
        tryVerify(() => value.text !== "", 5000)
        return value.text
    }

    function suggestionsShown(root) {
        const popup = findChild(root, "suggestions")
        return popup !== null && popup.visible
    }

    // The module over an empty calculator opens on the search; the banana's portions from there.
    function bananaPortions() {
        const root = createTemporaryObject(rootComponent, testCase)
        tapFood(settle(root.navigation, 2), "Bananas, raw", "banana")
        return { root: root, portions: settle(root.navigation, 3) }
    }

    // The medium banana through its preview onto the calculator.
    function addMediumBanana(root, portions) {
        mouseClick(portionBox(portions, mediumBanana))
        mouseClick(findChild(portions, "selectPortionButton"))
        const preview = settle(root.navigation, 4)
        carbsShown(preview)
        mouseClick(findChild(preview, "addButton"))
        settle(root.navigation, 1)
    }

    function test_aDoubleTapOnAddCountsTheFoodOnce() {
        const { root, portions } = bananaPortions()
        mouseClick(portionBox(portions, mediumBanana))
        mouseClick(findChild(portions, "selectPortionButton"))
        const preview = settle(root.navigation, 4)
        const carbs = carbsShown(preview)
        const add = findChild(preview, "addButton")
        mouseClick(add)
        wait(120)
        mouseClick(add)
        settle(root.navigation, 1)
        compare(lineAmounts(root), [carbs.replace("g", " g")])
    }

    // The suggestions belong to the calculator: opening a line before they show keeps them back until
    // the calculator is in front again.
    function test_suggestionsWaitWhileTheCalculatorIsCovered() {
        const { root, portions } = bananaPortions()
        addMediumBanana(root, portions)
        mouseClick(findChild(root, "lineList").itemAtIndex(0))
        const preview = settle(root.navigation, 2)
        wait(1500)
        verify(!suggestionsShown(root), "the suggestions opened over the line's preview")
        mouseClick(findChild(preview, "backButton"))
        settle(root.navigation, 1)
        tryVerify(() => suggestionsShown(root), 3000)
    }

    // A typed amount, then a pictured box chosen over it: back from the preview, the box stays chosen.
    function test_comingBackKeepsTheChosenPortion() {
        const { root, portions } = bananaPortions()
        mouseClick(portionBox(portions, -1))
        type(findChild(portions, "customAmountField"), "150")
        mouseClick(portionBox(portions, mediumBanana))
        compare(portions.uiView.selectedPortionId, mediumBanana)
        mouseClick(findChild(portions, "selectPortionButton"))
        mouseClick(findChild(settle(root.navigation, 4), "backButton"))
        settle(root.navigation, 3)
        compare(portions.uiView.selectedPortionId, mediumBanana)
        mouseClick(findChild(portions, "selectPortionButton"))
        compare(findChild(settle(root.navigation, 4), "portionLink").text, "118g")
    }

    // The values of a new portion fail to arrive: the line keeps the portion its carbohydrates belong to.
    function test_anEditedLineNeverPairsAPortionWithAnothersCarbohydrates() {
        const { root, portions } = bananaPortions()
        addMediumBanana(root, portions)
        const counted = lineAmounts(root)
        mouseClick(findChild(root, "lineList").itemAtIndex(0))
        let preview = settle(root.navigation, 2)
        mouseClick(findChild(preview, "portionLink"))
        const change = settle(root.navigation, 3)
        portionBox(change, mediumBanana)
        const client = EnvironmentVariables.serviceClient
        const origin = client.origin
        client.origin = "https://127.0.0.1:1" // nothing listens there
        try {
            mouseClick(portionBox(change, -1))
            type(findChild(change, "customAmountField"), "200")
            mouseClick(findChild(change, "selectPortionButton"))
            preview = settle(root.navigation, 2)
            compare(findChild(preview, "portionLink").text, "200g")
            tryVerify(() => findChild(preview, "nutrientsFailed").visible, 8000)
            compare(findChild(preview, "carbohydratesValue").text, "")
            verify(!findChild(preview, "updateButton").enabled)
        } finally {
            client.origin = origin
        }
        mouseClick(findChild(preview, "backButton"))
        settle(root.navigation, 1)
        compare(lineAmounts(root), counted)
        mouseClick(findChild(root, "lineList").itemAtIndex(0))
        compare(findChild(settle(root.navigation, 2), "portionLink").text, "118g")
    }

    // From a suggestion's preview, "Search more foods" closes the preview and the portion screen.
    function test_searchMoreFoodsFromASuggestionClosesBothScreens() {
        const { root, portions } = bananaPortions()
        addMediumBanana(root, portions)
        tryVerify(() => suggestionsShown(root), 3000)
        const list = findChild(findChild(root, "suggestions").contentItem, "suggestionList")
        tryVerify(() => list.count > 0 && list.itemAtIndex(0) !== null)
        mouseClick(list.itemAtIndex(0))
        const suggested = settle(root.navigation, 2)
        mouseClick(portionBox(suggested, -1))
        type(findChild(suggested, "customAmountField"), "100")
        mouseClick(findChild(suggested, "selectPortionButton"))
        const preview = settle(root.navigation, 3)
        mouseClick(findChild(preview, "searchMoreButton"))
        settle(root.navigation, 1)
        compare(lineAmounts(root).length, 1)
    }

    // "Close" over an open meal ends its composing. A widget host closes its container without
    // destroying it, so the meal editor never hears its removal; the module opened again composes nothing.
    function test_closeEndsTheMealBeingComposed() {
        SessionProbe.addExampleLines()
        const closed = createTemporaryObject(rootComponent, testCase)
        settle(closed.navigation, 1)
        const lines = findChild(closed, "lineList")
        tryVerify(() => lines.itemAtIndex(1) !== null)
        mouseClick(lines.itemAtIndex(1))
        const editor = settle(closed.navigation, 2)
        verify(EnvironmentVariables.editRecipeActive)
        mouseClick(findChild(editor, "closeButton"))
        closed.visible = false
        const root = createTemporaryObject(rootComponent, testCase)
        settle(root.navigation, 1)
        verify(!EnvironmentVariables.editRecipeActive)
    }
}
