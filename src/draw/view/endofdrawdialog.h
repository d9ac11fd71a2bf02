#pragma once

#include <QAbstractButton>
#include <QDialog>

class QPushButton;

// One of the prompt's four choices: a card with an icon and a caption that sinks by one pixel
// while pressed.
class ChoiceTile : public QAbstractButton {
    Q_OBJECT
public:
    ChoiceTile(const QString &icon, const QString &caption, QWidget *parent);
    QSize sizeHint() const override { return {90, 96}; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_icon;
};

namespace draw {
class DrawEngine;
}

// "系统提示": every award is full. Offers a restart (after a question, with a snapshot of the
// winners under History/), the export and printout of all winners, and the winner parade. The
// choices are named restartChoice, exportChoice, printChoice and paradeChoice.
class EndOfDrawDialog : public QDialog {
    Q_OBJECT
public:
    enum Choice { Restart = 1, Export = 2, Print = 3, Parade = 4 };

    explicit EndOfDrawDialog(draw::DrawEngine &engine, QWidget *parent = nullptr);

Q_SIGNALS:
    // The wins were cleared and the default award loaded again; the prompt has closed.
    void restartDone();
    // The operator wants the winner parade (vbCallPlay without a flag); the prompt has closed.
    void paradeRequested();

private:
    void choose(int choice);
    void restart();

    draw::DrawEngine &m_engine;
    ChoiceTile *m_choices[5] = {};  // 1 to 4, as the choices
    QPushButton *m_cancelButton = nullptr;
};
