pragma ComponentBehavior: Bound
import QtQuick

// The festive dressing of a page without a background picture: warm spotlights from above,
// a gold horizon and slow twinkling sparks. The lights are painted once; only the sparks move.
Item {
    id: dress
    clip: true

    Canvas {
        id: lights
        anchors.fill: parent
        renderStrategy: Canvas.Immediate
        onWidthChanged: requestPaint()
        onHeightChanged: requestPaint()
        onPaint: {
            var ctx = getContext("2d")
            ctx.reset()
            var w = width, h = height
            var spots = [[0.18, -0.1, 0.42, 0.16], [0.5, -0.16, 0.5, 0.22],
                         [0.82, -0.1, 0.42, 0.16], [0.5, 1.1, 0.6, 0.10]]
            for (var i = 0; i < spots.length; ++i) {
                var s = spots[i]
                var g = ctx.createRadialGradient(s[0] * w, s[1] * h, 0, s[0] * w, s[1] * h,
                                                 s[2] * w)
                g.addColorStop(0, i === 3 ? "rgba(255,190,90," + s[3] + ")"
                                          : "rgba(255,214,140," + s[3] + ")")
                g.addColorStop(1, "rgba(255,214,140,0)")
                ctx.fillStyle = g
                ctx.fillRect(0, 0, w, h)
            }
            // A darker rim frames the middle of the stage.
            var v = ctx.createRadialGradient(w / 2, h / 2, h * 0.35, w / 2, h / 2, w * 0.75)
            v.addColorStop(0, "rgba(0,0,0,0)")
            v.addColorStop(1, "rgba(30,0,6,0.6)")
            ctx.fillStyle = v
            ctx.fillRect(0, 0, w, h)
        }
    }
    Rectangle {     // horizon
        y: dress.height * 0.9
        width: dress.width
        height: 2
        opacity: 0.5
        gradient: Gradient {
            orientation: Gradient.Horizontal
            GradientStop { position: 0; color: "#00E8C170" }
            GradientStop { position: 0.5; color: "#FFE8C170" }
            GradientStop { position: 1; color: "#00E8C170" }
        }
    }
    Repeater {      // sparks
        model: 26
        Rectangle {
            id: spark
            required property int index
            readonly property real seed: (index * 7919 % 997) / 997
            x: dress.width * ((index * 0.381966) % 1)
            y: dress.height * (0.04 + 0.86 * seed)
            width: 3 + (index % 4) * 2
            height: width
            radius: width / 2
            color: index % 3 ? "#FFE08A" : "#FFFFFF"
            SequentialAnimation on opacity {
                PropertyAction { value: 0.2 }
                SequentialAnimation {
                    loops: Animation.Infinite
                    PauseAnimation { duration: 300 + (spark.index * 413) % 2600 }
                    NumberAnimation { to: 0.85; duration: 900; easing.type: Easing.InOutSine }
                    NumberAnimation { to: 0.15; duration: 1300; easing.type: Easing.InOutSine }
                }
            }
        }
    }
}
