pragma ComponentBehavior: Bound
import QtQuick

// The burst on a winner: a flash, two gold rings, rays and confetti flying out of the cell.
// Plain rectangles on Qt Quick's animation system, so it plays the same on the software
// renderer as on a GPU.
Item {
    id: burst
    property real size: 200
    property int duration: 1400
    readonly property var palette: ["#FFD54A", "#FFF3B0", "#FF5A4E", "#FFB300", "#FFFFFF",
                                    "#F7C873"]
    width: 0
    height: 0
    visible: running.running

    function fire() {
        for (var i = 0; i < confetti.count; ++i) {
            var piece = confetti.itemAt(i)
            var angle = (i / confetti.count) * Math.PI * 2 + Math.random() * 0.4
            var reach = size * (0.75 + Math.random() * 0.7)
            piece.dx = Math.cos(angle) * reach
            piece.dy = Math.sin(angle) * reach
            piece.spin = (Math.random() - 0.5) * 720
        }
        running.restart()
    }

    property real t         // 0 to 1 over the burst, driven by the animation below
    NumberAnimation on t {
        id: running
        running: false
        from: 0
        to: 1
        duration: burst.duration
        easing.type: Easing.OutCubic
    }

    Rectangle {     // flash
        width: burst.size * (0.6 + burst.t * 0.9)
        height: width
        radius: width / 2
        x: -width / 2
        y: -height / 2
        color: "#FFF6C8"
        opacity: Math.max(0, 0.55 - burst.t * 1.4)
    }
    Repeater {      // rings
        model: 2
        Rectangle {
            required property int index
            readonly property real grow: Math.max(0, burst.t - index * 0.12)
            width: burst.size * (0.5 + grow * 1.6)
            height: width
            radius: width / 2
            x: -width / 2
            y: -height / 2
            color: "transparent"
            border.width: Math.max(1, burst.size * 0.03 * (1 - grow))
            border.color: index === 0 ? "#FFD54A" : "#FFF3B0"
            opacity: 1 - grow
        }
    }
    Repeater {      // rays
        model: 16
        Rectangle {
            id: ray
            required property int index
            width: burst.size * (0.15 + burst.t * 0.55)
            height: Math.max(2, burst.size * 0.022)
            radius: height / 2
            x: 0
            y: -height / 2
            color: index % 2 ? "#FFE08A" : "#FFFFFF"
            opacity: (1 - burst.t) * 0.9
            transform: [
                Translate { x: burst.size * (0.28 + burst.t * 0.5) },
                Rotation { angle: ray.index * 22.5 + burst.t * 25 }
            ]
        }
    }
    Repeater {      // confetti
        id: confetti
        model: 22
        Rectangle {
            required property int index
            property real dx: 0
            property real dy: 0
            property real spin: 0
            width: burst.size * (index % 3 ? 0.05 : 0.035)
            height: width * (index % 2 ? 2.2 : 1)
            radius: index % 4 === 0 ? width / 2 : 1
            color: burst.palette[index % burst.palette.length]
            x: dx * burst.t - width / 2
            y: dy * burst.t + burst.t * burst.t * burst.size * 0.35 - height / 2
            rotation: spin * burst.t
            opacity: burst.t < 0.7 ? 1 : (1 - burst.t) / 0.3
        }
    }
}
