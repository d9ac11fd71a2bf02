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
        // Keys pressed per row (row index -> Qt key), then the KeyAsc of each of the nine rows and
        // the rows that show the clash text. The factory keys: space, space, backspace, delete, E,
        // P, L, M, F.
        QTest::addColumn<QList<int>>("rows");
        QTest::addColumn<QList<int>>("keys");
        QTest::addColumn<QList<int>>("stored");
        QTest::addColumn<QList<int>>("clashRows");
        QTest::newRow("start and stop share a key")
            << QList<int>{0, 1} << QList<int>{Qt::Key_Return, Qt::Key_Return}
            << QList<int>{13, 13, 8, 46, 69, 80, 76, 77, 70} << QList<int>{};
        QTest::newRow("start and clear: the later row loses")
            << QList<int>{0, 2} << QList<int>{Qt::Key_Q, Qt::Key_Q}
            << QList<int>{81, 32, -1, 46, 69, 80, 76, 77, 70} << QList<int>{2};
        QTest::newRow("start takes a stored key: start loses")
            << QList<int>{0} << QList<int>{Qt::Key_E}
            << QList<int>{-1, 32, 8, 46, 69, 80, 76, 77, 70} << QList<int>{0};
        QTest::newRow("two of the seven on one key")
            << QList<int>{3, 7} << QList<int>{Qt::Key_K, Qt::Key_K}
            << QList<int>{32, 32, 8, 75, 69, 80, 76, -1, 70} << QList<int>{7};
        QTest::newRow("stop may not share with the seven")
            << QList<int>{1} << QList<int>{Qt::Key_F}
            << QList<int>{32, -1, 8, 46, 69, 80, 76, 77, 70} << QList<int>{1};
        QTest::newRow("a row takes a key another row gives up")
            << QList<int>{4, 5} << QList<int>{Qt::Key_P, Qt::Key_E}
            << QList<int>{32, 32, 8, 46, -1, 69, 76, 77, 70} << QList<int>{4};
        QTest::newRow("unsupported key is stored as its code")
            << QList<int>{6} << QList<int>{Qt::Key_Left}
            << QList<int>{32, 32, 8, 46, 69, 80, 37, 77, 70} << QList<int>{};
    }

    void clashes() {
        QFETCH(QList<int>, rows);
        QFETCH(QList<int>, keys);
        QFETCH(QList<int>, stored);
        QFETCH(QList<int>, clashRows);
        HotkeySettingsDialog form;
        for (int i = 0; i < rows.size(); ++i)
            QTest::keyClick(keyEdit(form, rows.at(i)), Qt::Key(keys.at(i)));
        save(form);
        for (int id = 1; id <= 9; ++id)
            QCOMPARE(storedKey(id), stored.at(id - 1));
        for (int row = 0; row < 9; ++row) {
            const bool clash = clashRows.contains(row);
            QCOMPARE(keyEdit(form, row)->text() == QStringLiteral("重复,保存失效"), clash);
            QCOMPARE(savedTick(form, row)->isVisibleTo(&form), !clash);
            if (clash) QVERIFY(isRed(keyEdit(form, row)));
        }
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
        for (int id : {4, 5})
            QCOMPARE(storedKey(id), -1);
        QCOMPARE(keyEdit(form, 3)->text(), QStringLiteral("重复,保存失效"));
        QCOMPARE(keyEdit(form, 4)->text(), QStringLiteral("重复,保存失效"));
        QCOMPARE(storedKey(6), 0);
        QVERIFY(!savedTick(form, 5)->isVisibleTo(&form));
        QVERIFY(keyEdit(form, 5)->text() != QStringLiteral("重复,保存失效"));
        QCOMPARE(storedKey(1), 32);
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
        QCOMPARE(guardSlider->value(), 3);
        QCOMPARE(guardSlider->minimum(), 1);
        QCOMPARE(guardSlider->maximum(), 100);
        QCOMPARE(guardSlider->pageStep(), 5);
        guardSlider->setValue(7);
        guardBox->setChecked(false);
        QVERIFY(!guardSlider->isEnabled());
        save(form);
        QCOMPARE(appState().isTimeProtect, qint16(0));
        QCOMPARE(appState().timeProtectNum, qint16(7));
        const QString ini = m_folder->path(QStringLiteral("config.ini"));
        QCOMPARE(readIni(QStringLiteral("main"), QStringLiteral("isTimeProtect"), ini),
                 QStringLiteral("0"));
        QCOMPARE(readIni(QStringLiteral("main"), QStringLiteral("timeProtectNum"), ini),
                 QStringLiteral("7"));
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
