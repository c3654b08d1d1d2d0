import QtQuick
import QtTest
import Vidora

// The smaller parts of the window.
TestCase {
    id: test
    name: "Parts"
    when: windowShown
    width: 390
    height: 600
    visible: true

    Component { id: indexes; SectionIndex { height: 300 } }
    Component { id: fields; SearchField { width: 300 } }
    Component { id: alerts; AlertPanel {} }
    Component { id: bars; UpdateBar { width: 300 } }
    Component { id: pass; QtObject { property bool running; property int done; property int wanted; property bool offline: false; property string state } }
    Component { id: spies; SignalSpy {} }

    function spyOn(target, signalName) { return createTemporaryObject(spies, test, {target: target, signalName: signalName}) }

    function test_lettersLeadToSections() {
        const index = createTemporaryObject(indexes, test, {titles: ["A", "B", "Č", "Đ"]})
        const chosen = spyOn(index, "chosen")
        const top = (300 - 4 * index.letterHeight) / 2
        const letter = at => top + (at + 0.5) * index.letterHeight
        mousePress(index, 10, letter(1))
        mouseMove(index, 10, letter(2))
        mouseMove(index, 10, 299)
        mouseRelease(index, 10, 299)
        compare(chosen.signalArguments.map(call => call[0]), [1, 2, 3])
        index.titles = ["A"]
        verify(!index.visible, "one letter leads nowhere")
        const many = createTemporaryObject(indexes, test, {titles: Array.from({length: 120}, (_, i) => String(i))})
        verify(many.letterHeight * 120 <= 300)
        mouseClick(many, 10, 299)
    }

    function test_searchFieldClearsThenLeaves() {
        const field = createTemporaryObject(fields, test)
        const finished = spyOn(field, "finished")
        field.focusField()
        for (const key of "lipa")
            keyClick(key)
        compare(field.text, "lipa")
        keyClick(Qt.Key_Escape)
        compare(field.text, "")
        compare(finished.count, 0)
        keyClick(Qt.Key_Escape)
        keyClick(Qt.Key_Down)
        compare(finished.count, 2)
        field.text = "x".repeat(10000)
        verify(field.text.length <= 10000 && field.width === 300)
    }

    readonly property var remove: ({title: "Remove", destructive: true, cancels: false})
    readonly property var cancel: ({title: "Cancel", destructive: false, cancels: true})
    readonly property var ok: ({title: "OK", destructive: false, cancels: false})

    function test_alertIsAnswered_data() {
        return [{tag: "Escape cancels", actions: [remove, cancel], key: Qt.Key_Escape, answer: [1]},
                {tag: "Return is harmless", actions: [cancel, remove], key: Qt.Key_Return, answer: [0]},
                {tag: "Escape on one", actions: [ok], key: Qt.Key_Escape, answer: [0]},
                {tag: "Return on one", actions: [ok], key: Qt.Key_Return, answer: [0]},
                {tag: "Escape without a way out", actions: [ok, remove], key: Qt.Key_Escape, answer: []}]
    }
    function test_alertIsAnswered(data) {
        const panel = createTemporaryObject(alerts, test)
        const answered = spyOn(panel, "answered")
        panel.show({title: "T <img src='http://h.example/'>", message: "m ".repeat(5000), actions: data.actions})
        tryCompare(panel, "opened", true)
        verify(panel.height < test.height)
        mouseClick(test, 5, 5)
        compare(answered.count, 0, "a tap beside it is no answer")
        keyClick(data.key)
        compare(answered.signalArguments.map(call => call[0]), data.answer)
        compare(panel.visible && data.answer.length > 0, false)
    }

    function test_secondAlertHasItsFocusToo() {
        const panel = createTemporaryObject(alerts, test)
        panel.answered.connect(() => { if (panel.alert.message === "first") panel.show({title: "T", message: "second", actions: [ok]}) })
        panel.show({title: "T", message: "first", actions: [ok]})
        tryCompare(panel, "opened", true)
        keyClick(Qt.Key_Return)
        tryVerify(() => panel.opened && panel.alert.message === "second")
        tryVerify(() => test.Window.window.activeFocusItem?.visualFocus === true)
    }

    function test_alertStacksLongButtons() {
        const panel = createTemporaryObject(alerts, test)
        panel.show({title: "T", message: "m", actions: [{title: "Wiederkehrenden Alarm entfernen", destructive: true}, cancel]})
        tryCompare(panel, "opened", true)
        const buttons = Array.from(panel.contentItem.children[1].children).filter(item => item.clicked !== undefined)
        compare(buttons.length, 2)
        tryVerify(() => buttons[1].y > buttons[0].y)
        keyClick(Qt.Key_Escape)
    }

    function test_updateBarCounts() {
        const progress = createTemporaryObject(pass, test, {running: false, done: 12, wanted: 40})
        const bar = createTemporaryObject(bars, test, {progress: progress})
        compare(bar.implicitHeight, 0)
        progress.running = true
        tryVerify(() => bar.implicitHeight > 15)
        compare(bar.Accessible.name, "12 of 40 channels")
        progress.running = false
        tryCompare(bar, "implicitHeight", 0)
        progress.state = "Updated 5 min ago"
        compare(bar.implicitHeight, 0, "that is said elsewhere")
        progress.offline = true
        tryVerify(() => bar.implicitHeight > 15)
        compare(bar.Accessible.name, "No connection. Updated 5 min ago")
        progress.offline = false
        tryCompare(bar, "implicitHeight", 0)
    }
}
