#include "core/fonts.h"

#include <QFont>
#include <QStringList>

void installFontSubstitutes() {
    const QStringList sans{QStringLiteral("Noto Sans CJK SC"), QStringLiteral("WenQuanYi Zen Hei"),
                           QStringLiteral("Droid Sans Fallback")};
    const QStringList serif{QStringLiteral("Noto Serif CJK SC"), QStringLiteral("Noto Sans CJK SC"),
                            QStringLiteral("AR PL UMing CN")};
    const QStringList sansNames{QStringLiteral("黑体"), QStringLiteral("微软雅黑"),
                                QStringLiteral("幼圆"), QStringLiteral("SimHei"),
                                QStringLiteral("Microsoft YaHei")};
    const QStringList serifNames{QStringLiteral("宋体"), QStringLiteral("新宋体"),
                                 QStringLiteral("仿宋"), QStringLiteral("楷体"),
                                 QStringLiteral("隶书"), QStringLiteral("SimSun")};
    for (const QString &name : sansNames)
        QFont::insertSubstitutions(name, sans);
    for (const QString &name : serifNames)
        QFont::insertSubstitutions(name, serif);
}
