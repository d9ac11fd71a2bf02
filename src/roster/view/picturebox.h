#pragma once

#include <QFrame>
#include <memory>

class Stage;

// The small picture viewer of the roster and prize editors: a stage running the viewer movie.
// Pictures go to it as "vbAddImg" with an absolute path; it reports "loadok" once it is ready.
class PictureBox : public QFrame {
    Q_OBJECT
public:
    explicit PictureBox(QWidget *parent = nullptr);
    ~PictureBox() override;

    // Loads the viewer movie; false when it could not be loaded or no viewer will ever answer
    // (the caller then goes on without waiting for "loadok").
    bool start();
    // Shows a picture (a path relative to the program folder or absolute), or nothing.
    void showPicture(const QString &path);
    void clearPicture();

Q_SIGNALS:
    void loaded();

private:
    std::unique_ptr<Stage> m_stage;
};
