pragma ComponentBehavior: Bound
import QtQuick
import "proto.js" as P

// The draw area ssm_vornex (vbAddJpBox). On vbLoadBlock it lays out the batch's cells, sized
// from the sample text, font, padding and spacing and scaled to fill the area; it rolls names
// while the draw runs and, on stop, lands them one after another on the winners.
Item {
    id: area
    property string objName: "ssm_vornex"
    property var photos: ({})
    property int luckDelay: 10
    property bool preview: false         // the console's and designer's still picture
    property var previewFont: null
    property string phase: "idle"        // idle, rolling, landing, landed
    property bool cellsShown: false
    property var winners: []
    property var pool: []
    property int mode: 0
    property var look: ({ sample: qsTr("演示文字") })
    property int count: 0
    property real cellW: 100
    property real cellH: 60
    property real fontPx: 26
    property real pad: 8
    property real photoW: 0
    property real photoH: 0
    property real gapX: 10
    property real gapY: 10
    property int cols: 1
    property int landedCount: 0
    signal allLanded()

    function apply(f) {
        objName = P.field(f, 0)
        x = P.num(P.field(f, 1))
        y = P.num(P.field(f, 2))
        width = Math.max(1, P.num(P.field(f, 3), 400))
        height = Math.max(1, P.num(P.field(f, 4), 300))
        z = P.num(P.field(f, 5))
        if (f.length >= 12) {
            previewFont = { family: P.field(f, 6), color: P.colour(P.field(f, 7)),
                            size: P.num(P.field(f, 8), 26), bold: P.flag(P.field(f, 9)),
                            italic: P.flag(P.field(f, 10)), underline: P.flag(P.field(f, 11)) }
        }
    }

    // The cells' style from vbLoadBlock; answers true when it could be read.
    function loadBlock(f) {
        var end = f.lastIndexOf("s")
        if (end < 9) end = f.length
        var st = P.style(f, end - 9)
        var head = f.slice(0, end - 9)
        var full = head.length >= 11
        look = {
            sample: P.field(f, 0, qsTr("演示文字")) || qsTr("演示文字"),
            family: st.family, color: st.color, size: st.size, opacity: st.opacity,
            bold: st.bold, italic: st.italic, underline: st.underline, align: st.align,
            shadow: st.shadow,
            round: full ? P.field(head, 5) === "round" : true,
            bgColor: full ? P.colour(P.field(head, 6), P.field(head, 7)) : "#EBFFFFFF",
            dotX: full ? P.num(P.field(head, 8), 10) : 10,
            dotY: full ? P.num(P.field(head, 9), 10) : 10,
            padding: full ? P.num(P.field(head, 10), 5) : 5,
            maxW: P.num(P.field(f, 1), 200), maxH: P.num(P.field(f, 2), 200)
        }
        mode = Math.max(0, Math.min(2, P.num(P.field(head, 3), 0)))
        var n = full ? P.num(P.field(head, 4), 0) : winners.length
        layout(Math.max(0, Math.min(500, n)))
        return true
    }

    TextMetrics { id: metrics }

    function measure(text, size) {
        metrics.font.family = look.family || "黑体"
        metrics.font.pixelSize = size
        metrics.font.bold = !!look.bold
        metrics.font.italic = !!look.italic
        metrics.text = text
        return metrics.advanceWidth
    }

    function layout(n) {
        phase = "idle"
        landedCount = 0
        var size = look.size || 26
        var p = look.padding === undefined ? 5 : look.padding
        var textW = measure(look.sample, size) + size * 0.3
        var lineH = size * 1.3
        var pw = Math.max(16, look.maxW || 200), ph = Math.max(16, look.maxH || 200)
        var w, h
        if (mode === 0) { w = textW + 2 * p; h = lineH + 2 * p }
        else if (mode === 1) { w = pw + 2 * p; h = ph + 2 * p }
        else { w = Math.max(pw, textW) + 2 * p; h = ph + lineH + 2.5 * p }
        var dx = look.dotX, dy = look.dotY
        var best = 0, bestCols = 1
        for (var c = 1; c <= Math.max(1, n); ++c) {
            var r = Math.ceil(n / c)
            var gw = c * w + (c - 1) * dx, gh = r * h + (r - 1) * dy
            var s = Math.min(width / gw, height / gh)
            if (s > best * 1.0001) { best = s; bestCols = c }
        }
        // Few winners get bigger cells, so one name fills the hall; many shrink to fit.
        var cap = n <= 1 ? 2.6 : n <= 3 ? 2.2 : n <= 10 ? 1.7 : 1.4
        var scale = Math.min(best, cap)
        cols = bestCols
        cellW = w * scale; cellH = h * scale
        fontPx = size * scale; pad = p * scale
        // Whole pixels, so each photo is drawn exactly at its decoded size.
        photoW = Math.round((mode === 2 ? Math.max(pw, textW) : pw) * scale)
        photoH = Math.round(ph * scale)
        gapX = dx * scale; gapY = dy * scale
        count = 0           // rebuild the cells with the new sizes
        count = n
        if (mode > 0) warmPhotos()
        for (var i = 0; i < cells.count; ++i) cellAt(i).reset()
    }

    // Winners first, then the rest of the roster, decoded ahead at the cells' photo size.
    function warmPhotos() {
        // photoCache is the host's context property, missing when a movie runs on its own.
        if (typeof photoCache === "undefined" || !photoCache) return // qmllint disable unqualified
        var paths = [], seen = {}
        for (var i = 0; i < winners.length; ++i) {
            var own = photos[winners[i].id]
            if (own && !seen[own]) { seen[own] = true; paths.push(own) }
        }
        for (var id in photos) {
            var path = photos[id]
            if (!seen[path]) { seen[path] = true; paths.push(path) }
        }
        photoCache.warm(paths, Math.ceil(photoW), Math.ceil(photoH))
    }

    readonly property int rows: Math.ceil(count / Math.max(1, cols))
    readonly property real gridW: cols * cellW + (cols - 1) * gapX
    readonly property real gridH: rows * cellH + (rows - 1) * gapY

    // Milliseconds between two names while rolling: luckDelay 0 is fastest.
    readonly property int rollInterval: (mode > 0 ? 70 : 40) + Math.max(0, luckDelay) * 11

    // While names roll, photos come only from the decoded cache (see PhotoProvider).
    function decodePhotosOnRequest(on) {
        if (typeof photoCache === "undefined" || !photoCache) return // qmllint disable unqualified
        photoCache.setDecodeOnRequest(on) // qmllint disable unqualified
    }
    onPhaseChanged: decodePhotosOnRequest(phase !== "rolling")
    Component.onDestruction: decodePhotosOnRequest(true)

    function startRolling() {
        cellsShown = true
        phase = "rolling"
        landedCount = 0
        for (var i = 0; i < cells.count; ++i) {
            var cell = cellAt(i)
            cell.reset()
            cell.rolling = true
            cell.showItem(cell.pick())
        }
        roller.restart()
    }

    function push(items) {
        pool = items
    }

    function stopRolling() {
        if (phase === "landing" || phase === "landed") return
        if (phase !== "rolling") {
            // Nothing rolls (an empty batch): the host still waits for its answer.
            phase = "landing"
            finish.restart()
            return
        }
        phase = "landing"
        var n = cells.count
        var slow = 600 + Math.max(0, luckDelay) * 90
        if (n <= 1) slow *= 1.6
        var stagger = n <= 1 ? 0 : Math.min(220 + Math.max(0, luckDelay) * 28, 4200 / (n - 1))
        for (var i = 0; i < n; ++i) {
            var target = i < winners.length ? winners[i] : { name: "", id: "" }
            cellAt(i).land(target, i * stagger + 1, slow, rollInterval)
        }
        if (n === 0) finish.restart()
    }

    function clear() {
        roller.stop()
        finish.stop()
        phase = "idle"
        cellsShown = false
        for (var i = 0; i < cells.count; ++i) cellAt(i).reset()
    }

    function cellAt(i) { return cells.itemAt(i) as Cell }

    function shown() { return cellsShown && count > 0 }

    // The linter of Qt 6.4 takes a JS array literal for a Qt list that has no push().
    function cellPhotos() {
        var out = []
        for (var i = 0; i < cells.count; ++i)
            if (cellAt(i).photoShown) out.push(cellAt(i).photoShown) // qmllint disable type
        return out
    }

    function cellNames() {
        var out = []
        for (var i = 0; i < cells.count; ++i) out.push(cellAt(i).name) // qmllint disable type
        return out
    }

    Timer {
        id: roller
        interval: area.rollInterval
        repeat: true
        onTriggered: {
            var still = false
            for (var i = 0; i < cells.count; ++i) {
                var cell = area.cellAt(i)
                if (cell.rolling) { cell.showItem(cell.pick()); still = true }
            }
            if (!still) stop()
        }
    }

    // A short breath after the last winner lands, so the burst is seen before the program
    // records and refreshes the panel.
    Timer {
        id: finish
        interval: 500
        onTriggered: { area.phase = "landed"; area.allLanded() }
    }

    // The idle frame: a faint glass panel with gold hairlines marks where the names will roll.
    Rectangle {
        anchors.fill: parent
        visible: !area.cellsShown || area.count === 0
        radius: 18
        color: "#30000000"
        border.color: "#80E8C170"
        border.width: 2
        Rectangle {
            anchors.fill: parent
            anchors.margins: 10
            radius: 12
            color: "transparent"
            border.color: "#33E8C170"
            border.width: 1
        }
        Column {
            anchors.centerIn: parent
            visible: !area.preview
            spacing: 18
            Text {
                anchors.horizontalCenter: parent.horizontalCenter
                text: "★"
                color: "#E8C170"
                font.pixelSize: Math.min(area.height * 0.22, 150)
                opacity: 0.85
                SequentialAnimation on scale {
                    loops: Animation.Infinite
                    NumberAnimation { to: 1.08; duration: 1400; easing.type: Easing.InOutSine }
                    NumberAnimation { to: 1.0; duration: 1400; easing.type: Easing.InOutSine }
                }
            }
            Text {
                anchors.horizontalCenter: parent.horizontalCenter
                text: qsTr("好运即将揭晓")
                color: "#FFE9B0"
                font.family: "黑体"
                font.bold: true
                font.letterSpacing: 8
                font.pixelSize: Math.min(area.height * 0.09, 64)
            }
        }
        Rectangle {     // one sample cell in the console's preview
            anchors.centerIn: parent
            visible: area.preview
            width: sampleText.implicitWidth + sampleText.font.pixelSize
            height: sampleText.implicitHeight + sampleText.font.pixelSize * 0.6
            radius: height * 0.2
            color: "#F2FFF4D6"
            border.color: "#E8C170"
            border.width: 3
        }
        Text {
            id: sampleText
            anchors.centerIn: parent
            visible: area.preview
            text: qsTr("演示文字")
            color: area.previewFont ? area.previewFont.color : "#FFE08A"
            font.family: area.previewFont ? area.previewFont.family : "黑体"
            font.pixelSize: area.previewFont ? area.previewFont.size * 1.4 : 40
            font.bold: area.previewFont ? area.previewFont.bold : true
            font.italic: area.previewFont ? area.previewFont.italic : false
            font.underline: area.previewFont ? area.previewFont.underline : false
        }
    }

    Item {
        id: grid
        visible: area.cellsShown
        width: area.gridW
        height: area.gridH
        anchors.centerIn: parent
        opacity: visible ? 1 : 0
        Behavior on opacity { NumberAnimation { duration: 250 } }

        Repeater {
            id: cells
            model: area.count
            Cell {
                required property int index
                readonly property int row: Math.floor(index / area.cols)
                readonly property int col: index % area.cols
                // The last row is centred when it is not full.
                readonly property int inRow: Math.min(area.cols, area.count - row * area.cols)
                readonly property real rowShift: (area.cols - inRow) * (area.cellW + area.gapX) / 2
                x: rowShift + col * (area.cellW + area.gapX)
                y: row * (area.cellH + area.gapY)
                width: area.cellW
                height: area.cellH
                mode: area.mode
                look: area.look
                fontPx: area.fontPx
                pad: area.pad
                photoW: area.photoW
                photoH: area.photoH
                photos: area.photos
                pool: area.pool
                z: winner ? 2 : 1
                onSettled: {
                    area.landedCount++
                    if (area.landedCount === cells.count) finish.restart()
                }
            }
        }
    }
}
