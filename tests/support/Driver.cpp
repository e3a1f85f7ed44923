#include "support/Driver.h"

#include "shell/AllScreens.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace nb::test {

std::string utf8(int code)
{
    const auto c = static_cast<unsigned>(code);
    if (c < 0x80)
        return std::string(1, char(c));
    // A lead byte with one high bit per byte of the sequence, then six bits per byte.
    const int more = c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
    std::string s(1, char((0xFF << (7 - more)) | (c >> (6 * more))));
    for (int k = more - 1; k >= 0; --k)
        s += char(0x80 | ((c >> (6 * k)) & 0x3F));
    return s;
}

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
    if (c.kind == ControlKind::CheckBox)
        c.value = c.value ? 0 : 1;
    else if (c.kind == ControlKind::OptionButton)
        c.value = 1;
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
    if (!c || c->kind != ControlKind::TextBox)
        return;
    if (k == 8) {
        // Backspace removes the last character (a whole UTF-8 sequence).
        std::string &t = c->caption;
        while (!t.empty() && (static_cast<unsigned char>(t.back()) & 0xC0) == 0x80)
            t.pop_back();
        if (!t.empty())
            t.pop_back();
    } else if (k >= 32 && k != 127) {
        if (c->maxLength > 0 && int(c->caption.size()) >= c->maxLength)
            return;
        c->caption += utf8(k);
    } else {
        return;
    }
    app.change(s, name, index);
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
