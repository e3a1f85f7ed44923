#pragma once
// One control of a screen as plain data: the window layer builds a widget from it and keeps the
// widget in step after every event. Positions and sizes are twips on the screen's fixed layout;
// colours are 0x00BBGGRR numbers.
#include "core/Drawing.h"

#include <cstdint>
#include <string>
#include <vector>

namespace nb {

enum class ControlKind {
    Label,
    TextBox,
    Button,
    PictureButton, // a button showing a picture (caption is its spoken name)
    CheckBox,
    OptionButton,
    ScrollBar,
    Image,    // a picture; clickable
    Shape,    // a rectangle, rounded rectangle or oval
    Line,     // from (left, top) to (x2, y2)
    List,     // a list box; items, listIndex
    ComboBox, // a drop-down list; items, listIndex
    Canvas,   // paints its drawing list; mouse down reports twips
    Timer,    // invisible; interval and on/off
};

enum class Align { Left, Center, Right };
// What a label does with a caption too wide for it: wrap onto more lines, shrink its font until
// the caption fits on one line, or leave out the middle (the whole caption shows as a tip).
enum class TextFit { Wrap, Shrink, ElideMiddle };
enum class ShapeKind { Rectangle, RoundedRectangle, Oval };

// Colour helpers: rgb(255, 0, 0) == 255 (red), rgb(0, 255, 0) == 65280 (green).
constexpr std::uint32_t rgb(unsigned r, unsigned g, unsigned b)
{
    return (b << 16) | (g << 8) | r;
}
// "No colour set": the window layer uses its default look for the kind of control.
constexpr std::uint32_t kDefaultColor = 0xFF000000u;

namespace colors {
constexpr std::uint32_t black = rgb(0, 0, 0);
constexpr std::uint32_t white = rgb(255, 255, 255);
constexpr std::uint32_t red = rgb(255, 0, 0);
constexpr std::uint32_t green = rgb(0, 255, 0);
constexpr std::uint32_t blue = rgb(0, 0, 255);
constexpr std::uint32_t yellow = rgb(255, 255, 0);
constexpr std::uint32_t lightRed = rgb(255, 128, 128);
constexpr std::uint32_t silver = rgb(192, 192, 192);
} // namespace colors

struct Font
{
    std::string family = "Comic Sans MS";
    double points = 12;
    bool bold = false;
};

struct Control
{
    std::string name;
    int index = -1; // position in a control array, or -1 for a single control
    ControlKind kind = ControlKind::Label;

    std::string caption; // caption of labels, buttons and boxes; the text of a text box
    bool visible = true;
    bool enabled = true;
    std::uint32_t backColor = kDefaultColor;
    std::uint32_t foreColor = kDefaultColor;
    Font font;
    Align align = Align::Left;
    bool border = false; // labels: draw a thin border

    int left = 0, top = 0, width = 0, height = 0; // twips
    int x2 = 0, y2 = 0;                           // Line: the far end, twips
    int lineWidth = 15;                           // Line and Shape border, twips

    ShapeKind shape = ShapeKind::Rectangle; // Shape
    int value = 0;                          // CheckBox/OptionButton 0 or 1; ScrollBar position
    int minimum = 0, maximum = 100;         // ScrollBar
    std::vector<std::string> items;         // List, ComboBox
    int listIndex = -1;                     // List, ComboBox: selected item or -1
    std::string picture;                    // PictureButton, Image: the picture's resource name
    std::string spokenName;                 // TextBox etc.: short name read out to screen readers
    int maxLength = 0;                      // TextBox: 0 = no limit
    bool readOnly = false;                  // TextBox: shows its text but takes no typing
    TextFit fit = TextFit::Wrap;            // Label
    Drawing drawing;                        // Canvas

    int interval = 0;     // Timer: milliseconds
    bool timerOn = false; // Timer: running
    // Timer: raising it starts a running clock's interval afresh (the next tick comes a whole
    // interval later).
    unsigned timerRestarts = 0;

    // Input. A mouse-transparent control (a label, image or shape over a board) lets a press
    // through to the control beneath it. A control that takes no double-clicks ignores the second
    // press of a double-click, so a quick double press on a game cell acts once.
    bool mouseTransparent = false;
    bool doubleClicks = true;

    // The name automation uses: "name" or "name(index)" for a member of a control array.
    std::string id() const { return index < 0 ? name : name + "(" + std::to_string(index) + ")"; }
};

} // namespace nb
