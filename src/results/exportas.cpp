#include "results/exportas.h"

#include "core/ui.h"
#include "results/exportwinners.h"

QString exportWinnersAs() {
    const QString path = ui().saveFile(QStringLiteral("导出文件"), QStringLiteral("中奖名单.csv"),
                                       QStringLiteral("CSV Files (*.csv)"));
    if (path.isEmpty()) return QString();
    return exportWinners(path, true);
}
