#include "core/Input.h"

namespace nb {

void applyClick(std::deque<Control> &controls, Control &clicked)
{
    if (clicked.kind == ControlKind::CheckBox) {
        clicked.value = clicked.value ? 0 : 1;
    } else if (clicked.kind == ControlKind::OptionButton) {
        for (Control &c : controls)
            if (&c != &clicked && c.kind == ControlKind::OptionButton && c.name == clicked.name &&
                clicked.index >= 0)
                c.value = 0;
        clicked.value = 1;
    }
}

std::size_t utf8Length(const std::string &text)
{
    std::size_t n = 0;
    for (unsigned char b : text)
        n += (b & 0xC0) != 0x80;
    return n;
}

bool applyKey(Control &box, int key)
{
    if (box.kind != ControlKind::TextBox || box.readOnly)
        return false;
    std::string &t = box.caption;
    if (key == 8) {
        if (t.empty())
            return false;
        while (!t.empty() && (static_cast<unsigned char>(t.back()) & 0xC0) == 0x80)
            t.pop_back();
        if (!t.empty())
            t.pop_back();
        return true;
    }
    if (key < 32 || key == 127)
        return false;
    if (box.maxLength > 0 && int(utf8Length(t)) >= box.maxLength)
        return false;
    t += utf8(key);
    return true;
}

std::string utf8(int code)
{
    std::string s;
    const auto c = static_cast<unsigned>(code);
    if (c < 0x80) {
        s += char(c);
    } else if (c < 0x800) {
        s += char(0xC0 | (c >> 6));
        s += char(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        s += char(0xE0 | (c >> 12));
        s += char(0x80 | ((c >> 6) & 0x3F));
        s += char(0x80 | (c & 0x3F));
    } else {
        s += char(0xF0 | (c >> 18));
        s += char(0x80 | ((c >> 12) & 0x3F));
        s += char(0x80 | ((c >> 6) & 0x3F));
        s += char(0x80 | (c & 0x3F));
    }
    return s;
}

} // namespace nb
