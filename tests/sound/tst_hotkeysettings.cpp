#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QtTest>

#include "core/appstate.h"
#include "core/profile.h"
#include "core/store.h"
#include "sound/hotkeys.h"
#include "sound/view/hotkeysettingsdialog.h"
#include "support/childwidget.h"
#include "support/scriptedui.h"
#include "support/tempprogramfolder.h"

namespace {

bool isRed(QLineEdit *edit) {
    return edit->styleSheet().contains(QStringLiteral("220,0,0"));
}

const char *const kRowNames[] = {"start", "stop",   "clear", "cancel", "export",
                                 "print", "parade", "sound", "screen"};

template <typename T>
T *rowChild(const QWidget &form, int row, const char *part) {
    return child<T>(form, QByteArray(kRowNames[row]).append(part).constData());
}

QLineEdit *keyEdit(const QWidget &form, int row) {
    return rowChild<QLineEdit>(form, row, "KeyEdit");
}

QLabel *savedTick(const QWidget &form, int row) {
    return rowChild<QLabel>(form, row, "SavedTick");
}

void clashRow(const char *tag, const QList<int> &presses, const QList<int> &stored) {
    QTest::newRow(tag) << presses << stored;
}

void save(const QWidget &form) {
    child<QPushButton>(form, "saveButton")->click();
}

}  // namespace

