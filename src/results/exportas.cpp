#include "results/exportas.h"

#include <QCoreApplication>

#include "core/ui.h"
#include "results/exportwinners.h"

QString exportWinnersAs() {
    const QString path = ui().saveFile(QCoreApplication::translate("results", "导出文件"),
                                       QCoreApplication::translate("results", "中奖名单.csv"),
                                       QCoreApplication::translate("results", "CSV Files (*.csv)"));
    if (path.isEmpty()) return QString();
    return exportWinners(path, true);
}
