#pragma once

#include "design/templatemodel.h"
#include "design/view/documentdialog.h"

class QComboBox;
class QFormLayout;
class QLineEdit;
class QPushButton;
class QSlider;
class QTextEdit;
class FontStyleBox;

// What the text and scrolling-text dialogs share: the text box, shown in the chosen style, and
// the font part. A subclass adds its own frame and columns.
class TextDialogBase : public DocumentDialog {
    Q_OBJECT
protected:
    TextDialogBase(design::DesignerDocument &document, const QString &name,
                   const QStringList &sizes, const QString &title, QWidget *parent);
    // Reads the row and fills the common controls; false (with the box) when there is none.
    bool loadRow();
    // The columns of the font part (and the text unless kept).
    QVariantMap commonColumns(bool withText) const;
    void addFrame(const QString &caption, QFormLayout *form);
    void saveColumns(const QVariantMap &columns);
    QString colorButtonText(QPushButton *button) const;

    design::ObjRow m_row;
    QTextEdit *m_contentEdit = nullptr;
    FontStyleBox *m_style = nullptr;
    QPushButton *m_okButton = nullptr;

private:
    void showStyle();
};

// Edits one text object: text, font and the border panel.
class TextObjectDialog : public TextDialogBase {
    Q_OBJECT
public:
    TextObjectDialog(design::DesignerDocument &document, const QString &name,
                     QWidget *parent = nullptr);

private:
    void save();

    QComboBox *m_borderTypeCombo = nullptr;
    QLineEdit *m_borderEdit = nullptr;
    QPushButton *m_bgColorButton = nullptr;
    QSlider *m_bgAlphaSlider = nullptr;
};

// Edits one scrolling text: text, font, its area, background and scrolling.
class ScrollTextDialog : public TextDialogBase {
    Q_OBJECT
public:
    ScrollTextDialog(design::DesignerDocument &document, const QString &name,
                     QWidget *parent = nullptr);

private:
    void save();

    QLineEdit *m_widthEdit = nullptr;
    QLineEdit *m_heightEdit = nullptr;
    QComboBox *m_bgTypeCombo = nullptr;
    QLineEdit *m_radiusEdit = nullptr;
    QPushButton *m_bgColorButton = nullptr;
    QSlider *m_bgAlphaSlider = nullptr;
    QSlider *m_speedSlider = nullptr;
    QComboBox *m_directionCombo = nullptr;
};
