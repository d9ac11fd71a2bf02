#pragma once

#include <QDialog>

class QCheckBox;
class QLineEdit;
class QSlider;
class FontStyleBox;

namespace design {
class DesignerDocument;
}

// The picture's opacity and reflection.
class ImageObjectDialog : public QDialog {
    Q_OBJECT
public:
    ImageObjectDialog(design::DesignerDocument &document, const QString &name,
                      QWidget *parent = nullptr);
    bool isLoaded() const { return m_loaded; }

private:
    void save();

    design::DesignerDocument &m_document;
    QString m_name;
    QSlider *m_alphaSlider = nullptr;
    QCheckBox *m_reflectionCheck = nullptr;
    bool m_reflectionAtOpening = false;
    bool m_loaded = false;
};

// An animation's size; 0 for its own size.
class AnimationObjectDialog : public QDialog {
    Q_OBJECT
public:
    AnimationObjectDialog(design::DesignerDocument &document, const QString &name,
                          QWidget *parent = nullptr);
    bool isLoaded() const { return m_loaded; }

private:
    void save();

    design::DesignerDocument &m_document;
    QString m_name;
    QLineEdit *m_widthEdit = nullptr;
    QLineEdit *m_heightEdit = nullptr;
    bool m_loaded = false;
};

// The font of one style row of the draw area or the winner playback.
class DrawFontDialog : public QDialog {
    Q_OBJECT
public:
    DrawFontDialog(design::DesignerDocument &document, const QString &row,
                   QWidget *parent = nullptr);
    bool isLoaded() const { return m_loaded; }

private:
    void save();

    design::DesignerDocument &m_document;
    QString m_row;
    FontStyleBox *m_style = nullptr;
    bool m_loaded = false;
};

// What $Name1, $Name2, $1 and $2 stand for in a template's texts.
class VariablesHelpDialog : public QDialog {
    Q_OBJECT
public:
    explicit VariablesHelpDialog(QWidget *parent = nullptr);
};
