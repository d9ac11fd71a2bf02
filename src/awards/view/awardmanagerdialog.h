#pragma once

#include <QDialog>

#include "awards/awardbook.h"

class AwardEditor;
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
        ColSlots,
        ColBatches,
        ColPrize,
        ColPhoto,
        ColRepeatWins,
        ColRange,
        ColumnCount
    };

protected:
    void done(int result) override;

private:
    QWidget *buildToolbar();
    void buildList();
    QTreeWidgetItem *addRow(const AwardRow &row);
    // Reloads the list and selects the award awardId; the last row when no row has that ID.
    void showAwards(int awardId = 0);
    void loadEditor(QTreeWidgetItem *item);
    void setEditable(bool editable);
    // The ID of the selected award, 0 when none.
    int selectedId() const;
    void saveEdit();
    void deleteTicked();
    void moveSelected(int step);
    void addAward();

    AwardBook m_book;
    bool m_filling = false;
    QPushButton *m_deleteButton = nullptr;
    QPushButton *m_moveDownButton = nullptr;
    QPushButton *m_moveUpButton = nullptr;
    QTreeWidget *m_awardList = nullptr;
    AwardEditor *m_editor = nullptr;
    QPushButton *m_saveButton = nullptr;
};
