.pragma library

// Reading the host's values: fields joined by "|", colours as "0xRRGGBB", booleans as words,
// opacities in percent. Nothing here throws: a short or odd value draws with defaults.

function fields(value) {
    return String(value === undefined || value === null ? "" : value).split("|")
}

function field(list, index, fallback) {
    return index < list.length ? list[index] : (fallback === undefined ? "" : fallback)
}

function num(text, fallback) {
    var n = parseFloat(text)
    return isNaN(n) ? (fallback === undefined ? 0 : fallback) : n
}

function flag(text) {
    var t = String(text).toLowerCase()
    return t === "true" || t === "1" || t === "-1" || t === "yes"
}

// "0xFF8800" -> "#ff8800"; alpha in percent gives "#AARRGGBB".
function colour(text, alphaPercent) {
    var t = String(text || "").trim()
    if (t.indexOf("0x") === 0 || t.indexOf("0X") === 0) t = t.substring(2)
    else if (t.charAt(0) === "#") t = t.substring(1)
    while (t.length < 6) t = "0" + t
    t = t.substring(t.length - 6)
    if (!/^[0-9a-fA-F]{6}$/.test(t)) t = "000000"
    if (alphaPercent === undefined) return "#" + t
    var a = Math.round(Math.max(0, Math.min(100, num(alphaPercent, 100))) * 2.55)
    var hex = a.toString(16)
    if (hex.length < 2) hex = "0" + hex
    return "#" + hex + t
}

function alpha(text) {
    return Math.max(0, Math.min(100, num(text, 100))) / 100
}

// Text.AlignLeft, Text.AlignRight, Text.AlignHCenter (a library script cannot see Text).
function align(text) {
    var t = String(text).toLowerCase()
    if (t === "left") return 1
    if (t === "right") return 2
    return 4
}

// The variables a template text may carry, filled from the latest award.
function fillVariables(text, vars) {
    var t = String(text || "")
    if (!vars) return t
    // One pass, so that an award or prize named with "$1" is shown as it is.
    var values = { "$Name1": vars.prize, "$Name2": vars.award, "$1": vars.slots, "$2": vars.left }
    return t.replace(/\$Name1|\$Name2|\$1|\$2/g, function (found) {
        return values[found] === undefined ? "" : String(values[found])
    })
}

// "name$id" items after the leading type field: [{name, id}].
function winners(list) {
    var out = []
    for (var i = 1; i < list.length; ++i) {
        if (list[i] === "") continue
        var at = list[i].lastIndexOf("$")
        if (at < 0) out.push({ name: list[i], id: "" })
        else out.push({ name: list[i].substring(0, at), id: list[i].substring(at + 1) })
    }
    return out
}

// Lists of the parade end in "$": "a$b$" -> ["a", "b"].
function dollarList(text) {
    var parts = String(text || "").split("$")
    if (parts.length && parts[parts.length - 1] === "") parts.pop()
    return parts
}

function fileUrl(path) {
    var p = String(path || "").replace(/\\/g, "/")
    if (p === "") return ""
    if (p.indexOf("file:") === 0 || p.indexOf("qrc:") === 0) return p
    if (p.charAt(0) !== "/") p = "/" + p
    return "file://" + encodeURI(p).replace(/#/g, "%23").replace(/\?/g, "%3F")
}

function photoUrl(path) {
    return path ? "image://photo/" + encodeURIComponent(path) : ""
}

// A font description from nine style fields starting at `at`:
// name|colour|size|alpha|bold|italic|underline|align|shadow.
function style(list, at) {
    return {
        family: field(list, at, "黑体"),
        color: colour(field(list, at + 1, "0xFF0000")),
        size: Math.max(6, num(field(list, at + 2), 26)),
        opacity: alpha(field(list, at + 3, "100")),
        bold: flag(field(list, at + 4)),
        italic: flag(field(list, at + 5)),
        underline: flag(field(list, at + 6)),
        align: align(field(list, at + 7, "center")),
        shadow: flag(field(list, at + 8, "0"))
    }
}

// The name of a key code as the hotkey settings show it; "" for a key they cannot set.
function keyName(code) {
    var c = num(code, 0)
    if (c >= 65 && c <= 90) return qsTranslate("hotkeys", "%1键").arg(String.fromCharCode(c))
    if (c >= 48 && c <= 57) return qsTranslate("hotkeys", "数字%1").arg(String.fromCharCode(c))
    if (c >= 96 && c <= 105)
        return qsTranslate("hotkeys", "小键盘数字%1").arg(String.fromCharCode(c - 48))
    var named = { 8: qsTranslate("hotkeys", "BackSpace键"),
                  13: qsTranslate("hotkeys", "回车键(Enter)"),
                  32: qsTranslate("hotkeys", "空格键(Space)"),
                  33: qsTranslate("hotkeys", "PageUp键"),
                  34: qsTranslate("hotkeys", "PageDown键"),
                  38: qsTranslate("hotkeys", "↑键"),
                  40: qsTranslate("hotkeys", "↓键"),
                  46: qsTranslate("hotkeys", "Delete键") }
    return named[c] || ""
}

// The idle stage's hint: which keys start and stop the draw.
function keyHint(startCode, stopCode) {
    var start = keyName(startCode), stop = keyName(stopCode)
    if (start === "") return ""
    if (stop === "") return qsTranslate("stage", "按 %1 开始抽奖").arg(start)
    if (stop === start) return qsTranslate("stage", "按 %1 开始抽奖，再按一次停止").arg(start)
    return qsTranslate("stage", "按 %1 开始抽奖，按 %2 停止").arg(start).arg(stop)
}

// True when a template text carries an award variable.
function hasVariables(text) {
    return /\$Name1|\$Name2|\$1|\$2/.test(String(text || ""))
}
