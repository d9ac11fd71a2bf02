#pragma once

#include <QWidget>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;
class QSlider;
class Stage;

namespace design {
class DesignerDocument;
}

// The second tab: the rolling cell of the draw (the blockValue row) and its preview on the
// stage. Each change writes the working copy at once and shows the cells again.
class DrawAreaPanel : public QWidget {
    Q_OBJECT
public:
    DrawAreaPanel(design::DesignerDocument &document, Stage &stage, QWidget *parent = nullptr);
    // Fills the controls from the row (writing nothing), then previews once.
    void load();
    // Sends vbLuckBox from the controls as they stand.
    void preview();

private:
    void write(const QString &column, const QVariant &value);
    void writeNumber(QLineEdit *edit, const QString &column);
    void openFont();

    design::DesignerDocument &m_document;
    Stage &m_stage;
    bool m_loading = false;
    QComboBox *m_bgTypeCombo = nullptr;
    QPushButton *m_bgColorButton = nullptr;
    QSlider *m_bgAlphaSlider = nullptr;
    QLineEdit *m_dotXEdit = nullptr;
    QLineEdit *m_dotYEdit = nullptr;
    QLineEdit *m_paddingEdit = nullptr;
    QLineEdit *m_viewNumEdit = nullptr;
    QLineEdit *m_demoTextEdit = nullptr;
    QComboBox *m_luckTypeCombo = nullptr;
};

// The third tab: the winner playback (the playTitle and playName rows) and its preview.
class PlaybackPanel : public QWidget {
    Q_OBJECT
public:
    PlaybackPanel(design::DesignerDocument &document, Stage &stage, QWidget *parent = nullptr);
    void load();
    // Sends vbLuckPlay from the controls, then the scroll switch.
    void preview();

private:
    void write(const QString &row, const QString &column, const QVariant &value);
    void connectSlider(QSlider *slider, const QString &row, const QString &column);
    void connectNumber(QLineEdit *edit, const QString &row, const QString &column);
    void connectColor(QPushButton *button, const QString &row);
    void openFont(const QString &row);
    void sendScroll();

    design::DesignerDocument &m_document;
    Stage &m_stage;
    bool m_loading = false;
    QSlider *m_boxWSlider = nullptr;
    QSlider *m_boxHSlider = nullptr;
    QSlider *m_speedSlider = nullptr;
    QSlider *m_colNumSlider = nullptr;
    QCheckBox *m_scrollCheck = nullptr;
    QComboBox *m_titleTypeCombo = nullptr;
    QLineEdit *m_titlePaddingEdit = nullptr;
    QSlider *m_titleBgAlphaSlider = nullptr;
    QPushButton *m_titleBgColorButton = nullptr;
    QComboBox *m_nameTypeCombo = nullptr;
    QLineEdit *m_nameDotXEdit = nullptr;
    QLineEdit *m_nameDotYEdit = nullptr;
    QLineEdit *m_namePaddingEdit = nullptr;
    QSlider *m_nameBgAlphaSlider = nullptr;
    QPushButton *m_nameBgColorButton = nullptr;
};
