#include "core/demofolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QSet>
#include <QSqlDatabase>

#include "core/programfolder.h"
#include "core/store.h"

namespace demofolder {

namespace {

// About 200 distinct Chinese names with departments, and three awards, for trying things out.
bool fillRows(QSqlDatabase db) {
    const QStringList surnames = QStringLiteral(
                                     "王 李 张 刘 陈 杨 黄 赵 吴 周 徐 孙 马 朱 胡 郭 何 高 林 罗 "
                                     "郑 梁 谢 宋 唐 许 韩 冯 邓 曹 "
                                     "彭 曾 萧 田 董 袁 潘 于 蒋 蔡 余 杜 叶 程 苏 魏 吕 丁 任 沈")
                                     .split(QLatin1Char(' '));
    const QString given = QStringLiteral(
        "伟芳娜秀英敏静丽强磊军洋勇艳杰娟涛明超秀兰霞平刚桂英华玉萍红玲建国文辉晓东雪梅志强海燕"
        "佳怡子涵浩然欣怡宇轩梓萱一诺思远雨桐俊杰晨曦");
    const QStringList departments =
        QStringLiteral("研发部 市场部 销售部 财务部 人力资源部 行政部 客服部 产品部")
            .split(QLatin1Char(' '));
    QRandomGenerator random(2026);
    QSet<QString> used;
    db.transaction();
    while (used.size() < 200) {
        QString name = surnames.at(random.bounded(surnames.size()));
        const int length = random.bounded(3) == 0 ? 1 : 2;
        for (int i = 0; i < length; ++i)
            name += given.at(random.bounded(given.size()));
        if (used.contains(name)) continue;
        used.insert(name);
        const int id = used.size();
        store::exec(db,
                    QStringLiteral("INSERT INTO UserList (ID, UserName, UserPart, UserPhoto, "
                                   "DiffNum, UserStatus, JxID) VALUES (?, ?, ?, '', ?, 0, '')"),
                    {id, name, departments.at(random.bounded(departments.size())), 1000 + id});
    }
    const QString award = QStringLiteral(
        "INSERT INTO JPList (ID, JXName, JXNum, JXGroup, JXHave, JPName, JPPhoto, OrderNum, "
        "isReLuck, RangeType, RangeNum1, RangeNum2) VALUES (?, ?, ?, ?, 0, ?, '', ?, 1, 0, 0, 0)");
    store::exec(db, award, {1, QStringLiteral("三等奖"), 30, 3, QStringLiteral("蓝牙耳机"), 1});
    store::exec(db, award, {2, QStringLiteral("二等奖"), 10, 2, QStringLiteral("平板电脑"), 2});
    store::exec(db, award, {3, QStringLiteral("一等奖"), 3, 1, QStringLiteral("笔记本电脑"), 3});
    return db.commit();
}

void removeRunningCopyFiles(const QString &target) {
    const QString program = QFileInfo(QCoreApplication::applicationFilePath()).fileName();
    for (const QString &name : {program, QStringLiteral("quellio.lock"), QStringLiteral(".stamp"),
                                QStringLiteral("quellio.db-wal"), QStringLiteral("quellio.db-shm")})
        QFile::remove(target + QLatin1Char('/') + name);
}

}  // namespace

bool fillSampleEvening(const QString &storeFile, QString *error) {
    const QString connection = QStringLiteral("demo-folder");
    if (!store::openTemplate(storeFile, connection, error)) return false;
    const bool ok = fillRows(QSqlDatabase::database(connection));
    store::close(connection);
    if (!ok && error)
        *error = QCoreApplication::translate("demofolder", "无法写入示例名单: %1").arg(storeFile);
    return ok;
}

bool make(const QString &factory, const QString &target, QString *error) {
    const QDir dir(target);
    if (dir.exists() && !dir.isEmpty(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden)) {
        *error = QCoreApplication::translate("demofolder", "文件夹不是空的: %1").arg(target);
        return false;
    }
    if (!QFileInfo(factory + QStringLiteral("/config.ini")).isFile()) {
        *error = QCoreApplication::translate("demofolder", "找不到出厂文件: %1").arg(factory);
        return false;
    }
    if (!programfolder::copyTree(factory, target)) {
        *error = QCoreApplication::translate("demofolder", "无法复制到文件夹: %1").arg(target);
        return false;
    }
    removeRunningCopyFiles(target);
    return fillSampleEvening(target + QStringLiteral("/quellio.db"), error);
}

}  // namespace demofolder
