pragma ComponentBehavior: Bound
import QtQuick

// The on-stage button bar. Which buttons show follows the draw state (changBtn); the sound and
// screen buttons come in pairs that swap on each press. Every button has a slot of its own that
// never moves, so a button is where the operator's hand expects it whatever else appears, and no
// button is ever destroyed by the state change its own press causes. The bar fades out while the
// mouse rests away from it; faded, it still takes clicks.
Item {
    id: bar
    property string state_: "defulte"      // the last changBtn value
    property bool landing: false            // the cells are still settling, nothing stored yet
    property bool soundOn: true
    property bool fullScreen: true
    property bool awake: true
    readonly property bool pointerOver: hover.hovered
    signal pressed(string name)
    height: 96
    width: row.width + 48

    readonly property var sets: ({
        "defulte": ["btnStart", "btnPre", "btnNext", "btnAdd", "btnGiveUp", "btnLstPrt",
                    "btnLstOut", "btnPlayLuck"],
        "clear": ["btnStart", "btnPre", "btnNext", "btnAdd", "btnGiveUp", "btnLstPrt",
                  "btnLstOut", "btnPlayLuck"],
        "start": ["btnStop", "btnClear"],
        "stop": ["btnStart", "btnCancel", "btnPre", "btnNext", "btnAdd", "btnGiveUp",
                 "btnLstPrt", "btnLstOut", "btnPlayLuck"],
        "luckplay": ["btnPlayLuck"]
    })
    // One slot per place on the bar; a slot shows the first of its buttons that is on show.
    readonly property var slots: [["btnStart", "btnStop"], ["btnClear", "btnCancel"], ["btnPre"],
        ["btnNext"], ["btnAdd"], ["btnGiveUp"], ["btnLstPrt"], ["btnLstOut"], ["btnPlayLuck"],
        ["btnSoundOn", "btnSoundOff"], ["btnScreenN", "btnScreenF"], ["btnExit"]]
    readonly property var info: ({
        "btnStart": ["▶", qsTr("开始"), qsTr("开始抽奖")],
        "btnStop": ["■", qsTr("停止"), qsTr("停止抽奖")],
        "btnClear": ["✕", qsTr("取消"), qsTr("取消本次滚动")],
        "btnCancel": ["↶", qsTr("撤消"), qsTr("撤消本批中奖")],
        "btnGiveUp": ["⚑", qsTr("放弃"), qsTr("放弃中奖")],
        "btnAdd": ["+", qsTr("补抽"), qsTr("补抽奖项")],
        "btnPre": ["⇤", qsTr("上一项"), qsTr("上一个奖项")],
        "btnNext": ["⇥", qsTr("下一项"), qsTr("下一个奖项")],
        "btnLstPrt": ["▤", qsTr("打印"), qsTr("打印中奖名单")],
        "btnLstOut": ["⇩", qsTr("导出"), qsTr("导出中奖名单")],
        "btnPlayLuck": ["★", qsTr("播放"), qsTr("播放中奖名单")],
        "btnSoundOn": ["♪", qsTr("静音"), qsTr("关闭声音")],
        "btnSoundOff": ["♫", qsTr("声音"), qsTr("打开声音")],
        "btnScreenN": ["❐", qsTr("窗口"), qsTr("退出全屏")],
        "btnScreenF": ["▣", qsTr("全屏"), qsTr("全屏显示")],
        "btnExit": ["⎋", qsTr("退出"), qsTr("退出抽奖")]
    })

    readonly property var shownNames: {
        // While the winners land nothing is stored yet: only sound, screen and exit stay.
        var names = landing ? [] : (sets[state_] || sets["defulte"]).slice()
        names.push(soundOn ? "btnSoundOn" : "btnSoundOff")
        names.push(fullScreen ? "btnScreenN" : "btnScreenF")
        names.push("btnExit")
        return names
    }

    function visibleNames() { return shownNames.slice() }

    function slotButton(index) {
        var choices = slots[index]
        for (var i = 0; i < choices.length; ++i)
            if (shownNames.indexOf(choices[i]) >= 0) return choices[i]
        return ""
    }

    // Presses a button as a click would; the pairs swap.
    function press(name) {
        if (name === "btnSoundOn") soundOn = false
        else if (name === "btnSoundOff") soundOn = true
        else if (name === "btnScreenN") fullScreen = false
        else if (name === "btnScreenF") fullScreen = true
        bar.pressed(name)
    }

    opacity: awake ? 1 : 0
    Behavior on opacity { NumberAnimation { duration: 450; easing.type: Easing.InOutQuad } }

    HoverHandler { id: hover }

    Rectangle {
        anchors.fill: parent
        radius: 30
        gradient: Gradient {
            GradientStop { position: 0; color: "#D9300810" }
            GradientStop { position: 1; color: "#E6180408" }
        }
        border.color: "#B3E8C170"
        border.width: 1.5
    }
    Row {
        id: row
        anchors.centerIn: parent
        spacing: 6
        Repeater {
            model: bar.slots.length
            Item {
                id: slot
                required property int index
                readonly property string current: bar.slotButton(index)
                width: 62
                height: 72
                StageButton {
                    anchors.horizontalCenter: parent.horizontalCenter
                    visible: slot.current !== ""
                    name: slot.current
                    glyph: visible ? bar.info[slot.current][0] : ""
                    caption: visible ? bar.info[slot.current][1] : ""
                    tip: visible ? bar.info[slot.current][2] : ""
                    accent: slot.current === "btnStart" || slot.current === "btnStop"
                    onClicked: bar.press(slot.current)
                }
            }
        }
    }
}
