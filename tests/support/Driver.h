#pragma once
// Drives the program without a window, as a pupil would: clicks, keys typed into boxes, timer
// ticks and mouse presses on the screen in front, with every screen registered and a scripted
// platform. Actions on a control that a pupil could not reach (missing, hidden or disabled)
// fail the test.
#include "core/App.h"
#include "core/Input.h"
#include "core/Screen.h"
#include "support/FakePlatform.h"

#include <string>

namespace nb::test {

class Driver
{
public:
    Driver();

    FakePlatform platform;
    ScreenRegistry registry;
    App app;

    PupilProgress &progress() { return app.progress(); }

    // Open a screen directly, as its menu would (the menu's settings are the test's to make).
    Screen &open(const std::string &name);
    // The main menu, reached through the cover as at start-up.
    void toMainMenu();
    // NEW on the main menu, with the name given to its box (an empty name cancels).
    void newPupil(const std::string &name = "Ann Smith");
    // The screen in front (fails the test when none is open).
    Screen &front();
    std::string frontName() const;
    bool isOpen(const std::string &name) const { return app.isOpen(name); }

    void click(const std::string &name, int index = -1);
    void doubleClick(const std::string &name, int index = -1);
    // Each character goes through the key-press event and, unless swallowed, into the box.
    void type(const std::string &name, const std::string &text, int index = -1);
    void enter(const std::string &name, int index = -1) { key(name, 13, index); }
    void typeEnter(const std::string &name, const std::string &text, int index = -1)
    {
        type(name, text, index);
        enter(name, index);
    }
    void key(const std::string &name, int code, int index = -1);
    // A key pressed with no text box focused (the screen-level key channel), and a run of them.
    void screenKey(int code);
    void screenKeys(const std::string &text);
    // A mouse press at control twips on a named control.
    void mouseDown(const std::string &name, double x, double y, int index = -1);
    // A mouse press at screen twips on whatever the window would find there: the topmost shown
    // control that is not transparent to the mouse. False when nothing takes the press.
    bool pressAt(double screenX, double screenY);
    void tick(const std::string &timerName, int times = 1);
    // Replace a box's text as a paste would (no key events), then report the change.
    void setText(const std::string &name, const std::string &text, int index = -1);
    void select(const std::string &listName, int item);

    // Reading the screen in front.
    const Control &control(const std::string &name, int index = -1);
    std::string caption(const std::string &name, int index = -1)
    {
        return control(name, index).caption;
    }
    std::string text(const std::string &name, int index = -1) { return caption(name, index); }
    bool visible(const std::string &name, int index = -1) { return control(name, index).visible; }
    bool enabled(const std::string &name, int index = -1) { return control(name, index).enabled; }
    std::uint32_t backColor(const std::string &name, int index = -1)
    {
        return control(name, index).backColor;
    }
    bool timerOn(const std::string &name) { return control(name).timerOn; }
    int interval(const std::string &name) { return control(name).interval; }

    // Whether a pupil could act on the control now (it exists, is shown and is enabled).
    bool reachable(const std::string &name, int index = -1);

private:
    Control &usable(const std::string &name, int index);
};

using nb::utf8;

} // namespace nb::test
