#include <QtTest>

#include "core/appstate.h"
#include "design/stageload.h"
#include "stagerig.h"
#include "support/tempprogramfolder.h"

// The factory templates as the program's own loader sends them, onto the real movies: every
// object it sends is on the page, titles in place, the draw area answers its style.
class TestStageTemplates : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void factoryTemplatesDrawCompletely_data() {
        QTest::addColumn<QString>("movie");
        QTest::addColumn<int>("reader");
        QTest::addColumn<QString>("skin");
        for (const QString &skin :
             {QStringLiteral("通用模板（16:9)"), QStringLiteral("通用模板（4:3)")}) {
            QTest::newRow(qPrintable(QStringLiteral("draw ") + skin))
                << QStringLiteral("stage.qml") << int(design::Reader::Draw) << skin;
            QTest::newRow(qPrintable(QStringLiteral("console ") + skin))
                << QStringLiteral("preview.qml") << int(design::Reader::Console) << skin;
        }
    }

    void factoryTemplatesDrawCompletely() {
        QFETCH(QString, movie);
        QFETCH(int, reader);
        QFETCH(QString, skin);
        TempProgramFolder folder;
        QVERIFY(folder.start());
        folder.addUsers({QStringLiteral("欧阳明月|销售部|1"), QStringLiteral("张伟|财务部|2")});
        StageRig rig(movie, QmlStage::Host::Automatic,
                     reader == int(design::Reader::Draw) ? QSize(1920, 1080) : QSize(257, 177));
        QVERIFY(rig.loaded);
        if (reader == int(design::Reader::Draw)) {
            QVERIFY(rig.waitFor(proto::cmd::loadok));
            rig.send(proto::gotoPlay2, proto::go);
            QCOMPARE(rig.count(proto::cmd::asok), 1);
        } else {
            QVERIFY(rig.waitFor(proto::cmd::asload));
            rig.send(proto::getIsOk, proto::yes);
        }
        const design::PayloadContext context = design::contextFor(design::Reader(reader));
        design::LoadReport report;
        QString error;
        const QString file = folder.path(QStringLiteral("skin/")) + skin + QStringLiteral(".jsk");
        QVERIFY2(design::loadTemplateFile(rig.stage, file, context, &report, &error),
                 qPrintable(error));
        const QStringList onPage = rig.callList("objectNames");
        for (const QString &name : report.sentNames)
            QVERIFY2(onPage.contains(name), qPrintable(name));
        QCOMPARE(rig.call("objectText", QStringLiteral("txt_zbt")).toString(), appState().title1);
        if (reader != int(design::Reader::Draw)) return;

        // The draw area takes the template's own cell style.
        const design::LoadBlockValues values{design::longestUserName(folder.db()), 200, 200, 0, 2};
        rig.send(proto::vbndluck, QStringLiteral("0|欧阳明月$1|张伟$2"));
        rig.send(proto::vbLoadBlock, design::loadBlockValue(file, values));
        QCOMPARE(rig.count(proto::cmd::blocksetok), 1);
        QCOMPARE(rig.callList("cellNames").size(), 2);
    }
};

QTEST_MAIN(TestStageTemplates)
#include "tst_stagetemplates.moc"
