#pragma once

// A QML movie on a QmlStage, offscreen, with every command it raises written down, and the
// payloads of the 16:9 factory template as the draw screen sends them.

#include <QImage>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QWidget>
#include <QtTest>

#include "core/fonts.h"
#include "stage/protocol.h"
#include "stage/view/qmlstage.h"
#include "support/moviecall.h"
#include "support/stageclick.h"
#include "support/testpaths.h"

class StageRig {
public:
    explicit StageRig(const QString &movie, QmlStage::Host host = QmlStage::Host::Automatic,
                      QSize size = QSize(1920, 1080))
        : stage(nullptr, host) {
        installFontSubstitutes();
        QObject::connect(&stage, &Stage::commandReceived,
                         [this](const QString &c, const QString &a) {
                             commands << qMakePair(c, a);
                             if (onCommand) onCommand(c, a);
                         });
        stage.widget()->resize(size);
        loaded = stage.loadMovie(appPath() + QStringLiteral("sys/") + movie);
        stage.widget()->show();
    }

    static QString appPath() { return testpaths::factoryDir(); }

    QmlStage stage;
    bool loaded = false;
    QList<QPair<QString, QString>> commands;
    std::function<void(const QString &, const QString &)> onCommand;

    // The movie reports what it starts itself from the event loop, as the host would see it.
    void send(const QString &name, const QString &value) {
        stage.setVariable(name, value);
        QCoreApplication::processEvents();
    }

    int count(const QString &command) const { return int(args(command).size()); }
    QStringList args(const QString &command) const {
        QStringList out;
        for (const auto &c : commands)
            if (c.first == command) out << c.second;
        return out;
    }
    bool waitFor(const QString &command, int timeoutMs = 5000, int atLeast = 1) {
        return QTest::qWaitFor([&] { return count(command) >= atLeast; }, timeoutMs);
    }

    QVariant call(const char *function, const QVariant &arg = QVariant()) {
        return callMovie(stage.root(), function, arg);
    }
    QStringList callList(const char *function) { return call(function).toStringList(); }
    QVariantMap info(const QString &object) { return call("objectInfo", object).toMap(); }
    QString text(const QString &object) { return call("objectText", object).toString(); }

    // Clicks an on-stage item the way the operator would.
    bool click(const QString &objectName) {
        return clickStageItem(stage.quickWindow(), stage.root(), objectName);
    }
    void key(int qtKey, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QKeyEvent press(QEvent::KeyPress, qtKey, modifiers);
        QObject *target = stage.usesWindow() ? static_cast<QObject *>(stage.quickWindow())
                                             : stage.widget()->findChild<QWidget *>(
                                                   QString(), Qt::FindDirectChildrenOnly);
        QCoreApplication::sendEvent(target, &press);
        QCoreApplication::processEvents();
    }

    // --- the draw screen's side, as literal payloads of the 16:9 factory template ----------

    // The reply to asok: background, keys, objects, award, as DrawWindow sends them.
    void pushTemplate(const QString &photos) {
        if (!photos.isEmpty()) send(proto::loadAllUserPics, photos);
        send(proto::setAsBgColor, QStringLiteral("1920|1080|0x9E1B22|0"));
        send(proto::setAsBgImg, appPath() + QStringLiteral("|1920|1080"));
        // start and stop share the space bar; then C, Z, O, P, L, M, F.
        send(proto::setAsKeys, QStringLiteral("32|32|67|90|79|80|76|77|70"));
        send(proto::ClsPage, proto::yes);
        // name|depth|x|y, text, colour|size|bold, align|shadow of the five texts.
        const QStringList texts[] = {
            {"txt_zbt|1|660|40", "2026年度盛典", "0xFFE08A|80|true", "center|1"},
            {"txt_fbt|2|820|150", "幸运大抽奖", "0xFFF4D6|40|false", "center|1"},
            {"txt_jxname|3|96|250", "$Name2", "0xFFE08A|56|true", "left|1"},
            {"txt_jpname|4|96|336", "奖品：$Name1", "0xFFFFFF|34|false", "left|0"},
            {"txt_jpinfo|5|96|392", "名额 $1 名，剩余 $2 名", "0xFFF4D6|28|false", "left|0"}};
        for (const QStringList &t : texts)
            send(proto::vbAddTxt,
                 QStringLiteral("false|%1|100|0x000000|0|0|box|%2|黑体|%3|false|false|0|%4")
                     .arg(t[0], t[1], t[2], t[3]));
        send(proto::vbAddJpBox, QStringLiteral("ssm_vornex|600|240|1224|700|7"));
        send(proto::vbAddStxt,
             QStringLiteral("false|scr_luckls|8|0|96|990|1728|56|0x000000|30|round|8||100|黑体|"
                            "0xFFE08A|28|false|false|false|3|0"));
    }