class TestHotkeySettings : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_folder = std::make_unique<TempProgramFolder>();
        QVERIFY(m_folder->start());
        m_ui = installScriptedUi();
    }
    void cleanup() { m_folder.reset(); }

    void keyNames_data() {
        QTest::addColumn<int>("code");
        QTest::addColumn<QString>("name");
        QTest::newRow("A") << 65 << "A键";
        QTest::newRow("Z") << 90 << "Z键";
        QTest::newRow("0") << 48 << "数字0";
        QTest::newRow("9") << 57 << "数字9";
        QTest::newRow("keypad 0") << 96 << "小键盘数字0";
        QTest::newRow("keypad 9") << 105 << "小键盘数字9";
        QTest::newRow("enter") << 13 << "回车键(Enter)";
        QTest::newRow("down") << 40 << "↓键";
        QTest::newRow("delete") << 46 << "Delete键";
        QTest::newRow("left is refused") << 37 << "不支持该键";
        QTest::newRow("F1 is refused") << 112 << "不支持该键";
        QTest::newRow("a lower-case code") << 97 << "小键盘数字1";
        QTest::newRow("below the letters") << 64 << "不支持该键";
    }

    void keyNames() {
        QFETCH(int, code);
        QFETCH(QString, name);
        QCOMPARE(hotkeys::keyName(code), name);
    }

    void loadsTheStoredKeys() {
        setStoredKey(3, 37);
        HotkeySettingsDialog form;
        QCOMPARE(form.windowTitle(), QStringLiteral("快捷键设置"));
        QCOMPARE(rowChild<QLabel>(form, 2, "KeyCaption")->text(), QStringLiteral("取消滚动∶"));
        QCOMPARE(keyEdit(form, 0)->text(), QStringLiteral("空格键(Space)"));
        QVERIFY(!isRed(keyEdit(form, 0)));
        QCOMPARE(keyEdit(form, 2)->text(), QStringLiteral("不支持该键"));
        QVERIFY(isRed(keyEdit(form, 2)));
        QCOMPARE(keyEdit(form, 4)->text(), QStringLiteral("E键"));
        // The unsupported key read is kept and written back as it is.
        save(form);
        QVERIFY(savedTick(form, 2)->isVisibleTo(&form));
        QCOMPARE(storedKey(3), 37);
    }

    void clashes_data() {
        // Keys pressed per row (row index -> Qt key), then the KeyAsc of each of the nine rows; a
        // row that clashes keeps no key (-1). The factory keys: space, space, backspace, delete,
        // E, P, L, M, F.
        QTest::addColumn<QList<int>>("presses");  // row, Qt key, row, Qt key...
        QTest::addColumn<QList<int>>("stored");
        clashRow("start and stop share a key", {0, Qt::Key_Return, 1, Qt::Key_Return},
                 {13, 13, 8, 46, 69, 80, 76, 77, 70});
        clashRow("start and clear: the later row loses", {0, Qt::Key_Q, 2, Qt::Key_Q},
                 {81, 32, -1, 46, 69, 80, 76, 77, 70});
        clashRow("start takes a stored key: start loses", {0, Qt::Key_E},
                 {-1, 32, 8, 46, 69, 80, 76, 77, 70});
        clashRow("two of the seven on one key", {3, Qt::Key_K, 7, Qt::Key_K},
                 {32, 32, 8, 75, 69, 80, 76, -1, 70});
        clashRow("stop may not share with the seven", {1, Qt::Key_F},
                 {32, -1, 8, 46, 69, 80, 76, 77, 70});
        clashRow("a row takes a key another row gives up", {4, Qt::Key_P, 5, Qt::Key_E},
                 {32, 32, 8, 46, -1, 69, 76, 77, 70});
        clashRow("unsupported key is stored as its code", {6, Qt::Key_Left},
                 {32, 32, 8, 46, 69, 80, 37, 77, 70});
    }

    void clashes() {
        QFETCH(QList<int>, presses);
        HotkeySettingsDialog form;
        for (int i = 0; i + 1 < presses.size(); i += 2)
            QTest::keyClick(keyEdit(form, presses.at(i)), Qt::Key(presses.at(i + 1)));
        save(form);
        QList<int> stored;
        for (int row = 0; row < 9; ++row) {
            stored << storedKey(row + 1);
            const bool clash = stored.last() == -1;
            QCOMPARE(keyEdit(form, row)->text() == QStringLiteral("重复,保存失效"), clash);
            QCOMPARE(savedTick(form, row)->isVisibleTo(&form), !clash);
            if (clash) QVERIFY(isRed(keyEdit(form, row)));
        }
        QTEST(stored, "stored");
        // The dialog stays open and says nothing.
        QVERIFY(m_ui->records.isEmpty());
    }

    // Two rows without a key (-1) both clash; a row holding 0 is left as it is, without a tick.
    void rowsWithoutKeyClashAndZeroIsSkipped() {
        setStoredKey(4, -1);
        setStoredKey(5, -1);
        setStoredKey(6, 0);
        HotkeySettingsDialog form;
        QCOMPARE(keyEdit(form, 3)->text(), QStringLiteral("不支持该键"));
        QVERIFY(isRed(keyEdit(form, 4)));
        save(form);
        QCOMPARE((QList<int>{storedKey(1), storedKey(4), storedKey(5), storedKey(6)}),
                 (QList<int>{32, -1, -1, 0}));
        QCOMPARE((QStringList{keyEdit(form, 3)->text(), keyEdit(form, 4)->text()}),
                 (QStringList{"重复,保存失效", "重复,保存失效"}));
        QVERIFY(!savedTick(form, 5)->isVisibleTo(&form));
        QVERIFY(keyEdit(form, 5)->text() != QStringLiteral("重复,保存失效"));
        QVERIFY(savedTick(form, 0)->isVisibleTo(&form));
    }

    void focusClearsPlaceholders() {
        setStoredKey(3, 1);
        setStoredKey(4, 1);
        HotkeySettingsDialog form;
        QLineEdit *edit = keyEdit(form, 2);
        save(form);  // rows 2 and 3 share a stored key: the first one tested is refused
        QCOMPARE(edit->text(), QStringLiteral("重复,保存失效"));
        QFocusEvent in(QEvent::FocusIn);
        QApplication::sendEvent(edit, &in);
        QVERIFY(edit->text().isEmpty());
        QFocusEvent out(QEvent::FocusOut);
        QApplication::sendEvent(edit, &out);
        QCOMPARE(edit->text(), QStringLiteral("无"));
        QApplication::sendEvent(edit, &in);
        QVERIFY(edit->text().isEmpty());
        QTest::keyClick(edit, Qt::Key_7, Qt::KeypadModifier);
        QCOMPARE(edit->text(), QStringLiteral("小键盘数字7"));
        QApplication::sendEvent(edit, &out);
        QCOMPARE(edit->text(), QStringLiteral("小键盘数字7"));

        // A row whose tick shows loses it when entered again.
        QVERIFY(savedTick(form, 0)->isVisibleTo(&form));
        QApplication::sendEvent(keyEdit(form, 0), &in);
        QVERIFY(!savedTick(form, 0)->isVisibleTo(&form));
        QCOMPARE(keyEdit(form, 0)->text(), QStringLiteral("空格键(Space)"));
        save(form);
        QCOMPARE(storedKey(3), 103);
    }

    void guardSettingsAreWritten() {
        HotkeySettingsDialog form;
        auto *guardBox = child<QCheckBox>(form, "guardBox");
        auto *guardSlider = child<QSlider>(form, "guardSlider");
        QVERIFY(guardBox->isChecked());  // factory: on, 3 seconds
        QCOMPARE((QList<int>{guardSlider->value(), guardSlider->minimum(), guardSlider->maximum(),
                             guardSlider->pageStep()}),
                 (QList<int>{3, 1, 100, 5}));
        guardSlider->setValue(7);
        guardBox->setChecked(false);
        QVERIFY(!guardSlider->isEnabled());
        save(form);
        QCOMPARE((QList<int>{appState().isTimeProtect, appState().timeProtectNum}),
                 (QList<int>{0, 7}));
        const QString ini = m_folder->path(QStringLiteral("config.ini"));
        QCOMPARE((QStringList{readIni("main", "isTimeProtect", ini),
                              readIni("main", "timeProtectNum", ini)}),
                 (QStringList{"0", "7"}));
    }

private:
    int storedKey(int id) {
        return store::scalar(m_folder->db(),
                             QStringLiteral("SELECT KeyAsc FROM KeyBoard WHERE ID=?"), {id})
            .toInt();
    }
    void setStoredKey(int id, int code) {
        store::exec(m_folder->db(), QStringLiteral("UPDATE KeyBoard SET KeyAsc=? WHERE ID=?"),
                    {code, id});
    }

    std::unique_ptr<TempProgramFolder> m_folder;
    ScriptedUi *m_ui = nullptr;
};

QTEST_MAIN(TestHotkeySettings)
#include "tst_hotkeysettings.moc"
