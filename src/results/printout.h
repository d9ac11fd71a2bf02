#pragma once

#include <QList>
#include <QString>

class QPagedPaintDevice;
class QPainter;

// The ruled winner table on A4 pages, shared by the printer and PDF files: 20 mm margins left and
// right, 25 mm top and bottom, columns "序号" 20, "奖项名称" 30, "奖品名称" 40 and "中奖名单" 80
// mm.
namespace printout {

struct Row {
    QString number;
    QString awardName;
    QString prizeName;
    QString winnerName;
};

struct Document {
    QString title;  // drawn on the first page only
    QList<Row> rows;
    // The batch printout adds the print time to every foot.
    bool footWithTime = false;
    QString printTime;
};

// How many rows each page holds. A page breaks right after the row that fills it: the first page
// after 50 rows, each later one after 61, so a full last page is followed by a page with only
// its head. At least one page.
QList<int> paginate(int rowCount);

// The text under the table of a page. With the time, full pages read "当前第2页 打印时间∶..."
// and the last page has two blanks before "打印时间".
QString footText(const Document &document, int page, bool lastPage);

// Paints one page (1-based) on a painter whose device has the given resolution and whose origin
// is the paper's top-left corner.
void paintPage(QPainter &painter, double dotsPerMm, const Document &document, int page);

// Sets the device to A4 without margins and paints every page. Returns the number of pages, or
// 0 when painting could not begin.
int paintDocument(QPagedPaintDevice *device, const Document &document);

}  // namespace printout
