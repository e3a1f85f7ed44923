#include "ui/DrawingPainter.h"

#include "ui/Look.h"
#include "ui/Pictures.h"

#include <QPainter>
#include <QPolygonF>

namespace nb::ui {

namespace {

QPen penFor(const DrawOp &op, double k)
{
    if (op.penWidth <= 0)
        return Qt::NoPen;
    QPen pen(toQColor(op.penColor), std::max(1.0, op.penWidth * k));
    pen.setCapStyle(Qt::RoundCap);
    pen.setJoinStyle(Qt::RoundJoin);
    return pen;
}

QRectF boxOf(const DrawOp &op, double k)
{
    if (op.points.size() < 2)
        return {};
    const PointTw &a = op.points[0];
    const PointTw &b = op.points[1];
    return QRectF(QPointF(a.x * k, a.y * k), QPointF(b.x * k, b.y * k)).normalized();
}

} // namespace

void paintDrawing(QPainter &p, const Drawing &drawing, double k)
{
    p.setRenderHint(QPainter::Antialiasing);
    p.setRenderHint(QPainter::TextAntialiasing);
    for (const DrawOp &op : drawing.ops) {
        p.setPen(penFor(op, k));
        p.setBrush(op.filled ? QBrush(toQColor(op.fillColor)) : QBrush(Qt::NoBrush));
        const QRectF box = boxOf(op, k);
        switch (op.kind) {
        case DrawOp::Kind::Line:
            if (op.points.size() >= 2)
                p.drawLine(QPointF(op.points[0].x * k, op.points[0].y * k),
                           QPointF(op.points[1].x * k, op.points[1].y * k));
            break;
        case DrawOp::Kind::Rect:
            p.drawRect(box);
            break;
        case DrawOp::Kind::Ellipse:
            p.drawEllipse(box);
            break;
        case DrawOp::Kind::Pie:
            // Both count degrees counter-clockwise from 3 o'clock; Qt wants sixteenths.
            p.drawPie(box, int(op.startAngle * 16), int(op.spanAngle * 16));
            break;
        case DrawOp::Kind::Polygon: {
            QPolygonF poly;
            for (const PointTw &pt : op.points)
                poly << QPointF(pt.x * k, pt.y * k);
            p.drawPolygon(poly);
            break;
        }
        case DrawOp::Kind::Text:
            // Text is centred in its box, so a label on a board sits where it was placed.
            p.setPen(toQColor(op.penColor));
            p.setFont(makeFont("Comic Sans MS", op.fontSize, op.bold, k * kTwipsPerPixel));
            p.drawText(box, Qt::AlignCenter | Qt::TextWordWrap, QString::fromStdString(op.text));
            break;
        case DrawOp::Kind::Image:
            paintPicture(p, op.text, box);
            break;
        }
    }
}

} // namespace nb::ui
