#include "chrome/style.h"

#include <QApplication>
#include <QTreeWidget>

namespace style {

QString styleSheet() {
    return QStringLiteral(R"(
QWidget { font-family: "Noto Sans CJK SC", "黑体"; font-size: 13px; color: rgb(128,23,25); }
QDialog, QMainWindow, #consoleBody { background: rgb(255,235,236); }
QLabel { background: transparent; }
QLabel[role="heading"] { font-size: 15px; font-weight: bold; }
QLabel[role="hint"] { color: rgb(169,97,100); }
QLabel[role="link"] { color: rgb(200,40,58); text-decoration: underline; }
QLabel[role="link"]:hover { color: rgb(128,23,25); }
QLineEdit, QComboBox, QSpinBox, QPlainTextEdit, QTextEdit {
  background: white; border: 1px solid rgb(220,170,174); border-radius: 4px; padding: 4px 6px;
  selection-background-color: rgb(200,40,58); selection-color: white; }
QLineEdit:focus, QComboBox:focus, QSpinBox:focus { border-color: rgb(200,40,58); }
QComboBox QAbstractItemView { background: white; selection-background-color: rgb(251,214,218);
  selection-color: rgb(128,23,25); outline: none; }
QLineEdit:disabled { background: rgb(248,232,233); color: rgb(190,150,152); }
QPushButton {
  background: white; border: 1px solid rgb(210,150,155); border-radius: 5px;
  padding: 6px 16px; min-width: 64px; }
QPushButton[role="compact"] { padding: 4px 10px; min-width: 36px; }
QPushButton:hover { background: rgb(255,245,245); border-color: rgb(200,40,58); }
QPushButton:pressed { background: rgb(250,220,222); }
QPushButton:default, QPushButton[role="primary"] {
  background: qlineargradient(x1:0,y1:0,x2:0,y2:1, stop:0 rgb(214,56,70), stop:1 rgb(168,28,40));
  color: white; border: 1px solid rgb(140,20,30); }
QPushButton:default:hover, QPushButton[role="primary"]:hover { background: rgb(222,64,78); }
QPushButton:disabled { color: rgb(190,150,152); border-color: rgb(230,200,202); }
QPushButton:checked { background: rgb(200,40,58); color: white; border-color: rgb(150,20,30); }
QDialogButtonBox { dialogbuttonbox-buttons-have-icons: 0; }
QCheckBox, QRadioButton { spacing: 6px; }
QTabWidget::pane { border: 1px solid rgb(230,190,194); border-radius: 6px; top: -1px;
  background: rgb(255,248,248); }
QTabBar::tab { background: rgb(250,225,227); border: 1px solid rgb(230,190,194);
  padding: 6px 18px; margin-right: 2px; border-top-left-radius: 6px; border-top-right-radius: 6px; }
QTabBar::tab:selected { background: rgb(255,248,248); border-bottom-color: rgb(255,248,248);
  font-weight: bold; }
QSlider::groove:horizontal { height: 6px; border-radius: 3px; background: rgb(236,200,203); }
QSlider::sub-page:horizontal { border-radius: 3px; background: rgb(200,40,58); }
QSlider::handle:horizontal { width: 16px; margin: -6px 0; border-radius: 8px;
  background: white; border: 2px solid rgb(200,40,58); }
QGroupBox { border: 1px solid rgb(230,190,194); border-radius: 6px; margin-top: 14px;
  padding-top: 8px; }
QGroupBox::title { subcontrol-origin: margin; left: 10px; padding: 0 4px; font-weight: bold; }
QToolTip { background: rgb(128,23,25); color: white; border: none; padding: 4px; }
)");
}

void apply() {
    qApp->setStyleSheet(styleSheet());
}

void styleList(QTreeWidget *list) {
    list->setRootIsDecorated(false);
    list->setUniformRowHeights(true);
    list->setAlternatingRowColors(true);
    list->setAllColumnsShowFocus(true);
    list->setSelectionMode(QAbstractItemView::SingleSelection);
    QPalette palette = list->palette();
    for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::Highlight, QColor(251, 214, 218));
        palette.setColor(group, QPalette::HighlightedText, kDeep);
    }
    list->setPalette(palette);
    list->setStyleSheet(QStringLiteral(
        "QTreeWidget { background: white; alternate-background-color: rgb(255,247,247);"
        " border: 1px solid rgb(230,190,194); border-radius: 6px; }"
        "QTreeWidget::item { height: 28px; border: none; }"
        "QTreeWidget::item:selected, QTreeWidget::item:selected:!active {"
        " background: rgb(251,214,218); color: rgb(128,23,25); }"
        "QHeaderView::section { background: rgb(250,225,227); border: none;"
        " border-right: 1px solid rgb(236,200,203); border-bottom: 1px solid rgb(230,190,194);"
        " padding: 6px 6px; font-weight: bold; }"));
}

}  // namespace style
