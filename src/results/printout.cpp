#include "results/printout.h"

#include <QColor>
#include <QCoreApplication>
#include <QFont>
#include <QFontMetricsF>
#include <QPageLayout>
#include <QPageSize>
#include <QPagedPaintDevice>
#include <QPainter>

namespace printout {

namespace {

// Millimetres on A4; the printable area starts at the margins.
constexpr double kLeft = 20.0;
constexpr double kTop = 25.0;
constexpr double kWidth = 170.0;
constexpr double kHeight = 247.0;
constexpr double kTitleHeight = 14.0;
constexpr double kHeadHeight = 9.0;
constexpr int kFirstPageRows = 50;
constexpr int kLaterPageRows = 60;
// A later page holds its head and 61 rows in the printable height.
constexpr double kRowPitch = (kHeight - kHeadHeight) / (kLaterPageRows + 1);
constexpr double kPadding = 1.5;
constexpr double kColumns[] = {20.0, 30.0, 40.0, 80.0};

QStringList headTitles() {
    return {QCoreApplication::translate("results", "序号"),
            QCoreApplication::translate("results", "奖项名称"),
            QCoreApplication::translate("results", "奖品名称"),
            QCoreApplication::translate("results", "中奖名单")};
}

QFont font(const QString &family, double points, bool bold) {
    QFont f(family);
    f.setPointSizeF(points);
    f.setBold(bold);
    return f;
}

class PagePainter {
public:
    PagePainter(QPainter &painter, double dotsPerMm) : m_p(painter), m_scale(dotsPerMm) {}

    QRectF rect(double x, double y, double w, double h) const {
        return {(kLeft + x) * m_scale, (kTop + y) * m_scale, w * m_scale, h * m_scale};
    }
    void line(double x1, double y1, double x2, double y2, double width,
              const QColor &color = Qt::black) {
        m_p.setPen(QPen(color, width * m_scale, Qt::SolidLine, Qt::FlatCap));
        m_p.drawLine(QPointF((kLeft + x1) * m_scale, (kTop + y1) * m_scale),
                     QPointF((kLeft + x2) * m_scale, (kTop + y2) * m_scale));
    }
    // One line centred on the glyphs' ink rather than on the font's line box, so CJK text sits
    // in the middle of a tight row; text wider than the cell is elided.
    void shade(const QRectF &area, const QColor &color) { m_p.fillRect(area, color); }

    void text(const QRectF &area, const QString &value, const QFont &f, int align) {
        m_p.setFont(f);
        m_p.setPen(Qt::black);
        const QFontMetricsF metrics = m_p.fontMetrics();
        const QRectF ink = metrics.tightBoundingRect(QStringLiteral("中8"));
        const QString shown = metrics.elidedText(value, Qt::ElideRight, area.width());
        const double width = metrics.horizontalAdvance(shown);
        double x = area.left();
        if (align & Qt::AlignHCenter) x = area.center().x() - width / 2;
        const double baseline = area.center().y() - (ink.top() + ink.bottom()) / 2;
        m_p.drawText(QPointF(x, baseline), shown);
    }

private:
    QPainter &m_p;
    double m_scale;
};

void paintHead(PagePainter &out, double top) {
    const QFont headFont = font(QStringLiteral("黑体"), 15, true);
    double x = 0;
    for (int c = 0; c < 4; ++c) {
        out.text(out.rect(x, top, kColumns[c], kHeadHeight), headTitles().at(c), headFont,
                 Qt::AlignHCenter);
        x += kColumns[c];
    }
}

void paintRows(PagePainter &out, const QList<Row> &rows, double top) {
    const QFont rowFont = font(QStringLiteral("宋体"), 10, false);
    for (int i = 0; i < rows.size(); ++i) {
        const Row &row = rows.at(i);
        const double y = top + i * kRowPitch;
        // Rows are tight: every other one is shaded and the rules between them are light.
        if (i % 2 == 1) out.shade(out.rect(0, y, kWidth, kRowPitch), QColor(238, 238, 238));
        const QString cells[] = {row.number, row.awardName, row.prizeName, row.winnerName};
        double x = 0;
        for (int c = 0; c < 4; ++c) {
            const int align = c == 0 ? Qt::AlignHCenter : Qt::AlignLeft;
            out.text(out.rect(x + kPadding, y, kColumns[c] - 2 * kPadding, kRowPitch), cells[c],
                     rowFont, align);
            x += kColumns[c];
        }
        out.line(0, y + kRowPitch, kWidth, y + kRowPitch, 0.06, QColor(150, 150, 150));
    }
}

// The frame, the rule under the head and the column rules.
void paintRules(PagePainter &out, double top, double bottom) {
    const double frame = 0.3;
    out.line(0, top, kWidth, top, frame);
    out.line(0, top + kHeadHeight, kWidth, top + kHeadHeight, frame);
    out.line(0, bottom, kWidth, bottom, frame);
    double x = 0;
    for (int c = 0; c <= 4; ++c) {
        out.line(x, top, x, bottom, c == 0 || c == 4 ? frame : 0.15);
        if (c < 4) x += kColumns[c];
    }
}

}  // namespace

QList<int> paginate(int rowCount) {
    QList<int> pages = {0};
    int counter = 1;
    for (int row = 0; row < rowCount; ++row) {
        ++pages.last();
        const int capacity = pages.size() == 1 ? kFirstPageRows : kLaterPageRows;
        if (counter >= capacity && counter % capacity == 0) {
            pages.append(0);
            counter = 0;
        } else {
            ++counter;
        }
    }
    return pages;
}

QString footText(const Document &document, int page, bool lastPage) {
    const QString number = QCoreApplication::translate("results", "当前第%1页").arg(page);
    if (!document.footWithTime) return number;
    return number + (lastPage ? QStringLiteral("  ") : QStringLiteral(" ")) +
           QCoreApplication::translate("results", "打印时间∶%1").arg(document.printTime);
}

void paintPage(QPainter &painter, double dotsPerMm, const Document &document, int page) {
    const QList<int> pages = paginate(document.rows.size());
    if (page < 1 || page > pages.size()) return;
    int first = 0;
    for (int p = 1; p < page; ++p)
        first += pages.at(p - 1);
    const QList<Row> rows = document.rows.mid(first, pages.at(page - 1));

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    PagePainter out(painter, dotsPerMm);
    double top = 0;
    if (page == 1) {
        out.text(out.rect(0, 0, kWidth, kTitleHeight - 4), document.title,
                 font(QStringLiteral("黑体"), 18, true), Qt::AlignHCenter);
        top = kTitleHeight;
    }
    paintHead(out, top);
    paintRows(out, rows, top + kHeadHeight);
    paintRules(out, top, top + kHeadHeight + rows.size() * kRowPitch);
    out.text(out.rect(0, kHeight + 4, kWidth, 6), footText(document, page, page == pages.size()),
             font(QStringLiteral("宋体"), 9, false), Qt::AlignHCenter);
    painter.restore();
}

int paintDocument(QPagedPaintDevice *device, const Document &document) {
    device->setPageSize(QPageSize(QPageSize::A4));
    device->setPageMargins(QMarginsF(0, 0, 0, 0), QPageLayout::Millimeter);
    QPainter painter;
    if (!painter.begin(device)) return 0;
    const double dotsPerMm = device->logicalDpiX() / 25.4;
    const int pageCount = paginate(document.rows.size()).size();
    for (int page = 1; page <= pageCount; ++page) {
        if (page > 1 && !device->newPage()) return 0;
        paintPage(painter, dotsPerMm, document, page);
    }
    return painter.end() ? pageCount : 0;
}

}  // namespace printout
