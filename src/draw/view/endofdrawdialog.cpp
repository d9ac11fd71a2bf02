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
#include "draw/verifier.h"
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
    setWindowTitle(tr("系统提示"));
    auto *headline = new QLabel(tr("所有的奖项均已经抽取完毕!"), this);
    headline->setObjectName(QStringLiteral("headline"));
    headline->setAlignment(Qt::AlignCenter);
    headline->setStyleSheet(QStringLiteral("font-size: 18px; font-weight: bold;"));
    auto *hint = new QLabel(tr("请选择接下来要做的事"), this);
    hint->setProperty("role", "hint");
    hint->setAlignment(Qt::AlignCenter);

    const char *iconNames[] = {"", "reset", "export", "print", "parade"};
    const char *captions[] = {"", QT_TR_NOOP("重新抽奖"), QT_TR_NOOP("导出名单"),
                              QT_TR_NOOP("打印名单"), QT_TR_NOOP("中奖回放")};
    const char *objectNames[] = {"", "restartChoice", "exportChoice", "printChoice",
                                 "paradeChoice"};
    auto *choices = new QHBoxLayout;
    choices->setSpacing(10);
    for (int i = Restart; i <= Parade; ++i) {
        m_choices[i] = new ChoiceTile(QLatin1String(iconNames[i]), tr(captions[i]), this);
        m_choices[i]->setObjectName(QLatin1String(objectNames[i]));
        m_choices[i]->setFixedSize(90, 96);
        choices->addWidget(m_choices[i]);
        connect(m_choices[i], &QAbstractButton::clicked, this, [this, i] { choose(i); });
    }
    m_choices[Restart]->setToolTip(tr("删除所有中奖信息,重新开始抽奖"));
    m_choices[Export]->setToolTip(tr("把中奖名单导出为CSV文件"));
    m_choices[Print]->setToolTip(tr("打印所有中奖名单"));
    m_choices[Parade]->setToolTip(tr("在舞台上滚动播放所有中奖名单"));

    m_cancelButton = new QPushButton(tr("取消"), this);
    m_cancelButton->setObjectName(QStringLiteral("cancelButton"));
    m_cancelButton->setAutoDefault(false);
    auto *bottom = new QHBoxLayout;
    bottom->addStretch();
    bottom->addWidget(m_cancelButton);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(18, 14, 18, 12);
    layout->setSpacing(4);
    layout->addWidget(headline);
    layout->addWidget(hint);
    layout->addSpacing(10);
    layout->addLayout(choices);
    layout->addStretch();
    layout->addLayout(bottom);
    connect(m_cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    setFixedSize(430, 248);
    centerForm(this);
    // The restart is destructive: the prompt opens with the harmless choice in focus.
    m_cancelButton->setFocus();
}

void EndOfDrawDialog::choose(int choice) {
    switch (choice) {
        case Restart:
            restart();
            break;
        case Export:
            // The check of the evening goes beside the list, for whoever receives it.
            if (const QString path = exportWinnersAs(); !path.isEmpty())
                draw::writeReportBeside(path);
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
