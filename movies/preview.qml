import QtQuick
import "components"

// The console's small live copy of the draw stage. It announces itself with "asload", waits
// for getIsOk, asks for the template with "startskin", then draws what the console pushes:
// background, the objects in their short forms, and the draw area with its font.
Item {
    id: root
    width: 400
    height: 300
    signal fsCommand(string command, string args)

    property bool scaleGiven: false
    property real scaleX: 1
    property real scaleY: 1

    function send(command, args) { fsCommand(command, args === undefined ? "" : String(args)) }

    function setVariable(name, value) {
        var v = value === undefined || value === null ? "" : String(value)
        switch (name) {
        case "getIsOk": if (P.flag(v)) send("startskin"); break
        case "ClsPage": page.clear(); break
        case "setAsBgColor": page.setBackground(P.fields(v)); break
        case "setAsBgImg": page.setBackgroundImage(P.fields(v)); break
        case "vbSetScale":
            var f = P.fields(v)
            scaleGiven = true
            scaleX = Math.max(1, P.num(P.field(f, 0), 100)) / 100
            // The console sends one figure for both axes.
            scaleY = f.length > 1 ? Math.max(1, P.num(P.field(f, 1), 100)) / 100 : scaleX
            break
        case "vbAddTxt": case "vbAddImg": case "vbAddStxt": case "vbAddSwf": case "vbAddJpBox":
            page.add(name, v)
            break
        case "delObj": page.remove(v); break
        }
    }

    // A closure handed to Qt.callLater can outlive the movie's context while it loads; a timer
    // belongs to the movie and greets from the event loop.
    Timer { running: true; interval: 0; onTriggered: root.send("asload") }

    function objectNames() { return Object.keys(page.objects) }
    function objectText(name) {
        var o = page.objects[name]
        if (!o) return ""
        return o.shown !== undefined ? o.shown : P.fillVariables(o.rawText, page.vars)
    }
    function stageScale() { return scaleGiven ? [scaleX, scaleY] : [box.fit, box.fit] }

    Rectangle { anchors.fill: parent; color: "#1E0306" }

    Item {
        id: box
        width: page.width
        height: page.height
        readonly property real fit: Math.min(root.width / page.width, root.height / page.height)
        x: root.scaleGiven ? 0 : (root.width - page.width * fit) / 2
        y: root.scaleGiven ? 0 : (root.height - page.height * fit) / 2
        transform: Scale {
            xScale: root.scaleGiven ? root.scaleX : box.fit
            yScale: root.scaleGiven ? root.scaleY : box.fit
        }
        // The console shows what an award would look like, never the bare "$Name2".
        Page {
            id: page
            preview: true
            festive: true
            vars: ({ award: "一等奖", prize: "笔记本电脑", slots: "10", left: "10" })
        }
    }
}
