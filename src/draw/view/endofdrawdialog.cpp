#include "draw/view/endofdrawdialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include "chrome/icons.h"
#include "chrome/style.h"
#include "chrome/widgethelpers.h"
#include "core/events.h"
#include "draw/engine.h"
#include "results/exportas.h"
#include "results/exportwinners.h"
#include "results/view/printwinners.h"

ChoiceTile::ChoiceTile(const QString &icon, const QString &caption, QWidget *parent)
    : QAbstractButton(parent), m_icon(icon) {
    setText(caption);
    setCursor(Qt::PointingHandCursor);
    setAttribute(Qt::WA_Hover);
}

void ChoiceTile::paintEvent(QPaintEvent *) {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const qreal sink = isDown() ? 1 : 0;
    const QRectF card = QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5).translated(sink, sink);
    QLinearGradient fill(card.topLeft(), card.bottomLeft());
    const bool lit = underMouse() || hasFocus();
    fill.setColorAt(0, Qt::white);
    fill.setColorAt(1, isDown() ? QColor(250, 220, 222)
                       : lit    ? QColor(255, 236, 238)
                                : QColor(255, 248, 248));
    p.setPen(QPen(lit ? style::kBright : QColor(230, 186, 190), lit ? 1.5 : 1));
    p.setBrush(fill);
    p.drawRoundedRect(card, 10, 10);
    const int iconSize = 34;
    p.drawPixmap(QPointF(card.center().x() - iconSize / 2.0, card.top() + 14),
                 icons::pixmap(m_icon, style::kBright, iconSize));
    QFont font = p.font();
    font.setPixelSize(14);
    font.setBold(true);
    p.setFont(font);
    p.setPen(style::kDeep);
    p.drawText(QRectF(card.left(), card.top() + 56, card.width(), 26), Qt::AlignCenter, text());
}

EndOfDrawDialog::EndOfDrawDialog(draw::DrawEngine &engine, QWidget *parent)
    : QDialog(parent), m_engine(engine) {
    setWindowTitle(QStringLiteral("系统提示"));
    Label1 = new QLabel(QStringLiteral("所有的奖项均已经抽取完毕!"), this);
    Label1->setAlignment(Qt::AlignCenter);
    Label1->setStyleSheet(QStringLiteral("font-size: 18px; font-weight: bold;"));
    auto *hint = new QLabel(QStringLiteral("请选择接下来要做的事"), this);
    hint->setProperty("role", "hint");
    hint->setAlignment(Qt::AlignCenter);

    const char *iconNames[] = {"", "reset", "export", "print", "parade"};
    const char *captions[] = {"", "重新抽奖", "导出名单", "打印名单", "中奖回放"};
    auto *choices = new QHBoxLayout;
    choices->setSpacing(10);
    for (int i = 1; i <= 4; ++i) {
        imgLab[i] =
            new ChoiceTile(QLatin1String(iconNames[i]), QString::fromUtf8(captions[i]), this);
        imgLab[i]->setFixedSize(90, 96);
        choices->addWidget(imgLab[i]);
        connect(imgLab[i], &QAbstractButton::clicked, this, [this, i] { choose(i); });
    }
    imgLab[Restart]->setToolTip(QStringLiteral("删除所有中奖信息,重新开始抽奖"));
    imgLab[Export]->setToolTip(QStringLiteral("把中奖名单导出为CSV文件"));
    imgLab[Print]->setToolTip(QStringLiteral("打印所有中奖名单"));
    imgLab[Parade]->setToolTip(QStringLiteral("在舞台上滚动播放所有中奖名单"));

    CancelButton = new QPushButton(QStringLiteral("取消"), this);
    CancelButton->setAutoDefault(false);
    auto *bottom = new QHBoxLayout;
    bottom->addStretch();
    bottom->addWidget(CancelButton);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(18, 14, 18, 12);
    layout->setSpacing(4);
    layout->addWidget(Label1);
    layout->addWidget(hint);
    layout->addSpacing(10);
    layout->addLayout(choices);
    layout->addStretch();
    layout->addLayout(bottom);
    connect(CancelButton, &QPushButton::clicked, this, &QDialog::reject);
    setFixedSize(430, 248);
    centerForm(this);
    // The restart is destructive: the prompt opens with the harmless choice in focus.
    CancelButton->setFocus();
}

void EndOfDrawDialog::choose(int index) {
    switch (index) {
        case Restart:
            restart();
            break;
        case Export:
            exportWinnersAs();
            break;
        case Print:
            printWinners(true);
            break;
        case Parade:
            Q_EMIT paradeRequested();
            accept();
            break;
        default:
            break;
    }
}

void EndOfDrawDialog::restart() {
    // The snapshot is the only backup of the evening's results: without it nothing is cleared.
    const auto snapshot = [](const QString &path) { return !exportWinners(path, false).isEmpty(); };
    if (!m_engine.restartDraw(snapshot)) return;
    Q_EMIT events().resultsChanged();
    Q_EMIT restartDone();
    accept();
}
