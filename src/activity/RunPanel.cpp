#include "activity/RunPanel.h"

#include "core/Screen.h"

namespace nb {

namespace {

Control &addControl(Screen &s, ControlKind kind, const char *name, const char *caption, int l,
                    int t, int w, int h, double points)
{
    Control c;
    c.kind = kind;
    c.name = name;
    c.caption = caption;
    c.left = l;
    c.top = t;
    c.width = w;
    c.height = h;
    c.font.points = points;
    c.font.bold = true;
    return s.add(std::move(c));
}

} // namespace

void addRunPanel(Screen &s, const RunPanel &p)
{
    const struct
    {
        const char *label, *caption, *value;
        int top;
    } rows[] = {{"timelabel", "Time", "time", 700}, {"scorelabel", "Score", "score", 1800}};
    for (const auto &r : rows) {
        addControl(s, ControlKind::Label, r.label, r.caption, p.left, r.top, 1500, 700, 20)
            .foreColor = p.ink;
        Control &v = addControl(s, ControlKind::Label, r.value, "", p.left + p.valueOffset,
                                r.top - 100, 1800, 850, 28);
        v.align = Align::Center;
        v.border = true;
        v.backColor = colors::white;
        v.foreColor = p.ink;
    }
    const auto button = [&](const char *name, const char *caption, int top,
                            std::uint32_t colour) -> Control & {
        Control &b =
            addControl(s, ControlKind::Button, name, caption, p.left, top, p.width, 900, 20);
        b.backColor = colour;
        return b;
    };
    button(p.start, p.startCaption, 3300, rgb(140, 220, 140));
    button(p.next, p.nextCaption, 4500, rgb(255, 210, 90)).visible = false;
    button(p.exit, p.exitCaption, 7600, rgb(200, 200, 230));
}

} // namespace nb
