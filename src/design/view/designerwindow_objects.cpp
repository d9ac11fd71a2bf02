// The first tab of the designer: the system objects' switches, adding objects, and what can be
// done to the selected one (edit, delete, layer moves), also from the stage's context menu.

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>

#include "chrome/widgets.h"
#include "core/ui.h"
#include "design/designerdocument.h"
#include "design/view/designerwindow.h"
#include "design/view/objectdialogs.h"
#include "design/view/textdialogs.h"
#include "stage/protocol.h"
#include "stage/stage.h"

namespace {

struct SystemSwitch {
    QString name;
    QString caption;
};

// The check boxes, in the order the tab shows them.
QList<SystemSwitch> systemSwitches() {
    using namespace design::sysobj;
    return {{img_jpimgs, QCoreApplication::translate("DesignerWindow", "奖品图片")},
            {txt_jpname, QCoreApplication::translate("DesignerWindow", "奖品名称 (变量 $Name1)")},
            {txt_jxname, QCoreApplication::translate("DesignerWindow", "奖项名称 (变量 $Name2)")},
            {txt_jpinfo, QCoreApplication::translate("DesignerWindow", "奖品数量信息(变量 $1 $2)")},
            {scr_luckls, QCoreApplication::translate("DesignerWindow", "中奖信息")},
            {txt_zbt, QCoreApplication::translate("DesignerWindow", "主标题")},
            {txt_fbt, QCoreApplication::translate("DesignerWindow", "副标题")}};
}

QPushButton *toolButton(QWidget *parent, const QString &text, const QString &name) {
    auto *button = new QPushButton(text, parent);
    button->setObjectName(name);
    return button;
}

}  // namespace

QWidget *DesignerWindow::buildObjectsTab() {
    auto *tab = new QWidget(this);
    auto *caption = new QLabel(tr("插件管理"), tab);
    caption->setStyleSheet(QStringLiteral("font-weight: bold;"));

    auto *switches = new QGroupBox(tr("系统元件"), tab);
    auto *switchLayout = new QVBoxLayout(switches);
    auto *main = new QCheckBox(tr("抽奖名单滚动区域 (必选)"), switches);
    main->setObjectName(QStringLiteral("check_ssm_vornex"));
    main->setChecked(true);
    main->setEnabled(false);
    switchLayout->addWidget(main);
    for (const SystemSwitch &item : systemSwitches()) {
        auto *check = new QCheckBox(item.caption, switches);
        check->setObjectName(QStringLiteral("check_") + item.name);
        connect(check, &QCheckBox::toggled, this,
                [this, name = item.name](bool on) { setSystemVisible(name, on); });
        m_systemChecks.insert(item.name, check);
        switchLayout->addWidget(check);
    }
    auto *help = new QPushButton(tr("什么是变量呢?"), switches);
    help->setObjectName(QStringLiteral("variablesHelpButton"));
    help->setFlat(true);
    help->setCursor(Qt::PointingHandCursor);
    connect(help, &QPushButton::clicked, this, [this] {
        VariablesHelpDialog dialog(this);
        dialog.exec();
    });
    switchLayout->addWidget(help, 0, Qt::AlignLeft);

    auto *adding = new QGroupBox(tr("添加元件"), tab);
    auto *addLayout = new QGridLayout(adding);
    auto *addText = toolButton(adding, tr("添加文字"), QStringLiteral("addTextButton"));
    auto *addScroll = toolButton(adding, tr("滚动文字"), QStringLiteral("addScrollTextButton"));
    auto *addImage = toolButton(adding, tr("添加图片"), QStringLiteral("addImageButton"));
    auto *addAnim = toolButton(adding, tr("添加动画"), QStringLiteral("addAnimationButton"));
    addLayout->addWidget(addText, 0, 0);
    addLayout->addWidget(addScroll, 0, 1);
    addLayout->addWidget(addImage, 1, 0);
    addLayout->addWidget(addAnim, 1, 1);
    connect(addText, &QPushButton::clicked, this, [this] { m_document->addText(); });
    connect(addScroll, &QPushButton::clicked, this, [this] { m_document->addScrollText(); });
    connect(addImage, &QPushButton::clicked, this, [this] { addFileObject(true); });
    connect(addAnim, &QPushButton::clicked, this, [this] { addFileObject(false); });

    auto *selected = new QGroupBox(tr("当前元件"), tab);
    auto *selectedLayout = new QGridLayout(selected);
    m_upButton = toolButton(selected, tr("上一层"), QStringLiteral("upButton"));
    m_downButton = toolButton(selected, tr("下一层"), QStringLiteral("downButton"));
    m_editButton = toolButton(selected, tr("编 辑  "), QStringLiteral("editButton"));
    m_deleteButton = toolButton(selected, tr("删 除"), QStringLiteral("deleteButton"));
    selectedLayout->addWidget(m_upButton, 0, 0);
    selectedLayout->addWidget(m_downButton, 0, 1);
    selectedLayout->addWidget(m_editButton, 1, 0);
    selectedLayout->addWidget(m_deleteButton, 1, 1);
    connect(m_upButton, &QPushButton::clicked, this, [this] { moveLayer(true); });
    connect(m_downButton, &QPushButton::clicked, this, [this] { moveLayer(false); });
    connect(m_editButton, &QPushButton::clicked, this, [this] { editObject(m_selectedName); });
    connect(m_deleteButton, &QPushButton::clicked, this, &DesignerWindow::deleteSelected);

    auto *hint = new QLabel(tr("方向键微调位置(Shift 10像素), Delete 删除, "
                               "Ctrl+Z 撤销, Ctrl+Y 重做"),
                            tab);
    hint->setWordWrap(true);
    hint->setStyleSheet(QStringLiteral("color: #666;"));

    auto *layout = new QVBoxLayout(tab);
    layout->addWidget(caption);
    layout->addWidget(switches);
    layout->addWidget(adding);
    layout->addWidget(selected);
    layout->addWidget(hint);
    layout->addStretch();
    return tab;
}

