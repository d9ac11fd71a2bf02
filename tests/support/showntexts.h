#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QStringList>
#include <QTabBar>
#include <QTreeWidget>
#include <QtTest>

// Every text a visible widget of the window shows: titles, captions, labels, tips, tabs,
// headers, the items of lists to choose from.
inline QStringList shownTexts(QWidget &window) {
    QStringList texts{window.windowTitle()};
    for (QWidget *widget : window.findChildren<QWidget *>()) {
        if (!widget->isVisibleTo(&window)) continue;
        texts << widget->toolTip();
        if (auto *label = qobject_cast<QLabel *>(widget)) texts << label->text();
        if (auto *button = qobject_cast<QAbstractButton *>(widget)) texts << button->text();
        if (auto *box = qobject_cast<QGroupBox *>(widget)) texts << box->title();
        if (auto *edit = qobject_cast<QLineEdit *>(widget))
            texts << edit->text() << edit->placeholderText();
        if (auto *combo = qobject_cast<QComboBox *>(widget))
            for (int i = 0; i < combo->count(); ++i)
                texts << combo->itemText(i);
        if (auto *tabs = qobject_cast<QTabBar *>(widget))
            for (int i = 0; i < tabs->count(); ++i)
                texts << tabs->tabText(i);
        if (auto *tree = qobject_cast<QTreeWidget *>(widget))
            for (int c = 0; c < tree->columnCount(); ++c)
                texts << tree->headerItem()->text(c) << tree->headerItem()->toolTip(c);
    }
    return texts;
}

// Fails the running test on the first text that holds a Chinese character.
inline void verifyNoChinese(const QStringList &texts) {
    static const QRegularExpression chinese(
        QStringLiteral("[\\x{3000}-\\x{9fff}\\x{ff00}-\\x{ffef}]"));
    for (const QString &text : texts)
        QVERIFY2(!text.contains(chinese), qPrintable(text));
}
