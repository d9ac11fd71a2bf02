#pragma once

#include "design/view/documentdialog.h"

class QCheckBox;
class QLineEdit;
class QSlider;
class FontStyleBox;

// The picture's opacity and reflection.
class ImageObjectDialog : public DocumentDialog {
    Q_OBJECT
public:
    ImageObjectDialog(design::DesignerDocument &document, const QString &name,
                      QWidget *parent = nullptr);

private:
    void save();

    QSlider *m_alphaSlider = nullptr;
    QCheckBox *m_reflectionCheck = nullptr;
    bool m_reflectionAtOpening = false;
};

// An animation's size; 0 for its own size.
class AnimationObjectDialog : public DocumentDialog {
    Q_OBJECT
public:
    AnimationObjectDialog(design::DesignerDocument &document, const QString &name,
                          QWidget *parent = nullptr);

private:
    void save();

    QLineEdit *m_widthEdit = nullptr;
    QLineEdit *m_heightEdit = nullptr;
};

// The font of one style row of the draw area or the winner playback.
class DrawFontDialog : public DocumentDialog {
    Q_OBJECT
public:
    DrawFontDialog(design::DesignerDocument &document, const QString &row,
                   QWidget *parent = nullptr);

private:
    void save();

    FontStyleBox *m_style = nullptr;
};

// What $Name1, $Name2, $1 and $2 stand for in a template's texts.
class VariablesHelpDialog : public QDialog {
    Q_OBJECT
public:
    explicit VariablesHelpDialog(QWidget *parent = nullptr);
};
