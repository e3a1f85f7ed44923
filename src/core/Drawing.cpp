#include "core/Drawing.h"

namespace nb {

namespace {
DrawOp boxOp(DrawOp::Kind kind, double l, double t, double r, double b)
{
    DrawOp op;
    op.kind = kind;
    op.points = {{l, t}, {r, b}};
    return op;
}
} // namespace

void Drawing::line(double x1, double y1, double x2, double y2, std::uint32_t color, double width)
{
    DrawOp op = boxOp(DrawOp::Kind::Line, x1, y1, x2, y2);
    op.penColor = color;
    op.penWidth = width;
    add(std::move(op));
}

void Drawing::rect(double l, double t, double r, double b, std::uint32_t fill, std::uint32_t pen,
                   double penWidth)
{
    DrawOp op = boxOp(DrawOp::Kind::Rect, l, t, r, b);
    op.filled = true;
    op.fillColor = fill;
    op.penColor = pen;
    op.penWidth = penWidth;
    add(std::move(op));
}

void Drawing::ellipse(double l, double t, double r, double b, std::uint32_t fill, std::uint32_t pen,
                      double penWidth)
{
    DrawOp op = boxOp(DrawOp::Kind::Ellipse, l, t, r, b);
    op.filled = true;
    op.fillColor = fill;
    op.penColor = pen;
    op.penWidth = penWidth;
    add(std::move(op));
}

void Drawing::polygon(std::vector<PointTw> pts, std::uint32_t fill, std::uint32_t pen,
                      double penWidth)
{
    DrawOp op;
    op.kind = DrawOp::Kind::Polygon;
    op.points = std::move(pts);
    op.filled = true;
    op.fillColor = fill;
    op.penColor = pen;
    op.penWidth = penWidth;
    add(std::move(op));
}

void Drawing::pie(double l, double t, double r, double b, double startDeg, double spanDeg,
                  std::uint32_t fill, std::uint32_t pen, double penWidth)
{
    DrawOp op = boxOp(DrawOp::Kind::Pie, l, t, r, b);
    op.startAngle = startDeg;
    op.spanAngle = spanDeg;
    op.filled = true;
    op.fillColor = fill;
    op.penColor = pen;
    op.penWidth = penWidth;
    add(std::move(op));
}

void Drawing::text(double l, double t, double r, double b, std::string s, std::uint32_t color,
                   double pointSize, bool bold)
{
    DrawOp op = boxOp(DrawOp::Kind::Text, l, t, r, b);
    op.text = std::move(s);
    op.penColor = color;
    op.fontSize = pointSize;
    op.bold = bold;
    add(std::move(op));
}

void Drawing::image(double l, double t, double r, double b, std::string resource)
{
    DrawOp op = boxOp(DrawOp::Kind::Image, l, t, r, b);
    op.text = std::move(resource);
    add(std::move(op));
}

} // namespace nb
