#pragma once
// Drawn content of a canvas control: a list of simple shapes in twips that the window layer
// paints in order. Screens build it once (or when it changes) and bump the revision so the window
// layer can keep a cached picture of it between changes.
#include <cstdint>
#include <string>
#include <vector>

namespace nb {

struct PointTw
{
    double x = 0, y = 0;
};

struct DrawOp
{
    enum class Kind { Line, Rect, Polygon, Ellipse, Pie, Text, Image };
    Kind kind = Kind::Line;
    std::vector<PointTw> points; // Line: 2 points; Polygon: any; Rect/Ellipse/Pie/Text/Image: box
                                 // corners (top-left, bottom-right)
    std::uint32_t penColor = 0;  // 0x00BBGGRR
    double penWidth = 15;        // twips
    bool filled = false;
    std::uint32_t fillColor = 0;
    double startAngle = 0, spanAngle = 0; // Pie: degrees, counter-clockwise from 3 o'clock
    std::string text;                     // Text: the text; Image: the picture's resource name
    double fontSize = 12;                 // Text: points
    bool bold = false;
};

struct Drawing
{
    std::vector<DrawOp> ops;
    std::uint64_t revision = 0;

    void clear()
    {
        ops.clear();
        ++revision;
    }
    void add(DrawOp op)
    {
        ops.push_back(std::move(op));
        ++revision;
    }
    void line(double x1, double y1, double x2, double y2, std::uint32_t color, double width = 15);
    void rect(double l, double t, double r, double b, std::uint32_t fill, std::uint32_t pen,
              double penWidth = 15);
    void ellipse(double l, double t, double r, double b, std::uint32_t fill, std::uint32_t pen,
                 double penWidth = 15);
    void polygon(std::vector<PointTw> pts, std::uint32_t fill, std::uint32_t pen,
                 double penWidth = 15);
    void pie(double l, double t, double r, double b, double startDeg, double spanDeg,
             std::uint32_t fill, std::uint32_t pen, double penWidth = 15);
    void text(double l, double t, double r, double b, std::string s, std::uint32_t color,
              double pointSize, bool bold = false);
    void image(double l, double t, double r, double b, std::string resource);
};

} // namespace nb
