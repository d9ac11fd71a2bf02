#include "design/view/designerwindow.h"

#include <QAction>
#include <QCloseEvent>
#include <QComboBox>
#include <QDateTime>
#include <QFile>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QQuickWidget>
#include <QScrollArea>
#include <QScrollBar>
#include <QStatusBar>
#include <QTabWidget>
#include <QToolBar>
#include <QUndoStack>
#include <QVBoxLayout>

#include "chrome/widgethelpers.h"
#include "core/appstate.h"
#include "core/events.h"
#include "core/logging.h"
#include "core/ui.h"
#include "design/designerdocument.h"
#include "design/view/stylepanels.h"
#include "design/view/templaterestoredialog.h"
#include "stage/protocol.h"
#include "stage/view/stagefactory.h"

namespace {

QString geometryText(const QString &head, const QStringList &f) {
    return head + QStringLiteral(" X=") + f.value(1) + QStringLiteral(" Y=") + f.value(2) +
           QCoreApplication::translate("DesignerWindow", "  宽度:") + f.value(3) +
           QCoreApplication::translate("DesignerWindow", " 高度:") + f.value(4);
}

}  // namespace

DesignerWindow::DesignerWindow(QWidget *parent) : QDialog(parent) {
    setWindowTitle(tr("模板编辑"));
    setObjectName(QStringLiteral("DesignerWindow"));
    setMinimumSize(866, 544);
    resize(1280, 760);
    setWindowFlag(Qt::WindowMaximizeButtonHint, true);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);

    m_stage = createStage(nullptr);
    const AppState &state = appState();
    m_document =
        std::make_unique<design::DesignerDocument>(state.appPath, state.skinFile, *m_stage);
    QString error;
    if (!m_document->open(&error)) qCWarning(lcDesign) << "designer:" << error;
    buildToolBar(layout);

    m_tabs = new QTabWidget(this);
    m_tabs->setObjectName(QStringLiteral("tabs"));
    m_tabs->setFixedWidth(440);
    // The three captions are long; they all stay in view.
    m_tabs->setStyleSheet(QStringLiteral("QTabBar::tab { padding: 6px 0px; }"));
    m_drawAreaPanel = new DrawAreaPanel(*m_document, *m_stage, this);
    m_playbackPanel = new PlaybackPanel(*m_document, *m_stage, this);
    m_tabs->addTab(buildObjectsTab(), tr("  抽奖界面设计  "));
    m_tabs->addTab(buildStyleTab(tr("抽奖时滚动文字样式设计"), m_drawAreaPanel),
                   tr("  抽奖滚动文字样式设计  "));
    m_tabs->addTab(buildStyleTab(tr("播放中奖时文字样式设计"), m_playbackPanel),
                   tr("  播放中奖文字样式设计  "));

    auto *middle = new QHBoxLayout;
    middle->addWidget(buildPage(), 1);
    middle->addWidget(m_tabs);
    layout->addLayout(middle, 1);

    auto *status = new QStatusBar(this);
    status->addWidget(new QLabel(tr("Quellio抽奖软件界面设计器 Ver 2016"), status));
    m_geometryLabel = new QLabel(status);
    m_geometryLabel->setObjectName(QStringLiteral("geometryLabel"));
    status->addWidget(m_geometryLabel, 1);
    layout->addWidget(status);

    connect(m_stage.get(), &Stage::commandReceived, this, &DesignerWindow::onStageCommand);
    connect(m_document.get(), &design::DesignerDocument::changed, this,
            &DesignerWindow::updateSaveButton);
    connect(m_document.get(), &design::DesignerDocument::reloaded, this,
            &DesignerWindow::onReloaded);
    connect(m_tabs, &QTabWidget::currentChanged, this, &DesignerWindow::onTabChanged);
    updateObjectButtons();
    updateSaveButton();
    m_stage->loadMovie(state.path(state.movieDesign));
    // Keys and the right button arrive at the surface that shows the movie, made by the load.
    if (QWidget *view = m_stage->widget()) {
        auto *surface = view->findChild<QQuickWidget *>();
        (surface ? static_cast<QWidget *>(surface) : view)->installEventFilter(this);
    }
}

DesignerWindow::~DesignerWindow() {
    finishEditing();
}

