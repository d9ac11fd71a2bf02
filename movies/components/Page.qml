pragma ComponentBehavior: Bound
import QtQuick
import "proto.js" as P

// The page every movie draws: the background and the template's objects by name, stacked by
// depth. The draw screen, the console preview and the designer share it.
Item {
    id: page
    property var vars: null       // award variables; null keeps "$Name1"... as typed
    // The draw screen hides a text that names an award variable while no award is loaded,
    // rather than show the audience "$Name2".
    property bool hideUnfilled: false
    property string luckLine                 // the winner line that scr_luckls shows
    property var photos: ({})
    property int luckDelay: 10
    property bool preview: false
    property bool festive: false
    // The stage and the console's preview keep the titles centred; the designer shows every
    // object exactly where it is placed.
    property bool centredTitles: false
    property color bgColor: "#9E1B22"
    property string bgSource
    property var objects: ({})
    readonly property DrawArea drawArea: objects["ssm_vornex"] || null
    signal drawAreaReady(DrawArea area)

    width: 1024
    height: 768

    function setBackground(f) {
        width = Math.max(1, P.num(P.field(f, 0), 1024))
        height = Math.max(1, P.num(P.field(f, 1), 768))
        bgColor = P.colour(P.field(f, 2, "0x9E1B22"))
        if (f.length > 3 && P.field(f, 3) !== "") luckDelay = P.num(P.field(f, 3), 10)
    }

    function setBackgroundImage(f) {
        var path = P.field(f, 0).replace(/\\/g, "/")
        // An empty BgImg leaves only the program folder: no picture.
        bgSource = (path === "" || path.charAt(path.length - 1) === "/") ? "" : P.fileUrl(path)
    }

    function clear() {
        for (var name in objects) objects[name].destroy()
        objects = {}
    }

    function remove(name) {
        if (!objects[name]) return
        objects[name].destroy()
        var copy = objects
        delete copy[name]
        objects = copy
    }

    readonly property var kinds: ({
        "vbAddTxt": textKind, "vbAddStxt": scrollKind, "vbAddImg": imageKind,
        "vbAddSwf": animKind, "vbAddJpBox": areaKind
    })

    // Creates or replaces the object that the command describes; returns it.
    function add(command, value) {
        var f = P.fields(value)
        var kind = kinds[command]
        if (!kind) return null
        var name = command === "vbAddJpBox" ? P.field(f, 0) : P.field(f, 1)
        if (objects[name] && command === "vbAddJpBox") {
            objects[name].apply(f)          // keep the cells of a running draw
            return objects[name]
        }
        remove(name)
        var obj = kind.createObject(layer)
        obj.apply(f)
        var copy = objects
        copy[name] = obj
        objects = copy
        if (command === "vbAddJpBox") drawAreaReady(obj)
        return obj
    }

    Component {
        id: textKind
        TextObject {
            vars: page.vars
            hideUnfilled: page.hideUnfilled
            centreLine: page.centredTitles && (objName === "txt_zbt" || objName === "txt_fbt")
                        ? page.width / 2 : -1
        }
    }
    Component {
        id: scrollKind
        ScrollText {
            vars: page.vars
            hideUnfilled: page.hideUnfilled
            // The winner line of the draw; the console shows a sample in its place.
            useOverride: objName === "scr_luckls" && (!page.preview || rawText === "")
            override: page.preview ? qsTr("恭喜∶中奖名单将在这里滚动显示") : page.luckLine
        }
    }
    Component { id: imageKind; ImageObject {} }
    Component { id: animKind; AnimObject {} }
    Component {
        id: areaKind
        DrawArea { photos: page.photos; luckDelay: page.luckDelay; preview: page.preview }
    }

    Rectangle {
        anchors.fill: parent
        color: page.bgColor
    }
    Image {
        id: background
        anchors.fill: parent
        source: page.bgSource
        asynchronous: true
        fillMode: Image.Stretch
        sourceSize.width: page.width
        sourceSize.height: page.height
    }
    Festive { anchors.fill: parent; visible: page.festive && background.status !== Image.Ready }
    Item { id: layer; anchors.fill: parent }
}
