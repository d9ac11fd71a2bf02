#pragma once

#include <QWidget>

#include <memory>

class QComboBox;
class QLineEdit;
class LinkLabel;
class Stage;

// The console's interface page: the template list, the titles, the stage size and background of
// the chosen template, and a small live preview stage that shows the template as the draw
// screen will.
class TemplatePanel : public QWidget {
    Q_OBJECT
public:
    explicit TemplatePanel(QWidget *parent = nullptr);
    ~TemplatePanel() override;

private:
    void buildControls();
    void createPreviewStage();
    void onPreviewCommand(const QString &command, const QString &args);
    void listTemplates();
    void loadTemplate();
    // Shows the current template again without storing it as the operator's choice: after the
    // template was saved elsewhere.
    void reloadTemplate();
    void savePage();
    void chooseBackground();
    void restoreBackground();
    void openDesigner();

    QComboBox *m_templateCombo = nullptr;
    QLineEdit *m_mainTitleEdit = nullptr;
    QLineEdit *m_subtitleEdit = nullptr;
    QLineEdit *m_widthEdit = nullptr;
    QLineEdit *m_heightEdit = nullptr;
    LinkLabel *m_restoreBackgroundLink = nullptr;
    QWidget *m_previewBox = nullptr;
    std::unique_ptr<Stage> m_preview;
    // The picture chosen as the new background, until the page is saved or the choice undone.
    QString m_backgroundFile;
    bool m_keepStoredChoice = false;
    bool m_listing = false;
};
