#include "puzzles/factor.h"

#include "activity/Ask.h"
#include "core/NumberText.h"
#include "core/Platform.h"
#include "core/PupilProgress.h"

#include <algorithm>
#include <cmath>

namespace nb {

namespace {

constexpr int kWidth = 12000;
constexpr int kHeight = 9000;
constexpr int kPanelLeft = 7250; // the road and its scenery lie left of this, the controls right

constexpr std::uint32_t kBoxWaiting = colors::red; // waiting and done boxes
constexpr std::uint32_t kBoxActive = colors::yellow;

// The road: horizontal silver lines from the bottom up, each 5 twips narrower at both ends.
constexpr int kRoadBottom = 7845, kRoadTop = 825, kRoadStep = 15;
constexpr int kRoadLeft = 600, kRoadRight = 6650, kRoadNarrowing = 5;

double roadLeftAt(double y)
{
    return kRoadLeft + (kRoadBottom - y) * kRoadNarrowing / kRoadStep;
}
double roadRightAt(double y)
{
    return kRoadRight - (kRoadBottom - y) * kRoadNarrowing / kRoadStep;
}
// How big things look at height y, as a share of their size at the bottom of the road.
double scaleAt(double y)
{
    return (roadRightAt(y) - roadLeftAt(y)) / (kRoadRight - kRoadLeft);
}

Control &styled(Control &c, double points, bool bold, Align align = Align::Left)
{
    c.font.points = points;
    c.font.bold = bold;
    c.align = align;
    return c;
}

} // namespace

Factor::Factor(App &app)
    : Screen(app)
{
    setSize(kWidth, kHeight);
    setBackColor(rgb(255, 246, 220));
    buildControls();
}

void Factor::buildControls()
{
    // The road and its scenery fill the left of the screen; the controls stand on plain
    // colour to the right of it. The canvas comes first so the cars lie on top of it.
    // Its sky colour makes it opaque, so the window copies it without blending on every move.
    canvas("road", 0, 0, kPanelLeft, kHeight).backColor = rgb(150, 205, 250);
    shape("rim", ShapeKind::Rectangle, rgb(43, 90, 168), rgb(43, 90, 168), kPanelLeft, 0, 60,
          kHeight);

    Control &heading = label("Label2", "Find the factors of", 7450, 450, 4300, 600);
    styled(heading, 20, true, Align::Center).foreColor = rgb(30, 60, 140);
    // The number and the level stand out in white framed boxes.
    const auto framed = [](Control &c, double points, std::uint32_t ink) {
        styled(c, points, true, Align::Center).border = true;
        c.backColor = colors::white;
        c.foreColor = ink;
    };
    framed(label("Questionno", "", 8800, 1100, 1600, 1150), 40, rgb(30, 60, 140));

    for (int k = 1; k <= kBoxes; ++k) {
        Control &box = textBox("factorbox", "factor " + std::to_string(k),
                               7500 + (k - 1) % 4 * 1060, 2550 + (k - 1) / 4 * 950, 950, 800, k);
        styled(box, 28, true, Align::Center);
        box.backColor = kBoxWaiting;
        box.foreColor = colors::black;
        box.maxLength = 6;
        box.visible = false;
        box.enabled = false;
    }
    Control &hint = label("hint", "Type a factor and press Enter.", 7450, 4450, 4300, 450);
    styled(hint, 13, false, Align::Center).foreColor = rgb(60, 60, 60);

    Control &levelCaption = label("Label1", "Level", 7700, 5200, 1700, 700);
    styled(levelCaption, 22, true, Align::Right).foreColor = rgb(30, 60, 140);
    framed(label("level", "", 9550, 5050, 1400, 900), 30, rgb(200, 40, 40));

    // Which car is which.
    image("youkey", "car_pupil.svg", 7750, 6150, 700, 700);
    styled(label("youlabel", "You", 8500, 6300, 1000, 500), 16, true);
    image("compkey", "car_computer.svg", 9650, 6150, 700, 700);
    styled(label("complabel", "Computer", 10400, 6300, 1400, 500), 16, true);

    Control &start = button("start", "START", 7650, 7500, 1900, 950);
    styled(start, 22, true, Align::Center).backColor = rgb(120, 220, 120);
    Control &exit = button("exit", "EXIT", 10000, 7500, 1650, 950);
    styled(exit, 22, true, Align::Center).backColor = rgb(250, 150, 150);

    image("compcar", "car_computer.svg", 0, 0, 0, 0);
    image("youcar", "car_pupil.svg", 0, 0, 0, 0);
    showCar("compcar", kComputerStart);
    showCar("youcar", kPupilStart);

    timer("compmover", moveInterval(1));
    setFocus("start");
}

// Everything on the canvas is drawn once here: the window layer keeps a picture of it, and the
// moving cars are separate images on top.
void Factor::drawScenery()
{
    Drawing &d = ctl("road").drawing;
    d.clear();
    // Sky, hills, grass and flowers.
    d.image(0, 0, kPanelLeft, kHeight, "factor_scenery.svg");

    // A silver ground under the road fills the hairline seams that smoothing leaves between
    // its lines at small window sizes, and carries the road on to the bottom of the screen.
    d.polygon({{roadLeftAt(kRoadTop), kRoadTop},
               {roadRightAt(kRoadTop), kRoadTop},
               {roadRightAt(kHeight), kHeight},
               {roadLeftAt(kHeight), kHeight}},
              colors::silver, colors::silver, 1);

    // Red and white kerbs along both edges, shorter and thinner towards the top.
    bool red = true;
    for (double y0 = kHeight; y0 > kRoadTop;) {
        const double y1 = std::max<double>(kRoadTop, y0 - std::max(45.0, 330 * scaleAt(y0)));
        const double w0 = 150 * scaleAt(y0), w1 = 150 * scaleAt(y1);
        const std::uint32_t c = red ? rgb(225, 45, 45) : colors::white;
        const double l0 = roadLeftAt(y0), l1 = roadLeftAt(y1);
        const double r0 = roadRightAt(y0), r1 = roadRightAt(y1);
        d.polygon({{l0 - w0, y0}, {l0, y0}, {l1, y1}, {l1 - w1, y1}}, c, c, 1);
        d.polygon({{r0, y0}, {r0 + w0, y0}, {r1 + w1, y1}, {r1, y1}}, c, c, 1);
        red = !red;
        y0 = y1;
    }

    // The road itself.
    int a = kRoadLeft, b = kRoadRight;
    for (int y = kRoadBottom; y >= kRoadTop; y -= kRoadStep) {
        d.line(a, y, b, y, colors::silver, kRoadStep);
        a += kRoadNarrowing;
        b -= kRoadNarrowing;
    }

    // White dashes down the middle, dividing the two cars' lanes.
    const double mid = (kRoadLeft + kRoadRight) / 2.0;
    for (double y0 = kHeight; y0 > kRoadTop + 40;) {
        const double y1 = std::max<double>(kRoadTop, y0 - 380 * scaleAt(y0));
        const double h0 = 40 * scaleAt(y0), h1 = 40 * scaleAt(y1);
        d.polygon({{mid - h0, y0}, {mid + h0, y0}, {mid + h1, y1}, {mid - h1, y1}}, colors::white,
                  colors::white, 1);
        y0 = y1 - 300 * scaleAt(y1);
    }

    // The start line just below the starting cars.
    d.polygon({{roadLeftAt(1445), 1445},
               {roadRightAt(1445), 1445},
               {roadRightAt(1475), 1475},
               {roadLeftAt(1475), 1475}},
              colors::white, colors::white, 1);

    // The finishing line: two rows of black and white squares from y = 7085 down.
    constexpr int kSquares = 28;
    constexpr double kRow = 75;
    for (int row = 0; row < 2; ++row) {
        const double yt = kFinishY + row * kRow, yb = yt + kRow;
        const double lt = roadLeftAt(yt), wt = roadRightAt(yt) - lt;
        const double lb = roadLeftAt(yb), wb = roadRightAt(yb) - lb;
        for (int i = 0; i < kSquares; ++i) {
            const std::uint32_t c = (i + row) % 2 ? colors::black : colors::white;
            d.polygon({{lt + wt * i / kSquares, yt},
                       {lt + wt * (i + 1) / kSquares, yt},
                       {lb + wb * (i + 1) / kSquares, yb},
                       {lb + wb * i / kSquares, yb}},
                      c, c, 1);
        }
    }
    // Chequered flags at both ends of it.
    d.image(roadLeftAt(kFinishY) - 900, 6150, roadLeftAt(kFinishY) - 150, 7200, "factor_flag.svg");
    d.image(roadRightAt(kFinishY) + 150, 6150, roadRightAt(kFinishY) + 900, 7200,
            "factor_flag.svg");

    // Trees beside the road, smaller in the distance; farthest first so nearer ones overlap.
    struct Tree
    {
        double baseY;
        bool leftSide;
    };
    static constexpr Tree kTrees[] = {{1250, true},  {1500, false}, {2050, true},
                                      {2450, false}, {3150, true},  {3700, false},
                                      {4500, true},  {5150, false}, {5900, true}};
    for (const Tree &t : kTrees) {
        const double s = scaleAt(t.baseY);
        const double h = 1250 * s, w = 850 * s, gap = 350 * s;
        const double l = t.leftSide ? roadLeftAt(t.baseY) - gap - w : roadRightAt(t.baseY) + gap;
        d.image(l, t.baseY - h, l + w, t.baseY, "factor_tree.svg");
    }
}

void Factor::onOpened()
{
    drawScenery();
    const double best = progress().FactorBest.number();
    double level = 1;
    if (best > 0) {
        const std::string next = numberText(best + 1);
        if (ask("You have reached level " + next +
                " before, would you like to go straight to this level now?") == kYes)
            level = best + 1;
    }
    setLevel(level);
}

void Factor::setLevel(double level)
{
    level_ = level;
    caption("level") = numberText(level);
}

int Factor::moveInterval(double level)
{
    // 1500 ms at level 1 and 60 ms less for every level after it. From level 26 the rule would
    // give 0 ms or less, which would stop the computer's car altogether; it stays at the level-25
    // pace instead. At 60 ms the computer crosses the line in about three seconds, already far
    // beyond any pupil, and a faster timer would only skip frames.
    const double ms = std::floor(1500 - (level - 1) * 60);
    return int(std::clamp(ms, 60.0, 1e6));
}

double Factor::levelValue() const
{
    return level_;
}

int Factor::ask(const std::string &text)
{
    return nb::ask(platform(), progress(), text);
}

void Factor::showCar(const char *name, const Place &p)
{
    Control &car = ctl(name);
    car.left = int(std::lround(p.left));
    car.top = int(std::lround(p.top));
    // The pictures are square: the height follows the width so the cars keep their shape.
    car.width = car.height = int(std::lround(p.width));
}

void Factor::resetRace()
{
    computerStep_ = 1;
    pupilStep_ = 1;
    Control &mover = ctl("compmover");
    mover.interval = moveInterval(levelValue());
    mover.timerOn = true;
    computer_ = kComputerStart;
    pupil_ = kPupilStart;
    showCar("compcar", computer_);
    showCar("youcar", pupil_);
}

void Factor::clearBoxes()
{
    for (int k = 1; k <= kBoxes; ++k) {
        Control &box = ctl("factorbox", k);
        box.visible = false;
        box.enabled = false; // only the box being filled takes keys
        box.caption.clear();
    }
    caption("Questionno").clear();
}

void Factor::newNumber()
{
    wrongCount_ = 0;
    number_ = int(draw() * 30 + 2);
    caption("Questionno") = std::to_string(number_);
    factorCount_ = 0;
    for (int i = 1; i <= number_; ++i)
        if (number_ % i == 0)
            ++factorCount_;
    for (int k = 1; k <= factorCount_; ++k) {
        Control &box = ctl("factorbox", k);
        box.backColor = kBoxWaiting;
        box.visible = true;
    }
    currentBox_ = 1;
    openBox(1);
}

void Factor::openBox(int k)
{
    Control &box = ctl("factorbox", k);
    box.enabled = true;
    box.backColor = kBoxActive;
    setFocus("factorbox", k);
}

void Factor::onClick(const std::string &name, int)
{
    if (name == "start") {
        setEnabled("start", false);
        resetRace();
        clearBoxes();
        newNumber();
    } else if (name == "exit") {
        leave();
    }
}

void Factor::onTimer(const std::string &name)
{
    if (name == "compmover")
        computerMove();
}

void Factor::onKeyPress(const std::string &name, int index, int &key)
{
    if (name != "factorbox")
        return;
    // A box whose text is not a clean number is emptied before the key goes in, so a malformed
    // or empty box never submits: Enter on it only empties it.
    std::string &text = caption("factorbox", index);
    const double v = readNumber(text);
    if ((v > 0 && text != numberText(v)) || (v == 0 && text != "0")) {
        text.clear();
        return;
    }
    if (key != 13)
        return;
    key = 0;
    if (index == currentBox_)
        checkEntry();
}

void Factor::checkEntry()
{
    Control &box = ctl("factorbox", currentBox_);
    const double x = readNumber(box.caption);
    bool repeat = false;
    for (int k = 1; k < currentBox_; ++k)
        repeat = repeat || readNumber(caption("factorbox", k)) == x;
    // Only a whole number from 1 up can be a factor; 0 and fractions are simply wrong.
    const bool right =
        !repeat && x >= 1 && x == std::floor(x) && x <= number_ && number_ % int(x) == 0;

    if (!right) {
        box.caption.clear();
        if (!computerMove())
            return; // that move lost the race and the question has been answered
        if (++wrongCount_ == 3) {
            platform().message("You have typed three wrong answers - go back to the start!");
            clearBoxes();
            newNumber();
            pupil_ = kPupilStart;
            showCar("youcar", pupil_);
            pupilStep_ = 1;
        }
        return;
    }

    platform().beep();
    box.backColor = kBoxWaiting;
    box.enabled = false;
    ++currentBox_;
    const Place next{pupil_.left + 2.13 * pupilStep_, std::round(pupil_.top + 30.0 * pupilStep_),
                     pupil_.width + 7.2 * pupilStep_};
    pupil_ = next;
    showCar("youcar", pupil_);
    if (next.finished()) {
        won();
        return;
    }
    ++pupilStep_;
    if (currentBox_ > factorCount_) {
        clearBoxes();
        newNumber();
    } else {
        openBox(currentBox_);
    }
}

bool Factor::computerMove()
{
    const Place next{computer_.left - computerStep_,
                     std::round(computer_.top + 3.0 * computerStep_),
                     computer_.width + 0.72 * computerStep_};
    if (next.finished()) {
        setTimer("compmover", false);
        lost();
        return false;
    }
    computer_ = next;
    showCar("compcar", computer_);
    ++computerStep_;
    return true;
}

void Factor::won()
{
    setTimer("compmover", false);
    const std::string level = numberText(level_);
    // The last level won is kept, even when an earlier run had reached a higher one.
    progress().FactorBest = Value::int16(std::int16_t(roundHalfEven(levelValue())));
    if (ask("Well done, you have won level " + level + ". Do you want to try the next level ?") !=
        kYes) {
        leave();
        return;
    }
    setLevel(level_ + 1);
    resetRace();
    clearBoxes();
    newNumber();
}

void Factor::lost()
{
    if (ask("You have lost on level " + numberText(level_) + ". Do you want to try again ?") !=
        kYes) {
        leave();
        return;
    }
    resetRace();
    clearBoxes();
    newNumber();
}

void Factor::leave()
{
    resetRace();
    setTimer("compmover", false);
    clearBoxes();
    setEnabled("start", true);
    handOver("divmenu");
}

} // namespace nb
