#include "support/sampleevening.h"

#include <QDateTime>
#include <QStringList>

#include "core/store.h"
#include "support/tempprogramfolder.h"

namespace {

void win(TempProgramFolder &folder, int userId, int awardId, int batch) {
    const QString time =
        store::dateText(QDateTime(QDate(2026, 1, 16), QTime(19, 30)).addSecs(batch * 150));
    store::exec(folder.db(),
                QStringLiteral("UPDATE UserList SET JxID=COALESCE(JxID,'')||?, UserStatus=3, "
                               "UpdateTime=? WHERE ID=?"),
                {store::awardMarker(awardId), time, userId});
}

}  // namespace

QList<int> fillSampleEvening(TempProgramFolder &folder) {
    const QStringList surnames = {"张", "王", "李", "赵", "刘", "陈", "杨", "黄", "周", "吴",
                                  "徐", "孙", "胡", "朱", "高", "林", "何", "郭", "马", "罗"};
    const QStringList given = {"伟",   "芳",   "娜",   "敏",   "静",   "磊",
                               "洋",   "艳",   "杰",   "婷",   "晓明", "志强",
                               "雪梅", "海燕", "建国", "子涵", "思远", "一帆"};
    const QStringList parts = {"研发中心",   "市场部",   "财务部",
                               "人力资源部", "销售一部", "客户服务部"};
    QStringList rows;
    for (int i = 0; i < 120; ++i)
        rows << surnames[i % surnames.size()] + given[(i * 7) % given.size()] + QLatin1Char('|') +
                    parts[i % parts.size()] + QLatin1Char('|') + QString::number(1000 + i);
    const QList<int> ids = folder.addUsers(rows);

    const int grand =
        folder.addAward(QStringLiteral("特等奖"), 1, 1, 1, 0, 0, 0, QStringLiteral("新能源汽车"));
    const int first =
        folder.addAward(QStringLiteral("一等奖"), 3, 1, 1, 0, 0, 0, QStringLiteral("笔记本电脑"));
    const int second =
        folder.addAward(QStringLiteral("二等奖"), 10, 2, 1, 0, 0, 0, QStringLiteral("平板电脑"));
    const int third =
        folder.addAward(QStringLiteral("三等奖"), 20, 2, 1, 0, 0, 0, QStringLiteral("蓝牙耳机"));
    folder.addAward(QStringLiteral("幸运奖"), 30, 3, 0, 0, 0, 0, QStringLiteral("京东购物卡"));

    // Third prizes first, as parties do; then second, first and the grand prize.
    int next = 3;
    for (int i = 0; i < 20; ++i)
        win(folder, ids[(next += 7) % ids.size()], third, i / 10);
    for (int i = 0; i < 10; ++i)
        win(folder, ids[(next += 11) % ids.size()], second, 2 + i / 5);
    for (int i = 0; i < 3; ++i)
        win(folder, ids[(next += 13) % ids.size()], first, 4);
    win(folder, ids[(next += 5) % ids.size()], grand, 5);
    // The second first-prize winner did not come: given up.
    store::exec(folder.db(), QStringLiteral("UPDATE UserList SET JxID=?, UserStatus=1 WHERE ID=?"),
                {QStringLiteral("无"), ids[(next - 5 - 13) % ids.size()]});
    return ids;
}
