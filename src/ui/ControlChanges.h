#pragma once
// What changed in a control since its widget last showed it, and how each kind of widget shows
// those changes. The view compares a control with the copy it keeps, then hands the differences
// to the function for the widget's kind; only what changed is written to the widget.
#include "core/Control.h"

class QWidget;

namespace nb::ui {

struct ControlChanges
{
    bool fresh = false; // nothing shown yet
    bool geometry = false;
    bool font = false;
    bool colors = false;
    bool text = false;
    bool look = false; // alignment, border, shape, text fit, read-only
    bool picture = false;
    bool spoken = false;
    bool range = false;
    bool value = false;
    bool items = false;
    bool row = false;
    bool visible = false;
    bool enabled = false;
    bool mouse = false;
};

// Compares `now` with `last` (the control as the widget shows it) and brings `last` up to date.
// `relayout` forces geometry and font (the window was resized).
ControlChanges compareControl(Control &last, const Control &now, bool fresh, bool relayout);

// Writes the changes that every kind shares (font, visibility, enabled state, mouse
// transparency) and then those of the widget's own kind. `pixelsPerTwip` is the view's scale.
void applyControl(QWidget &widget, const Control &c, const ControlChanges &ch,
                  double pixelsPerTwip);

} // namespace nb::ui