void DesignerWindow::buildToolBar(QLayout *layout) {
    auto *bar = new QToolBar(this);
    bar->setObjectName(QStringLiteral("toolBar"));
    bar->setToolButtonStyle(Qt::ToolButtonTextOnly);
    QAction *exit = bar->addAction(tr("退出设计"), this, &QWidget::close);
    exit->setObjectName(QStringLiteral("exitAction"));
    exit->setToolTip(tr("返回到主界面"));
    bar->addSeparator();
    m_saveAction = bar->addAction(tr("保存修改"), this, &DesignerWindow::save);
    m_saveAction->setObjectName(QStringLiteral("saveAction"));
    QAction *restore = bar->addAction(tr("一键还原"), this, &DesignerWindow::restoreTemplate);
    restore->setObjectName(QStringLiteral("restoreAction"));
    restore->setToolTip(tr("将界面恢复到默认状态"));
    bar->addSeparator();
    QUndoStack *history = m_document->undoStack();
    QAction *undo = history->createUndoAction(this, tr("撤销"));
    undo->setObjectName(QStringLiteral("undoAction"));
    undo->setShortcut(QKeySequence::Undo);
    QAction *redo = history->createRedoAction(this, tr("重做"));
    redo->setObjectName(QStringLiteral("redoAction"));
    redo->setShortcuts(
        {QKeySequence(QStringLiteral("Ctrl+Y")), QKeySequence(QStringLiteral("Ctrl+Shift+Z"))});
    bar->addAction(undo);
    bar->addAction(redo);
    bar->addSeparator();
    m_zoomCombo = new QComboBox(bar);
    m_zoomCombo->setObjectName(QStringLiteral("zoomCombo"));
    m_zoomCombo->addItems({QStringLiteral("100%"), QStringLiteral("75%"), QStringLiteral("50%"),
                           QStringLiteral("25%")});
    m_zoomCombo->setToolTip(tr("缩放编辑窗口"));
    bar->addWidget(m_zoomCombo);
    connect(m_zoomCombo, &QComboBox::currentTextChanged, this, &DesignerWindow::applyZoom);
    layout->addWidget(bar);
}

QWidget *DesignerWindow::buildPage() {
    auto *page = new QWidget(this);
    m_viewport = new QWidget(page);
    m_viewport->setObjectName(QStringLiteral("pageViewport"));
    m_viewport->setAutoFillBackground(true);
    m_viewport->setStyleSheet(QStringLiteral("#pageViewport { background: #2A2A30; }"));
    m_viewport->installEventFilter(this);
    m_xBar = new QScrollBar(Qt::Horizontal, page);
    m_xBar->setObjectName(QStringLiteral("xBar"));
    m_yBar = new QScrollBar(Qt::Vertical, page);
    m_yBar->setObjectName(QStringLiteral("yBar"));
    connect(m_xBar, &QScrollBar::valueChanged, this, &DesignerWindow::updateScrollBars);
    connect(m_yBar, &QScrollBar::valueChanged, this, &DesignerWindow::updateScrollBars);
    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0);
    grid->addWidget(m_viewport, 0, 0);
    grid->addWidget(m_yBar, 0, 1);
    grid->addWidget(m_xBar, 1, 0);
    if (QWidget *view = m_stage->widget()) {
        view->setParent(m_viewport);
        view->hide();
    }
    return page;
}

QWidget *DesignerWindow::buildStyleTab(const QString &title, QWidget *panel) {
    auto *tab = new QWidget(this);
    auto *layout = new QVBoxLayout(tab);
    auto *caption = new QLabel(tr("参数设置"), tab);
    caption->setStyleSheet(QStringLiteral("font-weight: bold;"));
    layout->addWidget(caption);
    layout->addWidget(new QLabel(title, tab));
    auto *scroll = new QScrollArea(tab);
    scroll->setWidget(panel);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    layout->addWidget(scroll, 1);
    return tab;
}

// --- the stage ---------------------------------------------------------------------------------

void DesignerWindow::onStageCommand(const QString &command, const QString &args) {
    if (command == proto::cmd::loadok) {
        onStageLoaded();
    } else if (command == proto::cmd::selObj) {
        onSelection(args);
    } else if (command == proto::cmd::ObjChang) {
        onObjectChanged(args);
    } else if (command == proto::cmd::doubleObjClick) {
        if (!m_selectedName.isEmpty()) editObject(m_selectedName);
    } else if (command == proto::cmd::msg) {
        qCDebug(lcDesign) << "designer movie:" << args
                          << QDateTime::currentDateTime().toString(Qt::ISODate);
    }
}

void DesignerWindow::onStageLoaded() {
    if (QWidget *view = m_stage->widget()) view->show();
    m_designLoading = true;
    m_document->loadStage();
    refreshSystemChecks();
    m_designLoading = false;
    applyZoom();
    updateSaveButton();
}

void DesignerWindow::onSelection(const QString &args) {
    if (args.trimmed().isEmpty()) {
        m_selectedName.clear();
        m_geometryLabel->clear();
        updateObjectButtons();
        return;
    }
    const QStringList fields = args.split(proto::kSep);
    if (fields.size() < 6) {
        ui().message(tr("参数传递错误,数组数量少于5"), MsgStyle::Critical, titles::error);
        return;
    }
    m_selectedName = fields.first().trimmed();
    m_upBlocked = m_downBlocked = false;
    updateObjectButtons();
    m_geometryLabel->setText(geometryText(tr("当前坐标:"), fields));
}

void DesignerWindow::onObjectChanged(const QString &args) {
    const QStringList fields = args.split(proto::kSep);
    m_geometryLabel->setText(geometryText(tr("移动坐标:"), fields));
    m_document->storeGeometry(fields.value(0), fields.value(1), fields.value(2), fields.value(3),
                              fields.value(4));
}

void DesignerWindow::clearSelection() {
    m_stage->setVariable(proto::selObj, proto::nullSelection);
    m_selectedName.clear();
    m_geometryLabel->clear();
    updateObjectButtons();
}

