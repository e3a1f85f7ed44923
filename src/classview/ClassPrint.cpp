#include "classview/ClassPrint.h"

#include "shell/AchievementTable.h"

#include <QPainter>
#include <QPrinter>
#include <QTextDocument>

#include <algorithm>

namespace nb::classview {

namespace {

QString cell(const std::string &text, bool heading = false)
{
    const QString tag = heading ? "th" : "td";
    return "<" + tag + ">" + QString::fromStdString(text).toHtmlEscaped() + "</" + tag + ">";
}

QString tableHtml(const record::ClassRoll &roll, const std::vector<int> &rows)
{
    const auto &slotList = achievementSlots();
    QString html = "<table border='1' cellspacing='0' cellpadding='3'><tr>";
    html += cell("Pupil", true) + cell("File", true);
    for (std::size_t s = 0; s < slotList.size(); ++s)
        if (s < roll.used.size() && roll.used[s])
            html += cell(slotList[s].heading, true);
    html += "</tr>";
    for (int r : rows) {
        const record::PupilRow &row = roll.pupils.at(std::size_t(r));
        html += "<tr>" + cell(row.name) + cell(row.file);
        for (std::size_t s = 0; s < slotList.size(); ++s)
            if (s < roll.used.size() && roll.used[s])
                html += cell(row.cells[s]);
        html += "</tr>";
    }
    return html + "</table>";
}

} // namespace

void printRoll(QPrinter &printer, const record::ClassRoll &roll, const std::vector<int> &rows,
               const QString &date)
{
    printer.setPageOrientation(QPageLayout::Landscape);
    QPainter painter;
    if (!painter.begin(&printer))
        return;
    const QRectF page = printer.pageRect(QPrinter::DevicePixel);
    const QString heading = QString::fromStdString(roll.folder.string()) + "  —  " + date;

    QTextDocument table;
    table.setDocumentMargin(0);
    QFont font = table.defaultFont();
    font.setPointSizeF(9);
    table.setDefaultFont(font);
    table.setHtml(tableHtml(roll, rows));
    // The table's natural width, then a scale that makes it fit the page's width.
    table.setTextWidth(-1);
    const double natural = std::max(1.0, table.idealWidth());
    const double headingHeight = page.height() * 0.06;
    // Device pixels per document unit: the document lays out at the screen's resolution.
    const double dpi = printer.resolution() / 96.0;
    const double scale = std::min(dpi, page.width() / natural);
    table.setTextWidth(natural);
    const double pageBody = (page.height() - headingHeight) / scale;
    table.setPageSize(QSizeF(natural, pageBody));

    const int pages = std::max(1, table.pageCount());
    for (int p = 0; p < pages; ++p) {
        if (p > 0)
            printer.newPage();
        painter.save();
        QFont hf = painter.font();
        hf.setPointSizeF(11);
        hf.setBold(true);
        painter.setFont(hf);
        painter.drawText(QRectF(0, 0, page.width(), headingHeight), Qt::AlignLeft | Qt::AlignTop,
                         heading + QString("  (%1/%2)").arg(p + 1).arg(pages));
        painter.translate(0, headingHeight);
        painter.scale(scale, scale);
        painter.translate(0, -p * pageBody);
        table.drawContents(&painter, QRectF(0, p * pageBody, natural, pageBody));
        painter.restore();
    }
    painter.end();
}

} // namespace nb::classview
