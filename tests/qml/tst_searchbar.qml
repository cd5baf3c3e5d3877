import QtQuick
import QtTest
import Nutrika
import NutrikaTest

TestCase {
    id: testCase
    name: "SearchBar"
    width: 360
    height: 100
    when: windowShown
    visible: true

    property var delivered: []

    Component {
        id: barComponent
        SearchBar {
            x: 10; y: 10; width: 340
            placeholder: "Search foods"
            onFinishTyping: text => testCase.delivered.push(text)
        }
    }

    function init() { delivered = [] }

    function test_theEmptyTextArrivesAtOnceAndAgainAfterASecond() {
        const bar = createTemporaryObject(barComponent, testCase)
        compare(delivered, [""])
        wait(600)
        compare(delivered.length, 1)
        tryVerify(() => delivered.length === 2, 3000)
        compare(delivered[1], "")
        if (SessionProbe.screenshotDir !== "")
            grabImage(bar).save(SessionProbe.screenshotDir + "/search-bar.png")
    }

    function test_quickTypingGivesOneDeliveryOfTheWord() {
        const bar = createTemporaryObject(barComponent, testCase)
        const field = findChild(bar, "searchField")
        field.forceActiveFocus()
        for (const key of "rice") {
            keyClick(key)
            wait(150)
        }
        compare(delivered, [""])
        tryVerify(() => delivered.length === 2, 3000)
        compare(delivered[1], "rice")
        compare(bar.textObserver.searchText, "rice")
    }

    function test_enterHandsTheTextOverAtOnce() {
        const bar = createTemporaryObject(barComponent, testCase)
        findChild(bar, "searchField").forceActiveFocus()
        for (const key of "rice")
            keyClick(key)
        keyClick(Qt.Key_Return)
        compare(delivered, ["", "rice"])
    }

    function test_loadingTurnsTheArrows() {
        const bar = createTemporaryObject(barComponent, testCase)
        const icon = findChild(bar, "searchIcon")
        const magnifier = icon.text
        bar.isLoading = true
        verify(icon.text !== magnifier)
        verify(bar.isAnimating)
        tryVerify(() => icon.rotation > 0, 2000)
        if (SessionProbe.screenshotDir !== "")
            grabImage(bar).save(SessionProbe.screenshotDir + "/search-bar-loading.png")
        bar.isLoading = false
        compare(icon.text, magnifier)
        verify(!bar.isAnimating)
    }
}