void DesignerWindow::onReloaded() {
    const QString selected = m_selectedName;
    m_designLoading = true;
    refreshSystemChecks();
    m_designLoading = false;
    m_selectedName.clear();
    updateObjectButtons();
    if (m_tabs->currentIndex() == 1) m_drawAreaPanel->load();
    if (m_tabs->currentIndex() == 2) m_playbackPanel->load();
    design::ObjRow row;
    if (!selected.isEmpty() && m_document->readObject(selected, &row))
        m_stage->setVariable(proto::selMcByName, selected + proto::kSep + proto::trueText);
}

void DesignerWindow::updateSaveButton() {
    m_saveAction->setEnabled(m_document->isModified());
}

// --- zoom and scrolling ------------------------------------------------------------------------

void DesignerWindow::applyZoom() {
    QString text = m_zoomCombo->currentText();
    text.remove(QLatin1Char('%'));
    bool ok = false;
    const int zoom = text.trimmed().toInt(&ok);
    m_zoom = ok && zoom > 0 ? zoom : 100;
    m_stage->setVariable(proto::autoSize, QString::number(m_zoom));
    updateScrollBars();
}

void DesignerWindow::updateScrollBars() {
    const design::BgRow &page = m_document->page();
    const int stageW = m_zoom * page.BgW / 100;
    const int stageH = m_zoom * page.BgH / 100;
    const auto place = [](QScrollBar *bar, int view, int stage) {
        const bool scrolls = view < stage;
        bar->setVisible(scrolls);
        const QSignalBlocker block(bar);
        bar->setRange(0, scrolls ? stage - view : 0);
        bar->setPageStep(view);
        return scrolls ? -bar->value() : (view - stage) / 2;
    };
    const int left = place(m_xBar, m_viewport->width(), stageW);
    const int top = place(m_yBar, m_viewport->height(), stageH);
    if (QWidget *view = m_stage->widget()) view->setGeometry(left, top, stageW, stageH);
}

// --- tabs --------------------------------------------------------------------------------------

void DesignerWindow::onTabChanged(int index) {
    clearSelection();
    if (index == 0) m_stage->setVariable(proto::vbLuckDesign, proto::yes);
    if (index == 1) m_drawAreaPanel->load();
    if (index == 2) m_playbackPanel->load();
}

// --- keys, clicks and menus --------------------------------------------------------------------

bool DesignerWindow::eventFilter(QObject *watched, QEvent *event) {
    if (watched == m_viewport) {
        if (event->type() == QEvent::Resize) updateScrollBars();
        if (event->type() == QEvent::MouseButtonPress) clearSelection();
        return QDialog::eventFilter(watched, event);
    }
    if (event->type() == QEvent::MouseButtonRelease) {
        const auto *mouse = static_cast<QMouseEvent *>(event);
        if (mouse->button() == Qt::RightButton) {
            showObjectMenu(mouse->globalPosition().toPoint());
            return true;
        }
    }
    if (event->type() != QEvent::KeyPress) return QDialog::eventFilter(watched, event);
    const auto *key = static_cast<QKeyEvent *>(event);
    const int step = key->modifiers() & Qt::ShiftModifier ? 10 : 1;
    switch (key->key()) {
        case Qt::Key_Left:
            nudgeSelection(-step, 0);
            return true;
        case Qt::Key_Right:
            nudgeSelection(step, 0);
            return true;
        case Qt::Key_Up:
            nudgeSelection(0, -step);
            return true;
        case Qt::Key_Down:
            nudgeSelection(0, step);
            return true;
        case Qt::Key_Delete:
            deleteSelected();
            return true;
        default:
            return QDialog::eventFilter(watched, event);
    }
}

void DesignerWindow::nudgeSelection(int dx, int dy) {
    if (m_selectedName.isEmpty()) return;
    m_document->nudge(m_selectedName, dx, dy);
}

// --- save, restore, close ----------------------------------------------------------------------

void DesignerWindow::save() {
    m_document->save();
    Q_EMIT events().templateSaved();
}

void DesignerWindow::restoreTemplate() {
    if (!ui().question(tr("您确定要将界面还原至初始状态么?"), titles::notice)) return;
    clearSelection();
    m_document->dropWorkingCopy();
    TemplateRestoreDialog dialog(this);
    connect(&dialog, &TemplateRestoreDialog::reloadRequested, this,
            [this] { m_document->reopen(); });
    dialog.exec();
    Q_EMIT events().templateSaved();
}

// Closing: the question when the working copy differs, then the working copy goes. Runs once.
bool DesignerWindow::finishEditing() {
    if (m_finished) return false;
    m_finished = true;
    clearSelection();
    if (m_document->isModified() && ui().question(tr("是否保存修改内容?"), titles::notice))
        save();
    else
        m_document->discard();
    m_document->closeConnection();
    QFile::remove(m_document->workingFile());
    return true;
}

void DesignerWindow::closeEvent(QCloseEvent *event) {
    finishEditing();
    QDialog::closeEvent(event);
}

void DesignerWindow::reject() {
    finishEditing();
    QDialog::reject();
}
