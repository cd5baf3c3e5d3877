import QtQuick
import QtTest
import Nutrika
import NutrikaTest

TestCase {
    id: testCase
    name: "Widgets"
    width: 400
    height: 560
    when: windowShown
    visible: true

    Component {
        id: gallery
        Column {
            width: 400
            spacing: 12
            property alias frame: frame
            property alias untitled: untitled
            property alias picker: picker
            property alias filled: filled
            property alias outlined: outlined
            property alias spinner: spinner
            ViewContainer { id: frame; width: 400; height: 90; titleText: "Carb Calculator" }
            ViewContainer { id: untitled; width: 400; height: 90 }
            CustomPickerUIView {
                id: picker; x: 20; width: 360; options: ["Search", "Meals"]
                property int ownerChoice: 1
                selected: ownerChoice
                onSelect: index => ownerChoice = index
            }
            ListHeader { id: filled; width: 400; title: "Non-Branded"; rightTitle: "12" }
            ListHeader { id: outlined; width: 400; title: "Saved Meals"; clear: true }
            Row {
                x: 20
                spacing: 20
                Spinner { id: spinner; size: 60 }
                RoundIconButton { iconName: "plus.circle.fill" }
                TitleText { title: "Suggestions" }
            }
        }
    }
    Component {
        id: sizedSpinner
        Spinner { width: 30; height: 20 }
    }
    SignalSpy { id: selections; signalName: "select" }

    function test_gallery() {
        const g = createTemporaryObject(gallery, testCase)
        waitForRendering(g)
        if (SessionProbe.screenshotDir !== "")
            grabImage(g).save(SessionProbe.screenshotDir + "/widgets.png")
        verify(g.spinner.isAnimating)
    }

    function test_frameWithoutBackButtonShowsOnlyTheTitle() {
        const g = createTemporaryObject(gallery, testCase)
        compare(findChild(g.frame, "backRow").visible, false)
        compare(findChild(g.frame, "title").text, "Carb Calculator")
        compare(findChild(g.untitled, "title").text, "")
        compare(findChild(g.untitled, "titleBar").height, findChild(g.frame, "titleBar").height)
    }

    function segment(picker, index) {
        return picker.children[0].children[index]
    }

    function test_pickerShowsAndTakesTheSelection() {
        const g = createTemporaryObject(gallery, testCase)
        const picker = g.picker
        selections.target = picker
        selections.clear()
        verify(segment(picker, 1).isSelected)
        verify(!segment(picker, 0).isSelected)
        compare(segment(picker, 1).fill, Look.detailColor)
        mouseClick(segment(picker, 0))
        compare(picker.selected, 0)
        picker.ownerChoice = 1 // the owner's binding is still in force
        compare(picker.selected, 1)
        picker.ownerChoice = 0
        compare(selections.count, 1)
        compare(selections.signalArguments[0][0], 0)
        mouseClick(segment(picker, 0)) // the selected option tells the owner again
        compare(selections.count, 2)
        segment(picker, 1).forceActiveFocus()
        keyClick(Qt.Key_Return)
        compare(picker.selected, 1)
        picker.selected = 5
        verify(!segment(picker, 0).isSelected && !segment(picker, 1).isSelected)
    }

    function test_listHeaderKeepsItsFirstTitle() {
        const g = createTemporaryObject(gallery, testCase)
        g.filled.title = "Branded"
        compare(g.filled.shownTitle, "Non-Branded")
        compare(findChild(g.filled, "rightTitle").visible, true)
        compare(findChild(g.outlined, "rightTitle").visible, false)
        g.outlined.rightTitle = ""
        compare(findChild(g.outlined, "rightTitle").visible, true)
        compare(g.outlined.color, Qt.rgba(0, 0, 0, 0))
    }

    function test_spinnerLineWidthFollowsTheSmallerSide() {
        const spinner = createTemporaryObject(sizedSpinner, testCase)
        compare(spinner.lineWidth, 20 / 14)
        verify(spinner.isAnimating)
    }
}
