#include "support/Driver.h"

#include "core/Input.h"
#include "shell/AllScreens.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace nb::test {

Driver::Driver()
    : app(platform, registry)
{
    registerAllScreens(registry);
}

Screen &Driver::open(const std::string &name)
{
    Screen *s = app.show(name);
    if (!s)
        throw std::runtime_error("screen " + name + " could not be opened");
    return *s;
}

void Driver::toMainMenu()
{
    open("cover");
    click("Command1");
}

void Driver::newPupil(const std::string &name)
{
    platform.queueInput(name);
    click("Command2");
}

Screen &Driver::front()
{
    Screen *s = app.front();
    if (!s)
        throw std::runtime_error("no screen is open");
    return *s;
}

std::string Driver::frontName() const
{
    Screen *s = app.front();
    return s ? s->name() : std::string();
}

const Control &Driver::control(const std::string &name, int index)
{
    return front().ctl(name, index);
}

bool Driver::reachable(const std::string &name, int index)
{
    Screen *s = app.front();
    if (!s)
        return false;
    const Control *c = s->find(name, index);
    return c && c->visible && c->enabled;
}

Control &Driver::usable(const std::string &name, int index)
{
    Control &c = front().ctl(name, index);
    if (!c.visible || !c.enabled)
        ADD_FAILURE() << "control " << c.id() << " on " << frontName() << " is "
                      << (c.visible ? "disabled" : "hidden");
    return c;
}

void Driver::click(const std::string &name, int index)
{
    Control &c = usable(name, index);
    applyClick(front().controls(), c);
    app.click(front(), name, index);
}

void Driver::doubleClick(const std::string &name, int index)
{
    usable(name, index);
    app.doubleClick(front(), name, index);
}

void Driver::key(const std::string &name, int code, int index)
{
    usable(name, index);
    Screen &s = front();
    const int k = app.keyPress(s, name, index, code);
    if (k == 0 || !app.isLive(s))
        return;
    Control *c = s.find(name, index);
    if (c && applyKey(*c, k))
        app.change(s, name, index);
}

void Driver::screenKey(int code)
{
    app.screenKey(front(), code);
}

void Driver::screenKeys(const std::string &text)
{
    for (unsigned char ch : text)
        screenKey(ch);
}

void Driver::mouseDown(const std::string &name, double x, double y, int index)
{
    usable(name, index);
    app.mouseDown(front(), name, index, x, y);
}

bool Driver::pressAt(double screenX, double screenY)
{
    // As the window finds it: the last-made control under the point that is shown, enabled and
    // not transparent to the mouse (timers and lines take no presses).
    Screen &s = front();
    auto &cs = s.controls();
    for (auto it = cs.rbegin(); it != cs.rend(); ++it) {
        const Control &c = *it;
        if (!c.visible || c.mouseTransparent || c.kind == ControlKind::Timer ||
            c.kind == ControlKind::Line)
            continue;
        if (screenX < c.left || screenY < c.top || screenX >= c.left + c.width ||
            screenY >= c.top + c.height)
            continue;
        if (!c.enabled)
            return false;
        app.mouseDown(s, c.name, c.index, screenX - c.left, screenY - c.top);
        return true;
    }
    return false;
}

void Driver::type(const std::string &name, const std::string &text, int index)
{
    // One key per UTF-8 character.
    for (std::size_t i = 0; i < text.size();) {
        const auto b = static_cast<unsigned char>(text[i]);
        const std::size_t len = b < 0xC0 ? 1 : b < 0xE0 ? 2 : b < 0xF0 ? 3 : 4;
        int code = len == 1 ? b : b & (0x7F >> len);
        for (std::size_t j = 1; j < len && i + j < text.size(); ++j)
            code = (code << 6) | (static_cast<unsigned char>(text[i + j]) & 0x3F);
        key(name, code, index);
        i += len;
    }
}

void Driver::tick(const std::string &timerName, int times)
{
    for (int i = 0; i < times; ++i)
        app.timerTick(front(), timerName);
}

void Driver::setText(const std::string &name, const std::string &text, int index)
{
    usable(name, index).caption = text;
    app.change(front(), name, index);
}

void Driver::select(const std::string &listName, int item)
{
    Control &c = usable(listName, -1);
    c.listIndex = item;
    app.change(front(), listName, -1);
}

} // namespace nb::test
