#pragma once

// Lets "黑体", "宋体" and the other Windows font names of older templates reach an installed
// CJK font wherever a font is asked for by family.
void installFontSubstitutes();
