#include "drills/DrillFrame.h"

#include "activity/BestTimeCheck.h"
#include "core/NumberText.h"
#include "core/Platform.h"

#include <cmath>

namespace nb {

namespace {

constexpr int kWidth = 12000;
constexpr int kHeight = 9000;

constexpr std::uint32_t kInk = rgb(30, 40, 120);
// The operator and "=" stand apart from the numbers: larger, in a colour of their own and with
// room on both sides, so that in "-174.7 − -90.1" the operator and the sign of -90.1 differ.
constexpr std::uint32_t kSignInk = rgb(215, 80, 20);
constexpr double kNumberPoints = 40;
constexpr double kSignPoints = 60;
constexpr std::uint32_t kPanel = rgb(255, 245, 170);

// The five cells of the sum, left to right: first number, sign, second number, "=", answer.
struct Cell
{
    const char *name;
    int left;
    int width;
    bool isSign;
};
constexpr Cell kCells[] = {
    {"text1", 400, 2900, false}, {"text2", 3300, 1300, true},  {"text3", 4600, 2900, false},
    {"text4", 7500, 800, true},  {"Text5", 8300, 3200, false},
};
constexpr int kSumTop = 2050;
constexpr int kSumHeight = 1500;
// Labels show their text near the top while a box centres it: lowering the labels lines the
// numbers up with the answer.
constexpr int kLabelDrop = 280;
// A label's text hangs from its top, so a larger sign is lifted to stand level with the numbers
// (a glyph's middle lies about 0.58 of the font size below the top).
constexpr int kSignLift = int((kSignPoints - kNumberPoints) * 20 * 0.58);

void bigFont(Control &c, double points)
{
    c.font.points = points;
    c.font.bold = true;
    c.align = Align::Center;
}

} // namespace

DrillFrame::DrillFrame(App &app, Look look)
    : Screen(app)
    , look_(std::move(look))
    , draws_([this] { return draw(); })
    , run_(*this, {}, kQuestions)
{
    setSize(kWidth, kHeight);
    setBackColor(look_.theme);

    // The heading shows the screen's title once it is open.
    Control &heading = label("lblHeading", "", 500, 250, kWidth - 1000, 900);
    bigFont(heading, 28);
    heading.foreColor = kInk;

    // A white card behind the sum.
    Control &card = label("Label1", "", 300, 1600, kWidth - 600, 2400);
    card.backColor = colors::white;
    card.border = true;

    for (const Cell &cell : kCells) {
        const std::string caption = !cell.isSign                        ? ""
                                    : std::string(cell.name) == "text2" ? look_.sign
                                                                        : "=";
        const bool sign = cell.isSign && cell.name != look_.answerBox;
        const int lift = sign ? kSignLift : 0;
        Control &c = cell.name == look_.answerBox
                         ? textBox(cell.name, "Answer", cell.left, kSumTop, cell.width, kSumHeight)
                         : label(cell.name, caption, cell.left, kSumTop + kLabelDrop - lift,
                                 cell.width, kSumHeight - kLabelDrop + lift);
        bigFont(c, sign ? kSignPoints : kNumberPoints);
        c.foreColor = sign ? kSignInk : kInk;
    }
    Control &box = ctl(look_.answerBox);
    box.backColor = rgb(255, 255, 220);
    // Room for more digits than a number keeps (15), so that an over-long entry stays untidy and
    // is cleared rather than cut down to a number that would be judged.
    box.maxLength = 20;
    box.enabled = false; // until Start

    const auto panel = [this](const char *caption, const char *name, const char *value, int left) {
        Control &head = label(caption, name, left, 4400, 3000, 650);
        bigFont(head, 22);
        head.foreColor = kInk;
        Control &v = label(value, "", left, 5050, 3000, 1300);
        bigFont(v, 40);
        v.backColor = kPanel;
        v.foreColor = rgb(200, 40, 40);
        v.border = true;
    };
    panel("timelabel", "Time", "time", 700);
    panel("scorelabel", "Score", "score", 4300);

    Control &startButton = button("Command11", "Start", 8300, 4500, 3200, 1000);
    bigFont(startButton, 24);
    startButton.backColor = rgb(130, 220, 130);
    Control &exitButton = button("Command12", "Exit", 8300, 5800, 3200, 1000);
    bigFont(exitButton, 24);
    exitButton.backColor = rgb(250, 160, 160);
    setFocus("Command11"); // an Enter before the run starts it, never leaves

    Control &hint = label("lblHint", "Press Start, then type each answer and press Enter.", 500,
                          7200, kWidth - 1000, 700);
    bigFont(hint, 16);
    hint.font.bold = false;
    hint.foreColor = kInk;

    timer("Timer1", 1000);
}

bool DrillFrame::closeEnough(double expected, double typed)
{
    return typed == expected || std::fabs(expected - typed) < 0.01;
}

double DrillFrame::shown(std::string_view name) const
{
    return readNumber(ctl(name).caption);
}

void DrillFrame::show(std::string_view name, double value)
{
    ctl(name).caption = numberText(value);
}

void DrillFrame::onOpened()
{
    caption("lblHeading") = title();
    announceBestTime(platform(), progress(), bestSlot());
}

void DrillFrame::onClick(const std::string &name, int)
{
    if (name == "Command11")
        start();
    else if (name == "Command12")
        handOver(look_.menu);
}

void DrillFrame::onTimer(const std::string &name)
{
    if (name == "Timer1")
        run_.tick();
}

void DrillFrame::onKeyPress(const std::string &name, int, int &key)
{
    if (name != look_.answerBox || key != 13)
        return;
    key = 0;
    enter();
}

void DrillFrame::start()
{
    run_.begin();
    nextQuestion();
}

void DrillFrame::nextQuestion()
{
    Control &box = ctl(look_.answerBox);
    box.caption.clear();
    showQuestion(draws_);
    box.enabled = true;
    setFocus(look_.answerBox);
}

void DrillFrame::enter()
{
    Control &box = ctl(look_.answerBox);
    if (!run_.running())
        return;
    // A malformed entry (07, 5., .5, 5a, " 5", -0, 0.0, an empty box) is cleared: no penalty.
    if (!isCleanNumberText(box.caption)) {
        box.caption.clear();
        return;
    }
    if (isRight(readNumber(box.caption))) {
        platform().beep();
        if (run_.scorePoint())
            finish();
        else
            nextQuestion();
        return;
    }
    // Wrong: a two-second penalty at once, the same question again.
    run_.penalty(2);
    box.caption.clear();
    setFocus(look_.answerBox);
}

void DrillFrame::finish()
{
    if (run_.finish(platform(), progress(), bestSlot()) == kYes)
        start();
    else
        handOver(look_.menu);
}

} // namespace nb
