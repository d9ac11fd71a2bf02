pragma ComponentBehavior: Bound
import QtQuick
import "proto.js" as P

// The winner parade (vbLuckPlay, vbLuckPlay1): a panel with the award's title and its winners
// in columns, scrolling up at the style's speed. When an award's list has passed it asks for
// the next (callLoadPlay); once the host has none left (vbStartScroll "yes" while waiting) the
// last list runs out and the parade ends (finished -> luckplaystop).
Item {
    id: parade
    property var photos: ({})
    property bool active: false
    property bool paused: false
    property bool waiting: false         // asked for the next award, no answer yet
    property bool lastAward: false
    property string title
    property string number
    property var names: []
    property var ids: []
    property int mode: 0
    property real photoW: 120
    property real photoH: 120
    property int columns: 2
    property real speed: 1
    property var titleStyle: P.style([], 0)
    property var nameStyle: P.style([], 0)
    property color titleBg: "#7A0010"
    property color nameBg: "#40000000"
    property real titlePad: 10
    property real namePad: 8
    property real gapX: 10
    property real gapY: 10
    signal awardPassed()
    signal finished()
    visible: active || fade.running
    opacity: active ? 1 : 0
    Behavior on opacity { NumberAnimation { id: fade; duration: 400 } }

    // Pixels per second for Speed 0 to 20, growing faster than linearly at the top end.
    readonly property real pixelsPerSecond: 24 + speed * speed * 2 + speed * 6

    function show(f, first) {
        if (first) { lastAward = false }
        width = Math.max(200, P.num(P.field(f, 0), 800))
        height = Math.max(150, P.num(P.field(f, 1), 500))
        speed = Math.max(0, P.num(P.field(f, 2), 1))
        mode = Math.max(0, Math.min(2, P.num(P.field(f, 4))))
        photoW = Math.max(24, P.num(P.field(f, 5), 120))
        photoH = Math.max(24, P.num(P.field(f, 6), 120))
        columns = Math.max(1, Math.min(10, P.num(P.field(f, 7), 2)))
        titleBg = P.colour(P.field(f, 8, "0x00FE00"), P.field(f, 9, "80"))
        titlePad = P.num(P.field(f, 10), 5)
        nameBg = P.colour(P.field(f, 11, "0xFFFFFF"), P.field(f, 12, "50"))
        namePad = P.num(P.field(f, 13), 5)
        gapX = P.num(P.field(f, 14), 1)
        gapY = P.num(P.field(f, 15), 1)
        titleStyle = P.style(f, 16)
        nameStyle = P.style(f, 25)
        title = P.field(f, 34)
        number = P.field(f, 35)
        names = P.dollarList(P.field(f, 36))
        ids = P.dollarList(P.field(f, 37))
        waiting = false
        paused = false
        active = true
        intro.restart()
        Qt.callLater(roll)
    }

    // The list shows from the top, holds a moment to be read, then scrolls up and out.
    readonly property int holdMs: Math.max(300, 4000 - speed * 180)

    function roll() {
        scroll.stop()
        list.forceLayout()
        list.y = 0
        move.from = 0
        move.to = -list.height
        move.duration = Math.max(300, list.height / pixelsPerSecond * 1000)
        scroll.start()
        if (paused) scroll.pause()
    }

    function setScrolling(on) {
        if (waiting && on) {
            // Nothing further to show: this was the last award.
            waiting = false
            lastAward = true
            finished()
            return
        }
        paused = !on
        if (paused) scroll.pause()
        else scroll.resume()
    }

    function offset() { return list.y }

    function stop() {
        scroll.stop()
        active = false
        waiting = false
    }

    anchors.centerIn: parent

    Rectangle {     // shadow
        anchors.fill: panel
        anchors.margins: -14
        radius: panel.radius + 14
        color: "#55000000"
    }
    Rectangle {
        id: panel
        anchors.fill: parent
        radius: 24
        color: parade.titleBg
        border.color: "#E8C170"
        border.width: 3
        clip: true
        Rectangle {
            anchors.fill: parent
            anchors.margins: 8
            radius: 18
            color: "transparent"
            border.color: "#66FFE08A"
            border.width: 1
        }

        Column {
            id: head
            y: parade.titlePad + 10
            width: parent.width
            spacing: 6
            opacity: 0
            Rectangle {     // running number
                anchors.horizontalCenter: parent.horizontalCenter
                width: numberText.implicitWidth + 36
                height: numberText.implicitHeight + 10
                radius: height / 2
                color: "#E8C170"
                visible: parade.number.length > 0
                Text {
                    id: numberText
                    anchors.centerIn: parent
                    text: "NO." + parade.number
                    color: "#7A0010"
                    font.family: "黑体"
                    font.bold: true
                    font.pixelSize: Math.max(14, parade.titleStyle.size * 0.42)
                }
            }
            ShadowText {
                width: parent.width - 2 * parade.titlePad - 20
                x: parade.titlePad + 10
                text: parade.title
                wrapMode: Text.Wrap
                textWidth: width
                horizontalAlignment: parade.titleStyle.align
                color: parade.titleStyle.color
                opacity: parade.titleStyle.opacity
                shadow: parade.titleStyle.shadow
                font.family: parade.titleStyle.family
                font.pixelSize: parade.titleStyle.size
                font.bold: parade.titleStyle.bold
                font.italic: parade.titleStyle.italic
                font.underline: parade.titleStyle.underline
            }
            Rectangle {     // gold rule
                anchors.horizontalCenter: parent.horizontalCenter
                width: parent.width * 0.6
                height: 2
                gradient: Gradient {
                    orientation: Gradient.Horizontal
                    GradientStop { position: 0; color: "#00E8C170" }
                    GradientStop { position: 0.5; color: "#FFE8C170" }
                    GradientStop { position: 1; color: "#00E8C170" }
                }
            }
        }
        NumberAnimation { id: intro; target: head; property: "opacity"; from: 0; to: 1
                          duration: 500 }

        Item {
            id: viewport
            anchors.top: head.bottom
            anchors.topMargin: 12
            anchors.bottom: parent.bottom
            anchors.bottomMargin: 16
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.leftMargin: 20
            anchors.rightMargin: 20
            clip: true

            Grid {
                id: list
                columns: parade.columns
                columnSpacing: parade.gapX
                rowSpacing: parade.gapY
                anchors.horizontalCenter: parent.horizontalCenter
                readonly property real cellW: Math.max(40, (viewport.width - (columns - 1) *
                                                            columnSpacing) / columns)
                Repeater {
                    model: parade.names.length
                    Rectangle {
                        id: nameCard
                        required property int index
                        readonly property string photo: parade.photos[parade.ids[index]] || ""
                        width: list.cellW
                        height: entry.height + 2 * parade.namePad
                        radius: Math.min(height / 2, parade.namePad * 1.5)
                        color: parade.nameBg
                        border.color: "#40E8C170"
                        Column {
                            id: entry
                            anchors.centerIn: parent
                            width: parent.width - 2 * parade.namePad
                            spacing: parade.namePad / 2
                            Image {
                                visible: parade.mode > 0
                                anchors.horizontalCenter: parent.horizontalCenter
                                width: Math.min(parade.photoW, entry.width)
                                height: visible ? parade.photoH * width / parade.photoW : 0
                                source: visible ? P.photoUrl(nameCard.photo) : ""
                                sourceSize.width: Math.ceil(width)
                                sourceSize.height: Math.ceil(height)
                                asynchronous: true
                                fillMode: Image.PreserveAspectCrop
                            }
                            ShadowText {
                                visible: parade.mode !== 1 || !nameCard.photo
                                width: entry.width
                                text: parade.names[nameCard.index]
                                horizontalAlignment: parade.nameStyle.align
                                elide: Text.ElideRight
                                color: parade.nameStyle.color
                                opacity: parade.nameStyle.opacity
                                shadow: parade.nameStyle.shadow
                                font.family: parade.nameStyle.family
                                font.pixelSize: parade.nameStyle.size
                                font.bold: parade.nameStyle.bold
                                font.italic: parade.nameStyle.italic
                                font.underline: parade.nameStyle.underline
                            }
                        }
                    }
                }
            }
            SequentialAnimation {
                id: scroll
                PauseAnimation { duration: parade.holdMs }
                NumberAnimation { id: move; target: list; property: "y" }
                onFinished: {
                    if (!parade.active) return
                    parade.waiting = true
                    parade.awardPassed()
                }
            }
        }
    }
}
