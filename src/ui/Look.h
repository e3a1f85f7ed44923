#pragma once
// Colours, fonts and application-wide settings shared by every widget of the window layer.
#include "core/Control.h"

#include <QColor>
#include <QFont>
#include <QString>

#include <cstdint>
#include <string>

class QApplication;

namespace nb::ui {

// Layouts are designed at 15 twips per pixel; a view scales that uniformly to its size.
constexpr double kTwipsPerPixel = 15;

// Whether a model colour is a real colour rather than kDefaultColor ("use the normal look").
constexpr bool hasColor(std::uint32_t c)
{
    return (c & 0xFF000000u) == 0;
}

inline QString qs(const std::string &s)
{
    return QString::fromStdString(s);
}

// 0x00BBGGRR to a QColor.
inline QColor toQColor(std::uint32_t c)
{
    return QColor(int(c & 0xFF), int((c >> 8) & 0xFF), int((c >> 16) & 0xFF));
}

inline QColor colorOr(std::uint32_t c, const QColor &fallback)
{
    return hasColor(c) ? toQColor(c) : fallback;
}

// A font sized in step with the layout: a point is 20 twips, so at scale 1 a 12 pt font is
// 16 design pixels high, whatever the screen's DPI.
QFont makeFont(const std::string &family, double points, bool bold, double scale);
inline QFont makeFont(const Font &f, double scale)
{
    return makeFont(f.family, f.points, f.bold, scale);
}

// Style, font substitutions and names for the whole program (the program and the tests).
void setUpApplication(QApplication &app);

// With NUMBROOK_TEST_IDS=1, widgets carry their control id as accessible description.
bool testIdsWanted();

} // namespace nb::ui