    void loadAward(const QString &award, int slotCount, int left, const QString &prize,
                   const QString &picture = QString()) {
        send(proto::vbLoadJx, QStringList{award, QString::number(slotCount), QStringLiteral("1"),
                                          QString::number(left), prize, picture}
                                  .join(proto::kSep));
        send(proto::vbAddImg,
             QStringLiteral("false|img_jpimgs|6|96|450|420|315|100|true|") + picture);
    }

    // loadok -> gotoPlay2 -> asok -> pushes -> loaduserok.
    bool startUp(const QString &photos = QString(), const QString &prizePicture = QString()) {
        if (!waitFor(proto::cmd::loadok)) return false;
        onCommand = [this, photos, prizePicture](const QString &c, const QString &) {
            if (c != proto::cmd::asok) return;
            pushTemplate(photos);
            loadAward(QStringLiteral("一等奖"), 5, 5, QStringLiteral("笔记本电脑"), prizePicture);
            send(proto::updateLuckLst, QStringLiteral("当前奖项暂无获奖名单..."));
            send(proto::changBtn, proto::buttons::defulte);
        };
        send(proto::gotoPlay2, proto::go);
        const bool ok = waitFor(proto::cmd::loaduserok);
        onCommand = nullptr;
        return ok;
    }

    static QString blockStyle(int luckType, int batch,
                              const QString &sample = QStringLiteral("欧阳明月")) {
        return QStringLiteral(
                   "%1|160|160|%2|%3|round|0xFFF4D6|92|20|20|12|黑体|0xB0171F|44|100|"
                   "true|false|false|center|0|s|")
            .arg(sample)
            .arg(luckType)
            .arg(batch);
    }

    static QString items(int luckType, const QStringList &names, int firstId = 1) {
        QStringList parts{QString::number(luckType)};
        for (int i = 0; i < names.size(); ++i)
            parts << names[i] + proto::kItemSep + QString::number(firstId + i);
        return parts.join(proto::kSep);
    }

    // Start as the program runs it: winners, cell style, changBtn start, then pushes.
    bool beginDraw(int luckType, const QStringList &winnerNames, const QStringList &pool) {
        send(proto::vbndluck, items(luckType, winnerNames));
        const int before = count(proto::cmd::blocksetok);
        send(proto::vbLoadBlock, blockStyle(luckType, int(winnerNames.size())));
        if (count(proto::cmd::blocksetok) != before + 1) return false;
        send(proto::changBtn, proto::buttons::start);
        for (int i = 0; i < 3; ++i) {
            send(proto::vbPushLst, items(luckType, pool, 100));
            QTest::qWait(60);
        }
        return true;
    }
};

// Sample roster names, one long.
inline QStringList sampleNames() {
    return QStringLiteral(
               "张伟 王芳 李娜 刘洋 陈静 杨帆 赵磊 黄晓明 周杰 吴昊 徐丽 孙悦 马超 朱琳 "
               "胡军 郭敏 何欣 高远 林峰 欧阳明月 罗晨 梁静 宋佳 郑爽 谢娜")
        .split(QLatin1Char(' '));
}

// Plain portraits `u<ID>.jpg` of a colour each, written into dir; returns the loadAllUserPics
// value.
inline QString makePortraits(const QString &dir, const QList<int> &ids, QSize size = {48, 60}) {
    QStringList value{dir + QLatin1Char('/')};
    for (int id : ids) {
        QImage image(size, QImage::Format_RGB32);
        image.fill(QColor::fromHsv((id * 47) % 360, 90, 230));
        const QString name = QStringLiteral("u%1.jpg").arg(id);
        image.save(dir + QLatin1Char('/') + name, "JPG");
        value << name + proto::kItemSep + QString::number(id);
    }
    return value.join(proto::kSep);
}

// A playback value: the 34 style fields of the factory 16:9 template (with the speed given),
// then title, running number, names and ids, both lists ending in "$".
inline QString paradeValue(const QString &title, int number, const QStringList &names,
                           int speed = 20, int luckType = 0, int firstId = 1) {
    QString nameList, idList;
    for (int i = 0; i < names.size(); ++i) {
        nameList += names[i] + proto::kItemSep;
        idList += QString::number(firstId + i) + proto::kItemSep;
    }
    return QStringLiteral(
               "1536|821|%1|0|%2|200|200|4|0x7A0010|85|16|0x000000|25|10|24|14|"
               "黑体|0xFFE08A|56|100|true|false|false|center|1|"
               "黑体|0xFFFFFF|36|100|false|false|false|center|1|")
               .arg(speed)
               .arg(luckType) +
           QStringList{title, QString::number(number), nameList, idList}.join(proto::kSep);
}
