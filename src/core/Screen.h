#pragma once
// The base of every screen: its controls as data and its event handlers. A screen is created by
// the App when it is shown and destroyed after it is closed; only PupilProgress outlives it.
#include "core/Control.h"

#include <deque>
#include <string>
#include <string_view>

namespace nb {

class App;
class Platform;
struct PupilProgress;

// A mouse button pressed on a control: where, in twips from the control's top-left corner and
// from the screen's top-left corner.
struct MousePress
{
    std::string name;
    int index = -1;
    double x = 0, y = 0;             // control twips
    double screenX = 0, screenY = 0; // screen twips
};

class Screen
{
public:
    explicit Screen(App &app);
    virtual ~Screen() = default;
    Screen(const Screen &) = delete;
    Screen &operator=(const Screen &) = delete;

    const std::string &name() const { return name_; }
    const std::string &title() const { return title_; }
    int width() const { return width_; }   // twips
    int height() const { return height_; } // twips
    std::uint32_t backColor() const { return backColor_; }
    // A picture painted over the whole screen behind its controls (resource name), if any.
    const std::string &backPicture() const { return backPicture_; }

    std::deque<Control> &controls() { return controls_; }
    const std::deque<Control> &controls() const { return controls_; }
    Control *find(std::string_view name, int index = -1);
    const Control *find(std::string_view name, int index = -1) const;
    // The control of that name; a missing control is a programming error and throws.
    Control &ctl(std::string_view name, int index = -1);
    const Control &ctl(std::string_view name, int index = -1) const;

    // Keyboard focus, as the screen wants it; the window layer applies it after each event.
    const std::string &focusName() const { return focusName_; }
    int focusIndex() const { return focusIndex_; }
    void setFocus(std::string_view name, int index = -1);

    // Adds a control (screens build their controls when they are made).
    Control &add(Control c);

    // Events. The App calls these one at a time; see App for the entry points.
    virtual void onOpened() {}
    // The screen came to the front again: a screen over it closed, or it was shown once more.
    virtual void onActivated() {}
    virtual void onClick(const std::string &name, int index) { (void)name, (void)index; }
    virtual void onDoubleClick(const std::string &name, int index) { onClick(name, index); }
    // A key typed into a box, seen before it is applied: the box's text is as it stands before
    // the key. Setting key to 0 swallows it; the text may be changed and the key then goes into
    // the new text. Character codes: 13 Enter, 8 Backspace, 27 Escape, else the character.
    virtual void onKeyPress(const std::string &name, int index, int &key)
    {
        (void)name, (void)index, (void)key;
    }
    // A mouse button pressed on a control (a mouse-transparent control passes it to the one
    // beneath).
    virtual void onMouseDown(const MousePress &press) { (void)press; }
    // A key pressed while no text box has the focus (letters in either case, digits, Enter 13,
    // Escape 27, Space 32), for screens that take keys for the whole screen.
    virtual void onScreenKey(int key) { (void)key; }
    virtual void onTimer(const std::string &name) { (void)name; }
    // The user changed a list selection, a scroll bar or the text of a box (after the change).
    virtual void onChange(const std::string &name, int index) { (void)name, (void)index; }
    virtual void onClosing() {}

protected:
    App &app() { return app_; }
    Platform &platform();
    PupilProgress &progress();

    void setSize(int widthTw, int heightTw)
    {
        width_ = widthTw;
        height_ = heightTw;
    }
    void setBackColor(std::uint32_t c) { backColor_ = c; }
    void setBackPicture(std::string resource) { backPicture_ = std::move(resource); }

    // Show another screen, then close this one.
    void handOver(std::string_view target);
    // Close this screen (it is destroyed once the current event has finished).
    void closeSelf();

    // Building controls. Each returns the new control for further settings.
    Control &label(std::string name, std::string caption, int l, int t, int w, int h,
                   int index = -1);
    Control &button(std::string name, std::string caption, int l, int t, int w, int h,
                    int index = -1);
    Control &pictureButton(std::string name, std::string spoken, std::string picture, int l, int t,
                           int w, int h, int index = -1);
    Control &textBox(std::string name, std::string spoken, int l, int t, int w, int h,
                     int index = -1);
    Control &checkBox(std::string name, std::string caption, int l, int t, int w, int h,
                      int index = -1);
    // An option button of a group (the window keeps one of a group's buttons chosen).
    Control &optionButton(std::string name, std::string caption, int l, int t, int w, int h,
                          int index = -1);
    // A horizontal scroll bar from `minimum` to `maximum` at `value`.
    Control &scrollBar(std::string name, int l, int t, int w, int h, int minimum, int maximum,
                       int value);
    Control &image(std::string name, std::string picture, int l, int t, int w, int h,
                   int index = -1);
    Control &shape(std::string name, ShapeKind kind, std::uint32_t fill, std::uint32_t border,
                   int l, int t, int w, int h, int index = -1);
    Control &line(std::string name, int x1, int y1, int x2, int y2, std::uint32_t color,
                  int index = -1);
    Control &list(std::string name, int l, int t, int w, int h);
    Control &comboBox(std::string name, int l, int t, int w, int h);
    Control &canvas(std::string name, int l, int t, int w, int h);
    Control &timer(std::string name, int intervalMs, bool on = false);

    // Short forms used by every screen.
    std::string &caption(std::string_view name, int index = -1) { return ctl(name, index).caption; }
    void setVisible(std::string_view name, bool v, int index = -1) { ctl(name, index).visible = v; }
    void setEnabled(std::string_view name, bool e, int index = -1) { ctl(name, index).enabled = e; }
    void setTimer(std::string_view name, bool on) { ctl(name).timerOn = on; }
    double draw(); // a uniform draw in [0, 1)

private:
    friend class App;
    App &app_;
    std::string name_;
    std::string title_;
    int width_ = 9600;
    int height_ = 7200;
    std::uint32_t backColor_ = kDefaultColor;
    std::string backPicture_;
    std::deque<Control> controls_;
    std::string focusName_;
    int focusIndex_ = -1;
};

} // namespace nb
