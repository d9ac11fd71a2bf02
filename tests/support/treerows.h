#pragma once

#include <QList>
#include <QStringList>
#include <QTreeWidget>

// The rows of a list as shown, each the texts of the given columns (all when none) joined by "|".
inline QStringList treeRows(const QTreeWidget *tree, const QList<int> &columns = {}) {
    QList<int> shown = columns;
    if (shown.isEmpty())
        for (int column = 0; column < tree->columnCount(); ++column)
            shown << column;
    QStringList rows;
    for (int i = 0; i < tree->topLevelItemCount(); ++i) {
        QStringList cells;
        for (int column : std::as_const(shown))
            cells << tree->topLevelItem(i)->text(column);
        rows << cells.join(QLatin1Char('|'));
    }
    return rows;
}
