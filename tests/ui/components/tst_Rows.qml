import QtQuick
import QtTest
import Vidora

// Rows of a table under mouse and keys.
TestCase {
    id: test
    name: "Rows"
    when: windowShown
    width: 390
    height: 600
    visible: true

    property FakeScreen screen: null
    property TableScreen table: null

    Component { id: screens; FakeScreen {} }
    Component { id: tables; TableScreen { anchors.fill: parent } }

    function open(properties = {}) {
        table = createTemporaryObject(tables, test, Object.assign({screen: screen}, properties))
        table.forceActiveFocus()
        tryVerify(() => list().count === screen.rows.count && (list().count === 0 || list().itemAtIndex(0)))
    }
    function init() { screen = createTemporaryObject(screens, test) }

    function all(item, wanted, found = []) {
        for (let i = 0; i < item.children.length; ++i) {
            if (wanted(item.children[i]))
                found.push(item.children[i])
            all(item.children[i], wanted, found)
        }
        return found
    }
    function list() { return all(table, item => item instanceof ListView)[0] }
    function rowNamed(text) { return all(table, item => item instanceof TableRow && item.plain === text)[0] }
    function buttonNamed(text) { return all(table, item => item.text === text && item.clicked !== undefined)[0] }
    function drag(row, by) {
        const y = row.mapToItem(table, 0, 20).y // the row moves
        mousePress(table, 200, y)
        for (let step = 1; step <= 10; ++step)
            mouseMove(table, 200 + by * step / 10, y)
        mouseRelease(table, 200 + by, y)
        wait(250)
    }

    function test_swipeUncoversActions_data() {
        return [{tag: "left to right", mirrored: false, side: -1}, {tag: "right to left", mirrored: true, side: 1}]
    }
    function test_swipeUncoversActions(data) {
        screen.add(0, ["one", "two"], {swipeable: true})
        screen.actions = [{title: "First"}, {title: "Second", destructive: true, colour: "favouriteOrange"}]
        open()
        table.LayoutMirroring.enabled = data.mirrored
        table.LayoutMirroring.childrenInherit = true
        const one = rowNamed("one")
        drag(one, 30 * data.side)
        compare(one.parent.x, 0, "a short drag springs back")
        drag(one, -120 * data.side)
        compare(one.parent.x, 0, "nothing lies on the other side")
        drag(one, 120 * data.side)
        verify(one.parent.x * data.side >= 2 * 72)
        drag(rowNamed("two"), 120 * data.side)
        compare(one.parent.x, 0, "only one row is open")
        mouseClick(rowNamed("two"), 200, 20)
        wait(250)
        compare(rowNamed("two").parent.x, 0)
        compare(screen.calls, [], "a touch on an open row closes it")

        drag(one, 120 * data.side)
        mouseClick(all(table, item => item.text === "Second" && item.visible)[0])
        compare(screen.calls, ["swipe 0 1"])
    }

    function test_rowWithoutActionsStays() {
        screen.add(0, ["one"])
        open()
        drag(rowNamed("one"), -150)
        compare(rowNamed("one").parent.x, 0)
        screen.calls = []
        mouseClick(rowNamed("one"))
        compare(screen.calls, ["select 0"])
    }

    function test_menuOffersActions_data() {
        return [{tag: "right click", act: () => mouseClick(rowNamed("two"), 60, 20, Qt.RightButton)},
                {tag: "long press", act: () => { mousePress(rowNamed("two"), 60, 20); wait(900); mouseRelease(rowNamed("two"), 60, 20) }},
                {tag: "menu key", act: () => { list().currentIndex = 1; keyClick(Qt.Key_Menu) }},
                {tag: "shift and F10", act: () => { list().currentIndex = 1; keyClick(Qt.Key_F10, Qt.ShiftModifier) }}]
    }
    function test_menuOffersActions(data) {
        screen.add(0, ["one", "two"], {swipeable: true})
        screen.actions = [{title: "First"}, {title: "Second"}]
        open()
        data.act()
        const menu = table.menu
        tryCompare(menu, "opened", true)
        compare(menu.count, 2)
        keyClick(Qt.Key_Down)
        keyClick(Qt.Key_Down)
        keyClick(Qt.Key_Return)
        tryCompare(menu, "opened", false)
        compare(screen.calls, ["swipe 1 1"])
    }

    function test_editorByMouseAndKeys() {
        screen.add(0, ["one", "two", "three"], {kind: "channel", deletable: true, movable: true, selectable: false})
        open()
        list().currentIndex = 0
        keyClick(Qt.Key_Down, Qt.AltModifier)
        compare(screen.calls, ["move 0 1"])
        tryCompare(list(), "currentIndex", 1, 1000, "the row stays chosen where it goes")
        keyClick(Qt.Key_Delete)
        compare(screen.calls[1], "remove 1")

        const handle = all(rowNamed("two"), item => item instanceof ReorderHandle)[0]
        mousePress(handle)
        mouseMove(handle, 22, 40)
        mouseMove(handle, 22, 70)
        mouseRelease(handle, 22, 70)
        compare(screen.calls[2], "move 0 1")
        drag(rowNamed("three"), -150)
        mouseClick(buttonNamed("Delete"))
        compare(screen.calls[3], "remove 0")
        mouseClick(all(rowNamed("two"), item => item.symbol === "delete")[0])
        compare(screen.rows.count, 0)
    }

    function test_rowsAreMirrored() {
        screen.add(0, ["one"], {kind: "channel", deletable: true, movable: true, icon: "/none.png"})
        open()
        const parts = () => [all(rowNamed("one"), item => item.symbol === "delete")[0],
                             all(rowNamed("one"), item => item instanceof ChannelIcon)[0],
                             all(rowNamed("one"), item => item instanceof ReorderHandle)[0]].map(item => item.mapToItem(table, 0, 0).x)
        const [remove, picture, handle] = parts()
        verify(remove < picture && picture < handle)
        table.LayoutMirroring.enabled = true
        table.LayoutMirroring.childrenInherit = true
        const mirrored = parts()
        verify(mirrored[0] > mirrored[1] && mirrored[1] > mirrored[2])
    }

    function test_rowsInTheMarginAreNotInSight() {
        screen.add(0, Array.from({length: 60}, (_, i) => "row " + i))
        open()
        tryVerify(() => screen.lastInSight > 0)
        compare(screen.lastInSight, list().indexAt(100, list().contentY + list().height - 1))
        verify(list().itemAtIndex(screen.lastInSight + 2), "the list holds more of them ready")
    }

    function test_whatWasDoneCanBeUndone() {
        screen.add(0, ["one"])
        open()
        verify(!buttonNamed("Undo").parent.visible)
        screen.undoText = "two removed"
        tryVerify(() => buttonNamed("Undo").parent.opacity === 1)
        mouseClick(buttonNamed("Undo"))
        compare(screen.calls, ["undo"])
    }

    function test_menuHasWhatTheButtonOfTheRowDoes() {
        screen.add(0, ["one"], {kind: "header", accessory: "play"})
        open()
        list().currentIndex = 0
        keyClick(Qt.Key_Menu)
        tryCompare(table.menu, "opened", true)
        keyClick(Qt.Key_Down)
        keyClick(Qt.Key_Return)
        compare(screen.calls, ["accessory 0"])
    }

    function test_aDragBeyondTheEdgeScrolls() {
        screen.add(0, Array.from({length: 40}, (_, i) => "row " + i), {kind: "channel", deletable: true, movable: true, selectable: false})
        open()
        const handle = all(rowNamed("row 2"), item => item instanceof ReorderHandle)[0]
        const x = handle.mapToItem(table, 22, 0).x
        mousePress(handle)
        mouseMove(table, x, test.height - 4)
        tryVerify(() => list().contentY > 300, 5000)
        mouseRelease(table, x, test.height - 4)
        verify(screen.calls.length > 0)
    }

    function test_tabReachesTheListThenTheBar() {
        screen.add(0, ["one", "two"], {kind: "channel", deletable: true, movable: true, selectable: false, accessory: "play"})
        screen.barButtons = [{title: "Add", symbol: "add", busy: false}]
        screen.searchable = true
        open()
        verify(list().activeFocus)
        keyClick(Qt.Key_Tab)
        verify(all(table, item => item.placeholderText !== undefined && item.activeFocus)[0])
        keyClick(Qt.Key_Tab)
        verify(all(table, item => item.text === "Add" && item.activeFocus === true)[0])
        keyClick(Qt.Key_Tab)
        verify(list().activeFocus, "round again, and no row between")
    }

    function test_keysLeadThroughTheTable() {
        for (let section = 0; section < 10; ++section)
            screen.add(section, ["a", "b", "c", "d", "e", "f"].map(letter => letter + section), {sectionTitle: "S" + section})
        open()
        keyClick(Qt.Key_Down)
        keyClick(Qt.Key_Down)
        keyClick(Qt.Key_Return)
        keyClick(Qt.Key_End)
        keyClick(Qt.Key_Space)
        compare(screen.calls, ["select 1", "select 59"])
        keyClick(Qt.Key_PageUp)
        verify(list().currentIndex < 59 && list().currentIndex > 40)
        keyClick(Qt.Key_Home)
        compare(list().currentIndex, 0)
        tryVerify(() => list().contentY <= list().originY)
    }

    function test_pullRefreshes() {
        screen.add(0, ["one", "two"])
        open()
        drag(rowNamed("one"), 0)
        const pull = by => {
            mousePress(list(), 200, 60)
            for (let step = 1; step <= 12; ++step)
                mouseMove(list(), 200, 60 + by * step / 12)
            mouseRelease(list(), 200, 60 + by)
            wait(50)
        }
        screen.calls = []
        pull(300)
        compare(screen.calls, [], "this screen can't be refreshed")
        screen.refreshable = true
        pull(60)
        compare(screen.calls, [], "not far enough")
        tryVerify(() => !list().moving)
        pull(300)
        compare(screen.calls, ["refresh"])
    }

    function test_targetsAreLargeEnough() {
        screen.add(0, ["one"], {kind: "channel", deletable: true, movable: true, accessory: "play"})
        screen.barButtons = [{title: "Add", symbol: "add", busy: false}, {title: "Text", symbol: "", busy: false}]
        screen.root = false
        screen.searchable = true
        screen.searchText = "x"
        open()
        const small = all(table, item => item.visible && item.clicked !== undefined
                                         && (item.width < Theme.touchTarget || item.height < Theme.touchTarget))
        compare(small.map(item => item.text), [])
        const nameless = all(table, item => item.visible && item.toggled !== undefined && !item.Accessible.name)
        compare(nameless.map(item => String(item)), [])
    }

    function test_emptyTableSaysWhatToDo() {
        screen.placeholder = "Nothing <b>here</b>"
        screen.barButtons = [{title: "Trash", symbol: "trash", busy: false}, {title: "Add one", symbol: "add", busy: false}]
        open()
        compare(all(table, item => item.text === screen.placeholder && item.textFormat === Text.PlainText).length, 1)
        mouseClick(all(table, item => item.text === "Add one" && item.prominent === true)[0])
        compare(screen.calls, ["button 1"])
    }
}
