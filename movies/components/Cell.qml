pragma ComponentBehavior: Bound
import QtQuick
import "proto.js" as P

// One cell of the draw area: a name, a photo, or a photo with the name, by the draw mode.
// While rolling it takes whatever name it is handed; on landing it slows down by itself,
// settles on its winner and celebrates.
Item {
    id: cell
    property int mode: 0                 // 0 text, 1 photo, 2 photo and text
    property var look: ({})              // colours, font, radius, sizes from the draw area
    property real fontPx: 26
    property real pad: 8
    property real photoW: 100
    property real photoH: 100
    property var photos: ({})           // participant id -> photo path
    property string name
    property string uid
    property bool winner: false
    property bool rolling: false
    property int flips: 0
    // A photo still to be decoded comes as a single transparent pixel while names roll.
    readonly property bool photoDecoded: photo.status === Image.Ready && photo.implicitWidth > 1
    readonly property string photoShown: photoDecoded ? photo.path : ""
    signal settled()

    property string prevName
    readonly property real travel: height * 0.62     // how far a name drops on a change

    function showItem(item) {
        prevName = name
        name = item.name
        uid = item.id
        flips++
        slide.restart()
    }

    // Slows from `interval` to a crawl over `slowMs`, then lands on `item`.
    function land(item, delayMs, slowMs, interval) {
        lander.finalItem = item
        lander.step = interval
        lander.remaining = slowMs
        lander.interval = Math.max(1, delayMs)
        lander.phase = 0
        lander.restart()
    }

    function reset() {
        lander.stop()
        opacity = 1
        winner = false
        pop.stop()
        scale = 1
    }

    property var pool: []
    function pick() {
        if (!pool.length) return { name: look.sample || "", id: "" }
        return pool[Math.floor(Math.random() * pool.length)]
    }

    Timer {
        id: lander
        property var finalItem
        property real step: 60
        property real remaining: 1000
        property int phase: 0            // 0 waiting for its turn, 1 slowing
        repeat: false
        onTriggered: {
            if (phase === 0) {
                phase = 1
                cell.rolling = false
            }
            if (remaining <= 0) {
                cell.showItem(finalItem)
                if (finalItem.name === "") {
                    // More cells than winners: the spare cell steps back.
                    cell.opacity = 0.25
                } else {
                    cell.winner = true
                    pop.restart()
                    burst.fire()
                }
                cell.settled()
                return
            }
            cell.showItem(cell.pick())
            remaining -= step
            step = Math.min(520, step * 1.22 + 8)
            interval = step
            restart()
        }
    }

    // Halo behind a winner.
    Repeater {
        model: 3
        Rectangle {
            required property int index
            anchors.centerIn: parent
            width: cell.width + (index + 1) * cell.pad * 1.6
            height: cell.height + (index + 1) * cell.pad * 1.6
            radius: card.radius + (index + 1) * cell.pad * 0.8
            color: "#FFD54A"
            opacity: cell.winner ? 0.20 - index * 0.05 : 0
            // Out of the scene while faded: the software renderer weighs every item on show.
            visible: opacity > 0
            Behavior on opacity { NumberAnimation { duration: 400 } }
        }
    }

    Rectangle {
        id: card
        anchors.fill: parent
        radius: cell.look.round ? Math.min(height / 2, cell.pad * 1.2) : 4
        color: cell.look.bgColor || "#FFF4D6"
        border.width: cell.winner ? Math.max(3, cell.pad * 0.45) : Math.max(1, cell.pad * 0.16)
        border.color: cell.winner ? "#FFD54A" : "#80E8C170"
        clip: true

        Rectangle {     // sheen
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.top: parent.top
            anchors.margins: card.border.width
            height: parent.height * 0.46
            radius: card.radius
            gradient: Gradient {
                GradientStop { position: 0; color: "#40FFFFFF" }
                GradientStop { position: 1; color: "#00FFFFFF" }
            }
        }

        Item {
            id: content
            anchors.fill: parent
            property real shift: 0

            Rectangle {
                id: frame
                visible: cell.mode > 0
                x: Math.round((parent.width - width) / 2)
                y: Math.round(cell.pad + content.shift)
                width: cell.photoW
                height: cell.photoH
                radius: card.radius * 0.6
                clip: true
                gradient: Gradient {
                    GradientStop { position: 0; color: "#C62832" }
                    GradientStop { position: 1; color: "#7A0010" }
                }
                Text {
                    anchors.centerIn: parent
                    visible: !cell.photoDecoded
                    text: cell.name.length ? cell.name.charAt(0) : ""
                    color: "#FFE08A"
                    font.family: cell.look.family || "黑体"
                    font.bold: true
                    font.pixelSize: Math.min(parent.width, parent.height) * 0.5
                }
                Image {
                    id: photo
                    anchors.fill: parent
                    readonly property string path: cell.photos[cell.uid] || ""
                    source: cell.mode > 0 ? P.photoUrl(path) : ""
                    sourceSize.width: Math.ceil(cell.photoW)
                    sourceSize.height: Math.ceil(cell.photoH)
                    asynchronous: true
                    cache: false
                    fillMode: Image.PreserveAspectCrop
                }
            }

            ShadowText {     // the name that leaves downwards while the next drops in
                visible: cell.mode === 0 && slide.running
                x: label.x
                width: label.width
                y: label.y + cell.travel
                opacity: (cell.look.opacity === undefined ? 1 : cell.look.opacity) *
                         Math.max(0, -content.shift / cell.travel)
                text: cell.prevName
                elide: Text.ElideRight
                horizontalAlignment: label.horizontalAlignment
                color: label.color
                font: label.font
            }
            ShadowText {
                id: label
                visible: cell.mode !== 1
                x: cell.pad
                width: parent.width - 2 * cell.pad
                y: (cell.mode === 2 ? frame.y + frame.height + cell.pad * 0.5 :
                                     (parent.height - height) / 2 + content.shift)
                text: cell.name
                // The incoming name firms up as it settles.
                opacity: (cell.look.opacity === undefined ? 1 : cell.look.opacity) *
                         (cell.mode === 0 ? 1 - 0.6 * Math.max(0, -content.shift / cell.travel)
                                          : 1)
                elide: Text.ElideRight
                horizontalAlignment: cell.look.align === undefined ? Text.AlignHCenter
                                                                   : cell.look.align
                color: cell.look.color || "#B0171F"
                shadow: !!cell.look.shadow
                font.family: cell.look.family || "黑体"
                font.pixelSize: cell.fontPx
                font.bold: !!cell.look.bold
                font.italic: !!cell.look.italic
                font.underline: !!cell.look.underline
            }
        }
    }

    // The name drops in from above on each change, like a drum turning.
    NumberAnimation {
        id: slide
        target: content
        property: "shift"
        from: cell.mode === 0 ? -cell.travel : -cell.height * 0.22
        to: 0
        duration: Math.max(30, Math.min(lander.running ? lander.step : 90, 160))
        easing.type: Easing.OutQuad
    }

    SequentialAnimation {
        id: pop
        NumberAnimation { target: cell; property: "scale"; to: 1.22; duration: 180
                          easing.type: Easing.OutBack }
        NumberAnimation { target: cell; property: "scale"; to: 1.0; duration: 420
                          easing.type: Easing.OutElastic }
    }

    Burst {
        id: burst
        z: 10
        x: cell.width / 2
        y: cell.height / 2
        size: Math.max(cell.width, cell.height) * 1.5
    }
}
