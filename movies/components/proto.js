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
    return t.split("$Name1").join(vars.prize || "")
            .split("$Name2").join(vars.award || "")
            .split("$1").join(vars.slots || "")
            .split("$2").join(vars.left || "")
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
