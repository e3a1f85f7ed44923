#pragma once
// Paints a canvas drawing (shapes in twips) with a QPainter at a given scale.
#include "core/Drawing.h"

class QPainter;

namespace nb::ui {

void paintDrawing(QPainter &p, const Drawing &drawing, double pixelsPerTwip);

} // namespace nb::ui
