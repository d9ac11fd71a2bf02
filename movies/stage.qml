import QtQuick
import "components"

// The draw screen's movie. It answers the host's start-up dialogue, draws the template's page,
// rolls and lands the draw, plays the winner parade and carries the on-stage buttons. The host
// decides everything; this file only shows it and reports what the operator does.
Item {
    id: root
    width: 1920
    height: 1080
    signal fsCommand(string command, string args)

    property string scene: "loader"          // loader, draw
    property bool scaleGiven: false
    property real scaleX: 1
    property real scaleY: 1
    property var keys: [0, 0, 0, 0, 0, 0, 0, 0, 0]
    property string buttons: "defulte"
    property var winners: []
    property var pool: []
    property bool pushesIn: false
    property bool loadUserSent: false
    property bool stopSent: false
    property bool playbackOn: false
    property string fingerprint: ""
    property bool drawnOnce: false           // the idle hint goes with the first draw

    // A reply to a variable the host has just set goes out at once.
    function send(command, args) { fsCommand(command, args === undefined ? "" : String(args)) }

    // What the operator or the movie itself starts (a click, a key, a landing, a parade step)
    // reaches the host from the event loop, in order: the host may open a dialog or change the
    // page in reply, and must never destroy the item whose handler is still running.
    property var outbox: []
    function report(command, args) {
        outbox.push([command, args === undefined ? "" : String(args)])
        Qt.callLater(deliverReports) // qmllint disable type
    }
    function deliverReports() {
        // One at a time: a dialog the host opens runs a nested loop that may deliver the rest.
        while (outbox.length > 0) {
            var next = outbox.shift()
            fsCommand(next[0], next[1])
        }
    }

    function setVariable(name, value) {
        var v = value === undefined || value === null ? "" : String(value)
        var handler = handlers[name]
        if (handler) handler(v)
    }

    readonly property var handlers: ({
        "gotoPlay2": function (v) { enterDraw() },
        "ClsPage": function (v) { page.clear() },
        "setAsBgColor": function (v) { page.setBackground(P.fields(v)); pushesIn = true },
        "setAsBgImg": function (v) { page.setBackgroundImage(P.fields(v)) },
        "setAsKeys": function (v) { keys = P.fields(v).map(function (k) { return P.num(k, 0) }) },
        "vbSetScale": function (v) { setScale(P.fields(v)) },
        "vbAddTxt": function (v) { page.add("vbAddTxt", v) },
        "vbAddImg": function (v) { page.add("vbAddImg", v) },
        "vbAddStxt": function (v) { page.add("vbAddStxt", v) },
        "vbAddSwf": function (v) { page.add("vbAddSwf", v) },
        "vbAddJpBox": function (v) { page.add("vbAddJpBox", v) },
        "loadAllUserPics": function (v) { loadPhotos(P.fields(v)) },
        "vbShowBlock": function (v) { if (!P.flag(v) && page.drawArea) page.drawArea.clear() },
        "vbLoadJx": function (v) { loadAward(P.fields(v)) },
        "updateLuckLst": function (v) { page.luckLine = v },
        "changBtn": function (v) { changeButtons(v) },
        "vbndluck": function (v) { winners = P.winners(P.fields(v)) },
        "vbLoadBlock": function (v) { loadBlock(P.fields(v)) },
        "vbPushLst": function (v) { pushNames(P.fields(v)) },
        "vbLuckPlay": function (v) { startParade(P.fields(v), true) },
        "vbLuckPlay1": function (v) { startParade(P.fields(v), false) },
        "vbStartScroll": function (v) { startScroll(v.indexOf("yes") === 0) },
        "vbCallPlay": function (v) { callPlay(v) },
        "vbFingerprint": function (v) { fingerprint = v },
        "vbCallAsClear": function (v) { if (P.flag(v)) pressButton("btnClear") },
        "vbCallMusic": function (v) {
            pressButton(P.flag(v) ? "btnSoundOn" : "btnSoundOff")
        },
        "vbCallScreen": function (v) {
            pressButton(P.flag(v) ? "btnScreenF" : "btnScreenN")
        }
    })

    // --- start-up -------------------------------------------------------------------------

    Component.onCompleted: report("loadok")

    function enterDraw() {
        if (scene === "draw") return
        scene = "draw"
        send("asok")
        readiness.restart()
    }

    // loaduserok goes out once the host's pushes of the asok reply are in.
    Timer {
        id: readiness
        interval: 30
        repeat: true
        property int waited: 0
        onTriggered: {
            waited += interval
            if ((root.pushesIn && photoIndex.ready) || waited > 4000) {
                stop()
                if (!root.loadUserSent) { root.loadUserSent = true; root.report("loaduserok", "ok") }
            }
        }
    }

    QtObject {
        id: photoIndex
        property bool ready: true
    }

    // "folder|path$ID|path$ID..." -> participant id -> absolute path.
    function loadPhotos(f) {
        photoIndex.ready = false
        var folder = P.field(f, 0).replace(/\\/g, "/")
        var map = {}
        for (var i = 1; i < f.length; ++i) {
            if (!f[i]) continue
            var at = f[i].lastIndexOf("$")
            var path = (at < 0 ? f[i] : f[i].substring(0, at)).replace(/\\/g, "/")
            var id = at < 0 ? path : f[i].substring(at + 1)
            map[id] = path.charAt(0) === "/" ? path : folder + path
        }
        page.photos = map
        photoIndex.ready = true
    }

    function setScale(f) {
        scaleGiven = true
        scaleX = Math.max(1, P.num(P.field(f, 0), 100)) / 100
        // The console sends one figure for both axes.
        scaleY = f.length > 1 ? Math.max(1, P.num(P.field(f, 1), 100)) / 100 : scaleX
    }

    // --- award and draw -----------------------------------------------------------------

    function loadAward(f) {
        page.vars = { award: P.field(f, 0), slots: P.field(f, 1), group: P.field(f, 2),
                      left: P.field(f, 3), prize: P.field(f, 4), picture: P.field(f, 5) }
    }

    function loadBlock(f) {
        // A template without its draw area still draws, in the middle of the page: the host
        // waits for blocksetok and must get it.
        if (!page.drawArea) {
            // qmllint disable type
            page.add("vbAddJpBox", ["ssm_vornex", Math.round(page.width * 0.1),
                                    Math.round(page.height * 0.22), Math.round(page.width * 0.8),
                                    Math.round(page.height * 0.62), 500].join("|"))
            // qmllint enable type
        }
        var area = page.drawArea
        area.winners = winners
        area.loadBlock(f)
        send("blocksetok", "ok")
    }

    function pushNames(f) {
        pool = P.winners(f)
        if (page.drawArea) page.drawArea.push(pool)
    }

    function changeButtons(v) {
        buttons = v
        var area = page.drawArea
        if (v === "start") {
            stopSent = false
            drawnOnce = true
            if (area) { area.winners = winners; area.startRolling() }
        } else if (v === "stop") {
            if (area) area.stopRolling()
            else landed()
        } else if (v === "clear") {
            if (area) area.clear()
        }
        if (v !== "luckplay" && parade.active) parade.stop()
    }

    // With no award to show, the parade asked for ends at once.
    function startScroll(on) {
        if (on && !parade.active && buttons === "luckplay") endParade()
        else parade.setScrolling(on)
    }

    // stoplucksub goes out once per draw, whatever stops it.
    function landed() {
        if (stopSent) return
        stopSent = true
        report("stoplucksub")
    }

    Connections {
        target: page.drawArea
        ignoreUnknownSignals: true
        function onAllLanded() { root.landed() }
    }

    // --- parade -------------------------------------------------------------------------

    function startParade(f, first) {
        playbackOn = true
        parade.show(f, first)
    }

    function endParade() {
        parade.stop()
        playbackOn = false
        buttons = "defulte"
        report("luckplaystop")
    }

    function callPlay(v) {
        if (P.flag(v) || v === "") pressButton("btnPlayLuck")
        else if (playbackOn) endParade()
    }

    // --- buttons and keys ---------------------------------------------------------------

    function pressButton(name) { buttonBar.press(name) }

    function onButton(name) {
        if (name === "btnPlayLuck" && playbackOn) { endParade(); return }
        report("btnclick", name)
    }

    readonly property bool landing: page.drawArea !== null && page.drawArea.phase === "landing"

    // Start and Stop by their hotkeys are the stage's own; every key is reported.
    function keyDown(code) {
        var c = P.num(code, -1)
        wake()
        if (scene === "draw" && !playbackOn) {
            if (buttons === "start" && c === keys[1]) report("btnclick", "btnStop")
            else if (buttons !== "start" && !landing && c === keys[0] && c !== 0)
                report("btnclick", "btnStart")
        }
        report("callvbkeys", c)
    }

    function wake() {
        buttonBar.awake = true
        restTimer.restart()
    }

    // Names of the buttons on show, for the host's tests and tools.
    function visibleButtons() { return buttonBar.visibleNames() }
    function cellNames() { return page.drawArea ? page.drawArea.cellNames() : [] }
    function blockShown() { return page.drawArea ? page.drawArea.shown() : false }
    function cellPhotos() { return page.drawArea ? page.drawArea.cellPhotos() : [] }
    function paradeOffset() { return parade.offset() }
    readonly property bool barAwake: buttonBar.awake
    function stageScale() {
        return scaleGiven ? [scaleX, scaleY] : [stageBox.fit, stageBox.fit]
    }
    // Geometry and state of one page object, for the host's tests and tools.
    function objectInfo(name) {
        var o = page.objects[name]
        if (!o) return {}
        var info = { x: o.x, y: o.y, width: o.width, height: o.height, opacity: o.opacity,
                     z: o.z }
        if (o.position) { var p = o.position(); info.textX = p[0]; info.textY = p[1] }
        if (o.failed !== undefined) info.failed = o.failed
        if (o.ready !== undefined) info.ready = o.ready
        return info
    }
    function objectNames() { return Object.keys(page.objects) }
    function objectText(name) {
        var o = page.objects[name]
        if (!o || !o.visible) return ""
        return o.shown !== undefined ? o.shown : P.fillVariables(o.rawText, page.vars)
    }

    // --- the picture --------------------------------------------------------------------

    Rectangle { anchors.fill: parent; color: "black" }

    Item {
        id: stageBox
        width: page.width
        height: page.height
        readonly property real fit: Math.min(root.width / page.width, root.height / page.height)
        x: root.scaleGiven ? 0 : (root.width - page.width * fit) / 2
        y: root.scaleGiven ? 0 : (root.height - page.height * fit) / 2
        transform: Scale {
            xScale: root.scaleGiven ? root.scaleX : stageBox.fit
            yScale: root.scaleGiven ? root.scaleY : stageBox.fit
        }
        visible: root.scene === "draw"

        Page { id: page; festive: true; hideUnfilled: true; centredTitles: true }
        Rectangle {     // the page dims behind the parade
            anchors.fill: page
            z: 999
            color: "#C8140206"
            opacity: parade.active ? 1 : 0
            visible: opacity > 0
            Behavior on opacity { NumberAnimation { duration: 400 } }
        }
        Parade {
            id: parade
            photos: page.photos
            z: 1000
            onAwardPassed: root.report("callLoadPlay")
            onFinished: root.endParade()
        }
    }

    LoadingScene { anchors.fill: parent; visible: root.scene === "loader" }

    // The draw's commitment: the hall can note it before the first press and check the secret
    // that the audit log reveals when the draw closes.
    Text {
        objectName: "fingerprint"
        visible: root.scene === "draw" && root.fingerprint !== ""
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: 10
        text: qsTr("指纹 %1").arg(root.fingerprint)
        color: "#99FFFFFF"
        font.pixelSize: 14
        font.family: "monospace"
    }

    ButtonBar {
        id: buttonBar
        visible: root.scene === "draw"
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 18
        state_: root.buttons
        landing: root.landing
        onPressed: function (name) { root.onButton(name) }
        // The bar stays while the pointer is on it, and rests a while after it leaves.
        onPointerOverChanged: root.wake()
    }

    // Until the first draw, a quiet line says which keys run it.
    readonly property string keyHint: P.keyHint(keys[0], keys[1])
    function keyHintShown() {
        return hint.visible ? keyHint : ""
    }
    Rectangle {
        id: hint
        visible: root.scene === "draw" && !root.drawnOnce && !root.playbackOn
                 && root.buttons !== "start" && root.keyHint !== ""
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: buttonBar.top
        anchors.bottomMargin: 14
        width: hintText.implicitWidth + 36
        height: hintText.implicitHeight + 12
        radius: height / 2
        color: "#73000000"
        Text {
            id: hintText
            anchors.centerIn: parent
            text: root.keyHint
            color: "#FFF4D6"
            opacity: 0.85
            font.pixelSize: 20
            font.family: "黑体"
        }
    }

    // The bar rests out of sight while the mouse is still.
    property int restMs: 2500
    Timer { id: restTimer; interval: root.restMs; running: true
            onTriggered: if (!buttonBar.pointerOver) buttonBar.awake = false }
    // Qt Quick repeats hover events for a still mouse while the scene animates: only a real
    // move wakes the bar.
    HoverHandler {
        property point last: Qt.point(-1, -1)
        // The pointer goes with the bar, so nothing stands on the projected picture.
        cursorShape: buttonBar.awake ? Qt.ArrowCursor : Qt.BlankCursor
        onPointChanged: {
            var p = point.position
            if (Math.abs(p.x - last.x) + Math.abs(p.y - last.y) < 2) return
            last = p
            root.wake()
        }
    }
}
