#include "chrome/widgethelpers.h"

#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QLineEdit>
#include <QPointer>
#include <QScreen>
#include <QTimer>
#include <QWidget>

#include "core/startup.h"

namespace {

QPointer<QWidget> g_console;

class SelectOnFocus : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject *watched, QEvent *event) override {
        if (event->type() == QEvent::FocusIn) {
            auto *edit = static_cast<QLineEdit *>(watched);
            QTimer::singleShot(0, edit, [edit] { selectAllText(edit); });
        }
        return false;
    }
};

}  // namespace

void selectCombo(QComboBox *combo, const QString &text) {
    for (int i = 0; i < combo->count(); ++i) {
        if (combo->itemText(i).trimmed() == text) {
            combo->setCurrentIndex(i);
            return;
        }
        combo->setCurrentIndex(0);
    }
}

void selectAllText(QLineEdit *edit) {
    edit->selectAll();
}

void selectAllOnFocus(QLineEdit *edit) {
    edit->installEventFilter(new SelectOnFocus(edit));
}

void setConsoleWindow(QWidget *console) {
    g_console = console;
}

QWidget *consoleWindow() {
    return g_console;
}

void centerForm(QWidget *form) {
    // Over the console while it is up; during the draw it is hidden, and the dialogs of the draw
    // screen centre on that screen instead.
    QRect area;
    QWidget *owner = form->parentWidget() ? form->parentWidget()->window() : nullptr;
    if (g_console && g_console != form && g_console->isVisible())
        area = g_console->frameGeometry();
    else if (owner && owner->isVisible())
        area = owner->frameGeometry();
    else if (QScreen *screen = QGuiApplication::primaryScreen())
        area = screen->availableGeometry();
    const QSize size = form->frameGeometry().size();
    const int left = area.left() + (area.width() - size.width()) / 2;
    const int top = area.top() + (area.height() - size.height()) / 2;
    form->move(std::max(0, left), std::max(0, top));
}

void listChineseFonts(QComboBox *combo) {
    const QStringList families = QFontDatabase::families(QFontDatabase::SimplifiedChinese);
    for (const QString &family : families) {
        if (!family.contains(QLatin1Char('@'))) combo->addItem(family);
    }
    if (combo->count() > 0) combo->setCurrentIndex(0);
}

void exitProgram(bool force) {
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (auto it = windows.rbegin(); it != windows.rend(); ++it) {
        if ((*it)->isVisible()) (*it)->close();
    }
    bool anyLeft = false;
    for (QWidget *window : QApplication::topLevelWidgets())
        anyLeft = anyLeft || window->isVisible();
    if (!anyLeft || force) shutDown();
}
