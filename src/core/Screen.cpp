#include "core/Screen.h"

#include "core/App.h"
#include "core/Platform.h"

#include <stdexcept>

namespace nb {

Screen::Screen(App &app)
    : app_(app)
{}

Platform &Screen::platform()
{
    return app_.platform();
}

PupilProgress &Screen::progress()
{
    return app_.progress();
}

Control *Screen::find(std::string_view name, int index)
{
    for (Control &c : controls_)
        if (c.index == index && c.name == name)
            return &c;
    return nullptr;
}

const Control *Screen::find(std::string_view name, int index) const
{
    return const_cast<Screen *>(this)->find(name, index);
}

Control &Screen::ctl(std::string_view name, int index)
{
    if (Control *c = find(name, index))
        return *c;
    throw std::out_of_range("no control " + std::string(name) + "(" + std::to_string(index) +
                            ") on screen " + name_);
}

const Control &Screen::ctl(std::string_view name, int index) const
{
    return const_cast<Screen *>(this)->ctl(name, index);
}

void Screen::setFocus(std::string_view name, int index)
{
    focusName_ = std::string(name);
    focusIndex_ = index;
}

void Screen::handOver(std::string_view target)
{
    app_.show(target);
    app_.close(*this);
}

void Screen::closeSelf()
{
    app_.close(*this);
}

double Screen::draw()
{
    return platform().random();
}

Control &Screen::add(Control c)
{
    controls_.push_back(std::move(c));
    return controls_.back();
}

namespace {
Control make(ControlKind kind, std::string name, std::string caption, int l, int t, int w, int h,
             int index)
{
    Control c;
    c.kind = kind;
    c.name = std::move(name);
    c.caption = std::move(caption);
    c.left = l;
    c.top = t;
    c.width = w;
    c.height = h;
    c.index = index;
    return c;
}
} // namespace

Control &Screen::label(std::string name, std::string caption, int l, int t, int w, int h, int index)
{
    return add(make(ControlKind::Label, std::move(name), std::move(caption), l, t, w, h, index));
}

Control &Screen::button(std::string name, std::string caption, int l, int t, int w, int h,
                        int index)
{
    return add(make(ControlKind::Button, std::move(name), std::move(caption), l, t, w, h, index));
}

Control &Screen::pictureButton(std::string name, std::string spoken, std::string picture, int l,
                               int t, int w, int h, int index)
{
    Control &c = add(
        make(ControlKind::PictureButton, std::move(name), std::move(spoken), l, t, w, h, index));
    c.picture = std::move(picture);
    return c;
}

Control &Screen::textBox(std::string name, std::string spoken, int l, int t, int w, int h,
                         int index)
{
    Control &c = add(make(ControlKind::TextBox, std::move(name), {}, l, t, w, h, index));
    c.spokenName = std::move(spoken);
    c.backColor = colors::white;
    return c;
}

Control &Screen::checkBox(std::string name, std::string caption, int l, int t, int w, int h,
                          int index)
{
    return add(make(ControlKind::CheckBox, std::move(name), std::move(caption), l, t, w, h, index));
}

Control &Screen::optionButton(std::string name, std::string caption, int l, int t, int w, int h,
                              int index)
{
    return add(
        make(ControlKind::OptionButton, std::move(name), std::move(caption), l, t, w, h, index));
}

Control &Screen::scrollBar(std::string name, int l, int t, int w, int h, int minimum, int maximum,
                           int value)
{
    Control &c = add(make(ControlKind::ScrollBar, std::move(name), {}, l, t, w, h, -1));
    c.minimum = minimum;
    c.maximum = maximum;
    c.value = value;
    return c;
}

Control &Screen::image(std::string name, std::string picture, int l, int t, int w, int h, int index)
{
    Control &c = add(make(ControlKind::Image, std::move(name), {}, l, t, w, h, index));
    c.picture = std::move(picture);
    return c;
}

Control &Screen::shape(std::string name, ShapeKind kind, std::uint32_t fill, std::uint32_t border,
                       int l, int t, int w, int h, int index)
{
    Control &c = add(make(ControlKind::Shape, std::move(name), {}, l, t, w, h, index));
    c.shape = kind;
    c.backColor = fill;
    c.foreColor = border;
    return c;
}

Control &Screen::line(std::string name, int x1, int y1, int x2, int y2, std::uint32_t color,
                      int index)
{
    Control &c = add(make(ControlKind::Line, std::move(name), {}, x1, y1, 0, 0, index));
    c.x2 = x2;
    c.y2 = y2;
    c.foreColor = color;
    return c;
}

Control &Screen::list(std::string name, int l, int t, int w, int h)
{
    return add(make(ControlKind::List, std::move(name), {}, l, t, w, h, -1));
}

Control &Screen::comboBox(std::string name, int l, int t, int w, int h)
{
    return add(make(ControlKind::ComboBox, std::move(name), {}, l, t, w, h, -1));
}

Control &Screen::canvas(std::string name, int l, int t, int w, int h)
{
    return add(make(ControlKind::Canvas, std::move(name), {}, l, t, w, h, -1));
}

Control &Screen::timer(std::string name, int intervalMs, bool on)
{
    Control &c = add(make(ControlKind::Timer, std::move(name), {}, 0, 0, 0, 0, -1));
    c.interval = intervalMs;
    c.timerOn = on;
    c.visible = false;
    return c;
}

} // namespace nb
