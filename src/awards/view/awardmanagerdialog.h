#pragma once

#include <QDialog>

#include "awards/awardbook.h"

class AwardEditor;
class QGroupBox;
class QPushButton;
class QTreeWidget;
class QTreeWidgetItem;

// The award manager: every award in draw order, an editor for the selected one, add, delete of
// the ticked awards, and moving in the draw order. Editing or deleting an award with winners
// wipes those wins, after a question.
class AwardManagerDialog : public QDialog {
    Q_OBJECT
public:
    explicit AwardManagerDialog(QWidget *parent = nullptr);

    // The list's columns.
    enum Column {
        ColCheck,
        ColOrder,
        ColName,
        ColNum,
        ColGroup,
        ColPrize,
        ColPhoto,
        ColReLuck,
        ColRange,
        ColumnCount
    };

    QWidget *toolJX = nullptr;
    QPushButton *cmdAddJx = nullptr;
    QPushButton *cmdDelJx = nullptr;
    QPushButton *cmdDown = nullptr;
    QPushButton *cmdUp = nullptr;
    QTreeWidget *lstJX = nullptr;
    QGroupBox *frm2 = nullptr;
    AwardEditor *editor = nullptr;
    QPushButton *cmdEdt = nullptr;

    // Reloads the list and selects the row keyed key ("K<ID>"); the last row when no row matches.
    void rdJXLst(const QString &key);
    // The ID of the selected award, 0 when none.
    int selectedId() const;
    // Selects the award's row, which loads it into the editor.
    void selectAward(int id);
    void setTicked(int id, bool ticked);

    void saveEdit();
    void deleteTicked();
    void moveSelected(int step);
    void addAward();

protected:
    void done(int result) override;

private:
    QWidget *buildToolbar();
    void buildList();
    QTreeWidgetItem *addRow(const AwardRow &row);
    void loadEditor(QTreeWidgetItem *item);
    void setEditable(bool editable);
    QTreeWidgetItem *itemOf(int id) const;

    AwardBook m_book;
    bool m_filling = false;
};