void DesignerWindow::refreshSystemChecks() {
    for (auto it = m_systemChecks.cbegin(); it != m_systemChecks.cend(); ++it) {
        design::ObjRow row;
        const QSignalBlocker block(it.value());
        it.value()->setChecked(m_document->readObject(it.key(), &row));
    }
}

void DesignerWindow::setSystemVisible(const QString &name, bool visible) {
    if (m_designLoading) return;
    if (!visible && name == m_selectedName) clearSelection();
    m_document->setVisible(name, visible);
}

void DesignerWindow::updateObjectButtons() {
    const bool any = !m_selectedName.isEmpty();
    const bool drawArea = m_selectedName == design::sysobj::ssm_vornex;
    m_upButton->setEnabled(any && !m_upBlocked);
    m_downButton->setEnabled(any && !m_downBlocked);
    m_editButton->setEnabled(any && !drawArea);
    m_deleteButton->setEnabled(any && !drawArea);
}

void DesignerWindow::addFileObject(bool image) {
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    // Animations play as GIF, WebP or APNG on the stage.
    const QString file =
        image
            ? ui().openFile(tr("添加图片"), folder,
                            dialogFilter(tr(
                                "图片文件(*.png,*.jpg,*.gif,*.bmp,*.jpeg)|*.png;*.jpg;*.gif;*.bmp;"
                                "*.jpeg|PNG Files(*.png)|*.png|JPG Files(*.jpg)|*.jpg|GIF "
                                "Files(*.gif)|*.gif|BMP Files(*.bmp)|*.bmp")))
            : ui().openFile(
                  tr("添加动画"), folder,
                  dialogFilter(tr("动画文件(*.gif,*.webp,*.png)|*.gif;*.webp;*.png;*.apng")));
    if (file.trimmed().isEmpty()) return;
    if (image)
        m_document->addImage(file);
    else
        m_document->addAnimation(file);
}

void DesignerWindow::editObject(const QString &name) {
    const QString kind = design::objectKind(name.trimmed());
    std::unique_ptr<QDialog> dialog;
    if (kind == QLatin1String("txt")) {
        auto *text = new TextObjectDialog(*m_document, name, this);
        dialog.reset(text);
        if (!text->isLoaded()) return;
    } else if (kind == QLatin1String("scr")) {
        auto *scroll = new ScrollTextDialog(*m_document, name, this);
        dialog.reset(scroll);
        if (!scroll->isLoaded()) return;
    } else if (kind == QLatin1String("img")) {
        auto *picture = new ImageObjectDialog(*m_document, name, this);
        dialog.reset(picture);
        if (!picture->isLoaded()) return;
    } else if (kind == QLatin1String("swf")) {
        auto *animation = new AnimationObjectDialog(*m_document, name, this);
        dialog.reset(animation);
        if (!animation->isLoaded()) return;
    } else {
        return;
    }
    dialog->exec();
    clearSelection();
}

void DesignerWindow::deleteSelected() {
    const QString name = m_selectedName;
    if (name.isEmpty()) return;
    const design::DeleteOutcome outcome = m_document->deleteObject(name);
    if (outcome == design::DeleteOutcome::Refused) return;
    if (outcome == design::DeleteOutcome::Hidden) {
        m_designLoading = true;
        refreshSystemChecks();
        m_designLoading = false;
    }
    m_selectedName.clear();
    m_geometryLabel->clear();
    updateObjectButtons();
}

void DesignerWindow::moveLayer(bool up) {
    if (m_selectedName.isEmpty()) return;
    if (m_document->moveDepth(m_selectedName, up)) return;
    (up ? m_upBlocked : m_downBlocked) = true;
    updateObjectButtons();
}

void DesignerWindow::showObjectMenu(const QPoint &globalPos) {
    if (m_selectedName.isEmpty()) return;
    QMenu menu(tr("元件管理"), this);
    const bool drawArea = m_selectedName == design::sysobj::ssm_vornex;
    menu.addAction(tr("编辑"), this, [this] { editObject(m_selectedName); })->setEnabled(!drawArea);
    menu.addAction(tr("删除"), this, &DesignerWindow::deleteSelected);
    menu.addSeparator();
    menu.addAction(tr("上移一层"), this, [this] { moveLayer(true); })->setEnabled(!m_upBlocked);
    menu.addAction(tr("下移一层"), this, [this] { moveLayer(false); })->setEnabled(!m_downBlocked);
    menu.exec(globalPos);
}
