#include "games/DartsFrame.h"

#include "activity/Ask.h"
#include "core/NumberText.h"
#include "core/PupilProgress.h"

#include <algorithm>
#include <cmath>

namespace nb {

using namespace darts;

namespace {

constexpr std::uint32_t kWall = rgb(30, 84, 72);

constexpr std::uint32_t kDark = DartsFrame::kDarkSector;
constexpr std::uint32_t kCream = DartsFrame::kCreamSector;
constexpr std::uint32_t kRed = DartsFrame::kRedRing;
constexpr std::uint32_t kGreen = DartsFrame::kGreenRing;
constexpr std::uint32_t kSurround = rgb(22, 22, 22);
constexpr std::uint32_t kWood = rgb(112, 72, 36);
constexpr std::uint32_t kWire = rgb(196, 196, 200);

constexpr double kDegree = 3.14159265358979323846 / 180;

// Right-hand panel.
constexpr int kPanelLeft = 9150, kPanelWidth = 3200;
// The wobble bar's row under the board.
constexpr int kRowLeft = 2950, kRowWidth = 5960;

} // namespace

DartsFrame::DartsFrame(App &app, BoardKind kind, std::string exitTo)
    : Screen(app)
    , kind_(kind)
    , sides_{Side{"you", "target", "newtarget", rgb(255, 230, 0)},
             Side{"com", "targetcom", "", rgb(0, 200, 255)}}
    , exitTo_(std::move(exitTo))
{
    setSize(kWidth, kHeight);
    setBackColor(kWall);
    buildBoard();
}

void DartsFrame::buildBoard()
{
    // The board canvas lies first so that everything else is drawn over it. Its wall colour
    // makes it opaque: the window copies its cached picture without blending.
    canvas("board", kBoardLeft, kBoardTop, kBoardWidth, kBoardHeight).backColor = kWall;
    drawBoard();

    // The numbers round the rim, clockwise from the top; presses go through to the board.
    for (int i = 0; i < 20; ++i) {
        const double a = i * 18 * kDegree;
        const double x = kDrawnX + 2740 * std::sin(a), y = kDrawnY - 2740 * std::cos(a);
        Control &n = label("Label" + std::to_string(i + 1), std::to_string(kClockwiseFromTop[i]),
                           int(std::lround(x - 250)), int(std::lround(y - 190)), 500, 380);
        styled(n, 13, true, Align::Center, colors::white).mouseTransparent = true;
    }

    // The dart marks, placed by their top-left corner: the middle of a mark is on the drawn
    // board exactly where the dart is scored. A mark is clear; what shows is the dart standing
    // in the board with its point, a small dot in the thrower's colour, on the mark's middle.
    // A square mark would spill over the edge of a narrow ring and seem to lie in it.
    for (int i = 0; i < kDartsPerTurn; ++i) {
        Control &dart = canvas("dartpic", 0, 0, kDartPicture, kDartPicture);
        dart.index = i;
        dart.visible = false;
        dart.mouseTransparent = true;
        Control &m = label("arrow", "", 0, 0, int(kMarkSize), int(kMarkSize), i);
        m.visible = false;
        m.mouseTransparent = true;
    }

    Control &hit = label("Label21", "This dart landed in:", kPanelLeft, 1500, kPanelWidth, 420);
    styled(hit, 13, true, Align::Center, kChalk);
    Control &bed = label("text1", "", kPanelLeft, 1950, kPanelWidth, 620);
    styled(bed, 22, true, Align::Center, kDark).backColor = kCream;
    Control &number = label("text2", "", kPanelLeft, 2600, kPanelWidth, 800);
    styled(number, 32, true, Align::Center, kDark).backColor = kCream;
    Control &status = label("text3", "Press START to begin.", kPanelLeft, 3600, kPanelWidth, 2300);
    styled(status, 14, true, Align::Center, kYellowText);

    Control &go = button("Command1", "START", kPanelLeft, 6150, 1500, 800);
    styled(go, 18, true, Align::Center, colors::black).backColor = rgb(120, 220, 120);
    Control &exit = button("Command14", "EXIT", kPanelLeft + 1700, 6150, 1500, 800);
    styled(exit, 18, true, Align::Center, colors::black).backColor = rgb(250, 150, 150);

    // The wobble: how far from the click a dart lands. It starts at Steady, so a new board puts
    // the dart exactly where the pupil clicks; the wobble is a challenge the pupil chooses.
    Control &wobble =
        label("wobbletitle", "How much does your dart wobble?", kRowLeft, 6900, kRowWidth, 420);
    styled(wobble, 13, true, Align::Center, kChalk);
    styled(label("steady", "Steady", kRowLeft, 7380, 1000, 400), 12, true, Align::Right, kChalk);
    scrollBar("scroller", kRowLeft + 1100, 7380, kRowWidth - 2200, 380, 0, 10, 0);
    styled(label("wobbly", "Wobbly", kRowLeft + kRowWidth - 1000, 7380, 1000, 400), 12, true,
           Align::Left, kChalk);
    styled(label("text4", "", kRowLeft, 7850, kRowWidth, 450), 12, false, Align::Center, kChalk);
    showWobble();

    // Holds the focus while no box is waiting for a score; Enter there only explains.
    label("dummy", "", 0, 0, 15, 15);
    timer("Timer1", 900);
    setFocus("dummy");
}

// The whole board is drawn once: the window keeps a picture of it, and the dart marks are
// separate controls on top, so a dart never redraws it.
void DartsFrame::drawBoard()
{
    Drawing &d = ctl("board").drawing;
    d.clear();
    const double cx = kDrawnX - kBoardLeft, cy = kDrawnY - kBoardTop;
    const auto disc = [&](double r, std::uint32_t fill) {
        d.ellipse(cx - r, cy - r, cx + r, cy + r, fill, fill, 0);
    };
    disc(2975, kWood);
    disc(2930, kSurround);

    // Rings from the outside in, each drawn to its outer edge over the one before: what shows
    // of a ring is exactly its span in the scoring table.
    const std::span<const Ring> rings = ringsOf(kind_);
    for (std::size_t k = rings.size() - 1; k-- > 0;) {
        const Ring &ring = rings[k];
        const double outer = rings[k + 1].from;
        if (ring.bed == Bed::Bull || ring.bed == Bed::OuterBull) {
            disc(outer, ring.bed == Bed::Bull ? kRed : kGreen);
            continue;
        }
        for (int i = 0; i < 20; ++i) {
            const bool dark = darkSector(kClockwiseFromTop[std::size_t(i)]);
            const std::uint32_t fill =
                ring.bed == Bed::Single ? (dark ? kDark : kCream) : (dark ? kRed : kGreen);
            // Pies count degrees counter-clockwise from 3 o'clock; the numbers go clockwise
            // from 12 o'clock.
            d.pie(cx - outer, cy - outer, cx + outer, cy + outer, 90 - i * 18 - 9, 18, fill, fill,
                  0);
        }
    }

    // The wire: a thin circle on each ring edge and a line between the sectors.
    for (const Ring &ring : rings) {
        if (ring.from <= 0)
            continue;
        DrawOp wire;
        wire.kind = DrawOp::Kind::Ellipse;
        wire.points = {{cx - ring.from, cy - ring.from}, {cx + ring.from, cy + ring.from}};
        wire.penColor = kWire;
        wire.penWidth = 10;
        d.add(std::move(wire));
    }
    // The wires between sectors start where the first numbered bed does (outside the bulls).
    const auto numbered = std::find_if(rings.begin(), rings.end(), [](const Ring &r) {
        return r.bed != Bed::Bull && r.bed != Bed::OuterBull;
    });
    const double inner = numbered->from;
    for (int i = 0; i < 20; ++i) {
        const double a = (i * 18 + 9) * kDegree;
        d.line(cx + inner * std::sin(a), cy - inner * std::cos(a), cx + 2500 * std::sin(a),
               cy - 2500 * std::cos(a), kWire, 10);
    }
}

Control &DartsFrame::styled(Control &c, double points, bool bold, Align align, std::uint32_t ink)
{
    c.font.points = points;
    c.font.bold = bold;
    c.align = align;
    c.foreColor = ink;
    return c;
}

bool DartsFrame::darkSector(int number)
{
    const auto at = std::find(kClockwiseFromTop.begin(), kClockwiseFromTop.end(), number);
    return (at - kClockwiseFromTop.begin()) % 2 == 0;
}

// A dart seen from the side, leaning up and to the right from its point near the bottom-left
// corner of its canvas: steel point, barrel, shaft and two flights in the thrower's colour, and
// a dot of that colour where the point goes in.
void DartsFrame::drawDart(Drawing &d, std::uint32_t flights)
{
    d.clear();
    const double k = std::sqrt(0.5);
    // t runs along the dart from the point, w across it.
    const auto at = [k](double t, double w) {
        return PointTw{kDartPoint + (t + w) * k, kDartPicture - kDartPoint - (t - w) * k};
    };
    const auto along = [&](double t0, double t1, double half, std::uint32_t fill) {
        d.polygon({at(t0, -half), at(t1, -half), at(t1, half), at(t0, half)}, fill, rgb(30, 30, 30),
                  8);
    };
    along(0, 240, 12, rgb(200, 200, 210));
    along(240, 560, 42, rgb(90, 92, 104));
    along(560, 760, 16, flights);
    for (double side : {-1.0, 1.0})
        d.polygon({at(680, 0), at(880, 160 * side), at(1000, 160 * side), at(1000, 0)}, flights,
                  rgb(30, 30, 30), 8);
    const PointTw tip = at(0, 0);
    d.ellipse(tip.x - 36, tip.y - 36, tip.x + 36, tip.y + 36, flights, rgb(20, 20, 20), 10);
}

Control &DartsFrame::panelLabel(std::string name, std::string caption, int top, int height,
                                double points)
{
    return styled(label(std::move(name), std::move(caption), 250, top, 2500, height), points, true,
                  Align::Center, kChalk);
}

Control &DartsFrame::scoreBoard(std::string name, int top)
{
    Control &c = label(std::move(name), std::to_string(kStartScore), 350, top, 2300, 950);
    styled(c, 34, true, Align::Center, kChalk).backColor = kSurround;
    c.border = true;
    return c;
}

Control &DartsFrame::answerBox(std::string name, std::string spoken, int top)
{
    Control &box = textBox(std::move(name), std::move(spoken), 750, top, 1500, 750);
    styled(box, 26, true, Align::Center, colors::black).backColor = colors::white;
    box.maxLength = 3;
    box.enabled = false;
    return box;
}

void DartsFrame::onClick(const std::string &name, int)
{
    if (name == "Command1")
        start();
    else if (name == "Command14")
        leave();
}

void DartsFrame::onTimer(const std::string &name)
{
    if (name == "Timer1")
        tick();
}

void DartsFrame::onChange(const std::string &name, int)
{
    if (name == "scroller")
        showWobble();
}

void DartsFrame::showWobble()
{
    const int v = ctl("scroller").value;
    caption("text4") =
        v == 0 ? "Your dart lands exactly where you click."
               : "Wobble " + std::to_string(v) + ": your darts land a little way from your click.";
}

void DartsFrame::onMouseDown(const MousePress &press)
{
    // A press anywhere on the board (or on a mark or number over it) throws there; off the
    // board's face the dart misses. Presses on the labels around it throw nothing.
    if (press.name != "board")
        return;
    switch (phase_) {
    case Phase::Waiting:
        setStatus("Press START to begin.");
        break;
    case Phase::Typing:
        setStatus("First type the score you have left and press Enter.");
        break;
    case Phase::Pausing:
        setStatus(pauseHint());
        break;
    case Phase::Throwing:
        throwAt(press.screenX, press.screenY);
        break;
    }
}

void DartsFrame::onScreenKey(int key)
{
    if (key != 13)
        return;
    if (phase_ == Phase::Throwing)
        setStatus("Throw a dart first: click on the board where you want it to land.");
    else if (phase_ == Phase::Waiting)
        setStatus("Press START to begin.");
}

void DartsFrame::throwAt(double x, double y)
{
    const int sx = signFrom(draw());
    const int sy = signFrom(draw());
    const double d = ctl("scroller").value * 50.0;
    const Hit hit = landDart(x + sx * d, y + sy * d);
    Side &side = sides_[std::size_t(thrower_)];
    const Verdict verdict = judge(side.remaining, hit);
    if (verdict == Verdict::Bust || verdict == Verdict::NeedsDouble) {
        // The message shows with the dart still named; the turn's darts then go back.
        tell(verdict == Verdict::Bust ? kBust : kNeedsDouble);
        setRemaining(thrower_, turnStart_);
        clearBed();
        phase_ = Phase::Pausing;
        turnOver();
        return;
    }
    expected_ = side.remaining - hit.score();
    phase_ = Phase::Typing;
    Control &box = ctl(side.answerBox);
    box.enabled = true;
    box.caption.clear();
    setFocus(side.answerBox);
    setStatus("Work out the score you have left and type it in your box, then press Enter.");
}

Hit DartsFrame::landDart(double x, double y)
{
    const Hit hit = classify(kind_, x, y, number_);
    number_ = hit.number;
    const std::uint32_t colour = sides_[std::size_t(thrower_)].markColor;
    Control &mark = ctl("arrow", dart_);
    mark.left = int(std::lround(x));
    mark.top = int(std::lround(y));
    mark.visible = true;
    Control &dart = ctl("dartpic", dart_);
    if (dart.drawing.ops.empty() || dart.drawing.ops.back().fillColor != colour)
        drawDart(dart.drawing, colour);
    dart.left = mark.left + int(kMarkSize) / 2 - kDartPoint;
    dart.top = mark.top + int(kMarkSize) / 2 - (kDartPicture - kDartPoint);
    dart.visible = true;
    caption("text1") = std::string(bedName(hit.bed));
    if (hit.hasNumber)
        caption("text2") = std::to_string(hit.number);
    else if (hit.bed == Bed::Missed)
        caption("text2").clear();
    ++dart_;
    return hit;
}

void DartsFrame::onKeyPress(const std::string &name, int, int &key)
{
    Side &side = sides_[std::size_t(thrower_)];
    if (name != side.answerBox || phase_ != Phase::Typing) {
        key = 0;
        return;
    }
    std::string &text = caption(name);
    if (key == 13) {
        key = 0;
        submit(text);
    } else if (key == 8 || (key >= '0' && key <= '9')) {
        // Digits and Backspace go in; the box holds three digits at most.
    } else {
        key = 0;
        setStatus("Only the number keys 0 to 9 go in this box: type the score you have left.");
    }
}

void DartsFrame::submit(std::string &text)
{
    // Only plain digits count as an answer; anything else (pasted in) is cleared.
    bool digits = !text.empty() && text.size() <= 3;
    for (char c : text)
        digits = digits && c >= '0' && c <= '9';
    if (text.empty()) {
        setStatus("Type the score you have left first, then press Enter.");
        return;
    }
    if (!digits) {
        text.clear();
        setStatus("Only the number keys 0 to 9 go in this box: type the score you have left.");
        return;
    }
    const int typed = int(readNumber(text));
    text.clear();
    Control &box = ctl(sides_[std::size_t(thrower_)].answerBox);
    box.enabled = false;
    setFocus("dummy");
    clearBed();
    if (typed != expected_) {
        tell(kWrongSum);
        afterDart();
        return;
    }
    setRemaining(thrower_, typed);
    if (typed == 0) {
        phase_ = Phase::Pausing;
        finished();
        return;
    }
    afterDart();
}

void DartsFrame::afterDart()
{
    if (dart_ >= kDartsPerTurn) {
        phase_ = Phase::Pausing;
        turnOver();
        return;
    }
    phase_ = Phase::Throwing;
    setStatus(throwerCall() + " throw dart " + std::to_string(dart_ + 1) + ": click on the board.");
}

void DartsFrame::setRemaining(int side, int value)
{
    sides_[std::size_t(side)].remaining = value;
    caption(sides_[std::size_t(side)].scoreLabel) = std::to_string(value);
}

void DartsFrame::setThrower(int side)
{
    thrower_ = side;
    for (std::size_t i = 0; i < sides_.size(); ++i)
        ctl(sides_[i].nameLabel).foreColor = int(i) == side ? kYellowText : kChalk;
}

void DartsFrame::beginTurn(int side)
{
    setThrower(side);
    dart_ = 0;
    turnStart_ = sides_[std::size_t(side)].remaining;
    hideMarks();
    clearBed();
    for (const Side &s : sides_)
        if (!s.answerBox.empty())
            setEnabled(s.answerBox, false);
    setFocus("dummy");
    phase_ = Phase::Throwing;
    setStatus(throwerCall() + " throw dart 1: click on the board.");
}

void DartsFrame::hideMarks()
{
    for (int i = 0; i < kDartsPerTurn; ++i) {
        setVisible("arrow", false, i);
        setVisible("dartpic", false, i);
    }
}

void DartsFrame::clearBed()
{
    caption("text1").clear();
    caption("text2").clear();
}

void DartsFrame::setStatus(const std::string &text)
{
    caption("text3") = text;
}

void DartsFrame::tell(const std::string &text)
{
    nb::tell(platform(), progress(), text);
}

void DartsFrame::resetBoard()
{
    setTimer("Timer1", false);
    hideMarks();
    clearBed();
    for (const Side &s : sides_)
        if (!s.answerBox.empty()) {
            setEnabled(s.answerBox, false);
            caption(s.answerBox).clear();
        }
    setFocus("dummy");
    phase_ = Phase::Waiting;
    setStatus("Press START to begin.");
}

void DartsFrame::leave()
{
    resetBoard();
    handOver(exitTo_);
}

} // namespace nb
