pragma ComponentBehavior: Bound
import QtQuick
import "components"

// The designer's stage: the template's page at design size, where the operator picks, drags and
// resizes objects. The host owns the data; the movie reports each gesture (selObj, ObjChang,
// doubleObjClick) and shows the draw-area and playback previews on request.
Item {
    id: root
    width: 1024
    height: 768
    signal fsCommand(string command, string args)

    property real zoom: 1
    property string mode: "design"          // design, box (draw-area preview), play (playback)
    property string selectedName
    readonly property var selected: selectedName !== "" && page.objects[selectedName]
                                    ? page.objects[selectedName] : null
    property var gesture: null              // the drag or resize under way
    property real guideX: -1                // snap guides in page pixels, -1 when none
    property real guideY: -1
    readonly property real snapReach: 6 / zoom

    function send(command, args) { fsCommand(command, args === undefined ? "" : String(args)) }

    function setVariable(name, value) {
        var v = value === undefined || value === null ? "" : String(value)
        switch (name) {
        case "ClsPage": page.clear(); selectedName = ""; break
        case "setAsBgColor": page.setBackground(P.fields(v)); break
        case "setAsBgImg": page.setBackgroundImage(P.fields(v)); break
        case "vbAddTxt": case "vbAddImg": case "vbAddStxt": case "vbAddSwf": case "vbAddJpBox":
            addObject(name, v)
            break
        case "delObj": removeObject(v); break
        case "selMcByName": select(P.field(P.fields(v), 0)); break
        case "selObj": if (v === "Null" || v === "") select(""); break
        case "resetAsDepth": swapDepth(P.fields(v)); break
        case "autoSize": zoom = Math.max(5, P.num(v, 100)) / 100; break
        case "vbLuckDesign": showDesign(); break
        case "vbLuckBox": showDrawAreaPreview(P.fields(v)); break
        case "vbLuckPlay": showPlaybackPreview(P.fields(v)); break
        case "vbStartScroll": parade.setScrolling(v.indexOf("yes") === 0); break
        }
    }

    // Announced from the event loop, once the host listens; a movie the host has already
    // replaced (a widget moved into another window builds its movie anew) stays silent.
    Timer { interval: 0; running: true; onTriggered: root.send("loadok") }

    // Geometry of one page object, for the host's tests and tools.
    function objectInfo(name) {
        var o = page.objects[name]
        return o ? { x: o.x, y: o.y, width: o.width, height: o.height, z: o.z } : {}
    }
    function objectNames() { return Object.keys(page.objects) }

    // --- objects --------------------------------------------------------------------------

    function addObject(command, value) {
        var f = P.fields(value)
        var obj = page.add(command, value)
        if (obj && command !== "vbAddJpBox" && P.flag(P.field(f, 0))) select(obj.objName)
    }

    function removeObject(name) {
        if (name === selectedName) select("")
        page.remove(name)
    }

    function swapDepth(f) {
        var a = page.objects[P.field(f, 0)], b = page.objects[P.field(f, 1)]
        if (!a || !b) return     // a hidden neighbour is not on the page: nothing to swap
        var z = a.z
        a.z = b.z
        b.z = z
    }

    function kindOf(name) { return String(name).substring(0, 3) }

    function geometry(obj) {
        return [Math.round(obj.x), Math.round(obj.y), Math.round(obj.width),
                Math.round(obj.height)]
    }

    function select(name) {
        selectedName = name && page.objects[name] ? name : ""
        var obj = selected
        send("selObj", obj ? [selectedName].concat(geometry(obj)).concat([obj.z]).join("|") : "")
    }

    // The topmost object under a page point.
    function objectAt(px, py) {
        var best = null
        for (var name in page.objects) {
            var o = page.objects[name]
            if (px < o.x || py < o.y || px > o.x + o.width || py > o.y + o.height) continue
            if (!best || o.z >= best.z) best = o
        }
        return best
    }

    // --- dragging and resizing ------------------------------------------------------------

    function begin(obj, px, py, edges) {
        gesture = { obj: obj, px: px, py: py, x: obj.x, y: obj.y, w: obj.width, h: obj.height,
                    edges: edges, moved: false }
    }

    // The nearest target within reach of any of the candidates: {at, shift} or null.
    function nearest(candidates, targets) {
        var best = null
        for (var i = 0; i < candidates.length; ++i) {
            for (var j = 0; j < targets.length; ++j) {
                var d = targets[j] - candidates[i]
                if (Math.abs(d) <= snapReach && (!best || Math.abs(d) < Math.abs(best.shift)))
                    best = { at: targets[j], shift: d }
            }
        }
        return best
    }

    function snapTargets(moving, horizontal) {
        var side = horizontal ? page.width : page.height
        var t = [0, side / 2, side]
        for (var name in page.objects) {
            var o = page.objects[name]
            if (o === moving) continue
            t.push(horizontal ? o.x : o.y)
            t.push(horizontal ? o.x + o.width : o.y + o.height)
        }
        return t
    }

    function dragTo(px, py) {
        var g = gesture
        if (!g) return
        var dx = px - g.px, dy = py - g.py
        if (!g.moved && Math.abs(dx) < 1 && Math.abs(dy) < 1) return
        g.moved = true
        if (g.edges) { resizeTo(g, dx, dy); return }
        var nx = g.x + dx, ny = g.y + dy
        var w = g.obj.width, h = g.obj.height
        var sx = nearest([nx, nx + w / 2, nx + w], snapTargets(g.obj, true))
        var sy = nearest([ny, ny + h / 2, ny + h], snapTargets(g.obj, false))
        guideX = sx ? sx.at : -1
        guideY = sy ? sy.at : -1
        g.obj.x = Math.round(nx + (sx ? sx.shift : 0))
        g.obj.y = Math.round(ny + (sy ? sy.shift : 0))
        report("", g.obj)
    }

    function resizeTo(g, dx, dy) {
        var e = g.edges
        var x = g.x, y = g.y, w = g.w, h = g.h
        if (e.indexOf("l") >= 0) { x = Math.min(g.x + g.w - 8, g.x + dx); w = g.w + g.x - x }
        if (e.indexOf("r") >= 0) w = Math.max(8, g.w + dx)
        if (e.indexOf("t") >= 0) { y = Math.min(g.y + g.h - 8, g.y + dy); h = g.h + g.y - y }
        if (e.indexOf("b") >= 0) h = Math.max(8, g.h + dy)
        var o = g.obj
        o.x = Math.round(x)
        o.y = Math.round(y)
        // Pictures and animations keep their size as boxW/boxH; the others are sized directly.
        if (o.boxW !== undefined) { o.boxW = Math.round(w); o.boxH = Math.round(h) }
        else { o.width = Math.round(w); o.height = Math.round(h) }
    }

    function report(prefix, obj) {
        if (prefix === "") return
        send(prefix, [obj.objName].concat(geometry(obj)).join("|"))
    }

    function finish() {
        var g = gesture
        gesture = null
        guideX = -1
        guideY = -1
        if (g && g.moved) report("ObjChang", g.obj)
    }

    // --- previews -------------------------------------------------------------------------

    function showDesign() {
        mode = "design"
        parade.stop()
        if (page.drawArea) page.drawArea.clear()
    }

    // vbLuckBox: the draw area filled with sample cells in the style being designed.
    function showDrawAreaPreview(f) {
        parade.stop()
        mode = "box"
        var area = page.drawArea
        if (!area) return
        var demoName = P.field(f, 19, qsTr("演示文字")) || qsTr("演示文字")
        // Rearranged into the draw screen's vbLoadBlock: the sample and the cell values, then the
        // style, then the end mark.
        var block = [demoName]
        var i
        for (i = 9; i < 19; ++i) block[block.length] = P.field(f, i)
        for (i = 0; i < 9; ++i) block[block.length] = P.field(f, i)
        block[block.length] = "s"
        area.loadBlock(block)
        area.cellsShown = true
        var demoText = P.field(f, 20)
        for (i = 0; i < area.count; ++i) {
            var cell = area.cellAt(i)
            if (cell) cell.showItem({ name: i % 2 === 1 && demoText !== "" ? demoText : demoName,
                                      id: "" })
        }
    }

    // vbLuckPlay: the winner playback with sample lines.
    function showPlaybackPreview(f) {
        if (page.drawArea) page.drawArea.clear()
        mode = "play"
        var names = ""
        for (var i = 1; i <= 24; ++i) names += qsTr("中奖者%1").arg(i) + "$"
        var play = []
        for (i = 0; i < 34; ++i) play[play.length] = P.field(f, i)
        play[play.length] = qsTr("一等奖  奖品∶演示奖品")
        play[play.length] = "1"
        play[play.length] = names
        play[play.length] = ""
        parade.show(play, true)
    }

    // --- the page -------------------------------------------------------------------------

    Rectangle { anchors.fill: parent; color: "#3A3A40" }

    Item {
        id: canvas
        width: page.width
        height: page.height
        transform: Scale { xScale: root.zoom; yScale: root.zoom }

        Page { id: page; preview: true; vars: null }

        Rectangle {     // the page dims behind the playback preview
            anchors.fill: page
            z: 999
            color: "#C8140206"
            visible: root.mode === "play"
        }
        Parade { id: parade; z: 1000; photos: page.photos }

        MouseArea {
            id: picker
            anchors.fill: page
            z: 1001
            enabled: root.mode === "design"
            onPressed: function (mouse) {
                var obj = root.objectAt(mouse.x, mouse.y)
                root.select(obj ? obj.objName : "")
                if (obj) root.begin(obj, mouse.x, mouse.y, "")
            }
            onPositionChanged: function (mouse) { root.dragTo(mouse.x, mouse.y) }
            onReleased: root.finish()
            onCanceled: root.finish()
            onDoubleClicked: function (mouse) {
                if (root.objectAt(mouse.x, mouse.y)) root.send("doubleObjClick")
            }
        }

        Rectangle {     // snap guides
            z: 1002
            visible: root.guideX >= 0
            x: root.guideX - width / 2
            width: 1.5 / root.zoom
            height: page.height
            color: "#FF2D9CDB"
        }
        Rectangle {
            z: 1002
            visible: root.guideY >= 0
            y: root.guideY - height / 2
            width: page.width
            height: 1.5 / root.zoom
            color: "#FF2D9CDB"
        }

        SelectionFrame {
            z: 1003
            target: root.mode === "design" ? root.selected : null
            zoom: root.zoom
            resizable: root.selected !== null && root.kindOf(root.selectedName) !== "txt"
            onGrabbed: function (edges, px, py) {
                root.begin(root.selected, px, py, edges)
            }
            onDragged: function (px, py) { root.dragTo(px, py) }
            onDropped: root.finish()
        }
    }
}
