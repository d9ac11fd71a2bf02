#pragma once

#include <QDialog>
#include <QHash>
#include <memory>

class QAction;
class QCheckBox;
class QComboBox;
class QLabel;
class QMenu;
class QPushButton;
class QScrollBar;
class QTabWidget;
class Stage;
class DrawAreaPanel;
class PlaybackPanel;

namespace design {
class DesignerDocument;
}

// The template designer: the stage at design size on a scrollable page, three tabs (objects,
// the draw area's cells, the winner playback), the tool bar and a status line with the selected
// object's geometry. It edits the working copy skin/sdb.tmp that the console made of the template
// (appState().skinFile); saving copies it back.
class DesignerWindow : public QDialog {
    Q_OBJECT
public:
    explicit DesignerWindow(QWidget *parent = nullptr);
    ~DesignerWindow() override;

    design::DesignerDocument &document() { return *m_document; }
    Stage &stage() { return *m_stage; }
    QString selectedObject() const { return m_selectedName; }

    void save();
    void restoreTemplate();
    void editObject(const QString &name);
    void deleteSelected();
    void moveLayer(bool up);
    void nudgeSelection(int dx, int dy);

protected:
    void closeEvent(QCloseEvent *event) override;
    void reject() override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void buildToolBar(QLayout *layout);
    QWidget *buildPage();
    QWidget *buildObjectsTab();
    QWidget *buildStyleTab(const QString &title, QWidget *panel);
    void onStageCommand(const QString &command, const QString &args);
    void onStageLoaded();
    void onSelection(const QString &args);
    void onObjectChanged(const QString &args);
    void onTabChanged(int index);
    void onReloaded();
    void updateSaveButton();
    void updateObjectButtons();
    void updateScrollBars();
    void applyZoom();
    void refreshSystemChecks();
    void setSystemVisible(const QString &name, bool visible);
    void clearSelection();
    void addFileObject(bool image);
    void showObjectMenu(const QPoint &globalPos);
    bool finishEditing();

    std::unique_ptr<Stage> m_stage;
    std::unique_ptr<design::DesignerDocument> m_document;
    QWidget *m_viewport = nullptr;
    QScrollBar *m_xBar = nullptr;
    QScrollBar *m_yBar = nullptr;
    QComboBox *m_zoomCombo = nullptr;
    QTabWidget *m_tabs = nullptr;
    QAction *m_saveAction = nullptr;
    QLabel *m_geometryLabel = nullptr;
    QPushButton *m_upButton = nullptr;
    QPushButton *m_downButton = nullptr;
    QPushButton *m_editButton = nullptr;
    QPushButton *m_deleteButton = nullptr;
    QHash<QString, QCheckBox *> m_systemChecks;
    DrawAreaPanel *m_drawAreaPanel = nullptr;
    PlaybackPanel *m_playbackPanel = nullptr;
    QString m_selectedName;
    int m_zoom = 100;
    bool m_designLoading = false;
    bool m_upBlocked = false;
    bool m_downBlocked = false;
    bool m_finished = false;
};
