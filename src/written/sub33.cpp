#include "written/sub33.h"

#include "core/NumberText.h"

namespace nb {

namespace {
constexpr int kExchangeRow = 1, kTopRow = 2, kBottomRow = 3, kAnswerRow = 4;
// Exchanges are written in red, as a teacher would.
constexpr std::uint32_t kExchangeInk = rgb(215, 40, 40);
// The top digit waiting to be clicked, and the hint that says so.
constexpr std::uint32_t kClickMe = rgb(255, 214, 150);
constexpr std::uint32_t kHintPaper = rgb(255, 240, 200);

const char *const kBoxes[] = {"Text11", "Text12", "Text13"};
const char *const kPrompts[] = {"Enter the units.", "Enter the tens.", "Enter the hundreds."};
} // namespace

Sub33::Sub33(App &app)
    : WrittenFrame(app, &PupilProgress::ColumnSubBest, "submenu")
{
    headings(kHundredsColumn, 0, {"H", "T", "U"});
    digitLabel("Label1", kHundredsColumn, kTopRow);
    digitLabel("Label2", kTensColumn, kTopRow);
    digitLabel("Text5", kUnitsColumn, kTopRow);
    signLabel("\u2212", kSignColumn, kBottomRow);
    digitLabel("text10", kHundredsColumn, kBottomRow);
    digitLabel("text4", kTensColumn, kBottomRow);
    digitLabel("text2", kUnitsColumn, kBottomRow);

    // A top digit that gave is crossed out and rewritten above its column.
    for (int i = 0; i < 2; ++i) {
        const int x = cellX(kHundredsColumn + i);
        Control &strike = line("strike", x + 250, cellY(kTopRow) + kCell - 150, x + kCell - 250,
                               cellY(kTopRow) + 170, kExchangeInk, i);
        strike.lineWidth = 30;
        strike.visible = false;
    }
    const auto rewritten = [this](const char *name, int column) {
        Control &c = label(name, "", cellX(column) + 200, cellY(kExchangeRow) + 280, kCell - 400,
                           kCell - 300);
        c.font.points = 24;
        c.font.bold = true;
        c.foreColor = kExchangeInk;
        c.align = Align::Center;
        c.visible = false;
    };
    rewritten("Text16", kHundredsColumn);
    rewritten("Text15", kTensColumn);
    // The small "1"s go just in front of the digit that received the exchange.
    const auto smallOne = [this](const char *name, int column, int row, int top) {
        Control &c = label(name, "1", cellX(column) + 50, cellY(row) + top, 260, 480);
        c.font.points = 16;
        c.font.bold = true;
        c.foreColor = kExchangeInk;
        c.align = Align::Right;
        c.visible = false;
    };
    smallOne("Text14", kTensColumn, kTopRow, 380);
    smallOne("text18", kUnitsColumn, kTopRow, 380);
    smallOne("text19", kTensColumn, kExchangeRow, 420);

    rules(kAnswerRow, kSignColumn, kUnitsColumn, false);
    answerBox("Text13", "hundreds", kHundredsColumn, kAnswerRow);
    answerBox("Text12", "tens", kTensColumn, kAnswerRow);
    answerBox("Text11", "units", kUnitsColumn, kAnswerRow);

    // Says what to do while a column waits for its exchange; hidden otherwise.
    Control &hint = label("hint", "", 8000, 5450, 3400, 2000);
    hint.font.points = 16;
    hint.font.bold = true;
    hint.foreColor = kExchangeInk;
    hint.backColor = kHintPaper;
    hint.border = true;
    hint.align = Align::Center;
    hint.visible = false;
}

void Sub33::newQuestion()
{
    topHundreds_ = drawDigit("Label1", 9, 1);
    topTens_ = drawDigit("Label2", 10);
    topUnits_ = drawDigit("Text5", 10);
    // Always below the top hundreds digit, so the difference is at least 1.
    bottomHundreds_ = drawDigit("text10", topHundreds_);
    bottomTens_ = drawDigit("text4", 10);
    bottomUnits_ = drawDigit("text2", 10);

    difference_ = (topHundreds_ * 100 + topTens_ * 10 + topUnits_) -
                  (bottomHundreds_ * 100 + bottomTens_ * 10 + bottomUnits_);
    answerWidth_ = difference_ >= 100 ? 3 : 2;

    clearPage();
    for (const char *name : {"Text16", "Text15", "Text14", "text18", "text19"})
        setVisible(name, false);
    setVisible("strike", false, 0);
    setVisible("strike", false, 1);
    unitsEntered_ = tensEntered_ = hundredsEntered_ = 0;
    exchangedFromTens_ = exchangedFromHundreds_ = 0;
    step_ = 1;
    showStep();
}

void Sub33::showStep()
{
    for (int i = 0; i < 3; ++i) {
        Control &box = ctl(kBoxes[i]);
        box.visible = i < step_;
        box.enabled = false; // only the active box takes input
    }
    Control &active = ctl(kBoxes[step_ - 1]);
    active.backColor = kActiveBox;
    setPrompt(kPrompts[step_ - 1]);
    // A column whose top digit is still too small waits for its exchange. The focus then rests
    // on the top digit to click, where an Enter does nothing.
    const char *toClick = digitToClick();
    pointAt(toClick);
    if (toClick) {
        setFocus(toClick);
    } else {
        active.enabled = true;
        setFocus(active.name);
    }
}

const char *Sub33::digitToClick() const
{
    if (step_ == 1 && bottomUnits_ > unitsNow())
        return topTens_ > 0 || exchangedFromHundreds_ ? "Label2" : "Label1";
    if (step_ == 2 && bottomTens_ > tensNow())
        return "Label1";
    return nullptr;
}

void Sub33::pointAt(const char *digit)
{
    for (const char *name : {"Label1", "Label2"}) {
        Control &c = ctl(name);
        const bool pointed = digit && c.name == digit;
        c.backColor = pointed ? kClickMe : kDefaultColor;
        c.border = pointed;
    }
    Control &hint = ctl("hint");
    hint.visible = digit != nullptr;
    if (!digit) {
        hint.caption.clear();
        return;
    }
    const bool units = step_ == 1;
    const int have = units ? unitsNow() : tensNow();
    const int need = units ? bottomUnits_ : bottomTens_;
    const std::string smaller = numberText(have) + " is smaller than " + numberText(need);
    std::string text;
    if (digit == std::string_view("Label2"))
        text = smaller + ". Click the " + numberText(tensNow()) +
               " at the top of the tens to exchange a ten.";
    else if (units) // no tens to give: the hundreds first
        text = smaller + " and there are no tens. Click the " + numberText(topHundreds_) +
               " at the top of the hundreds.";
    else
        text = smaller + ". Click the " + numberText(topHundreds_) +
               " at the top of the hundreds to exchange a hundred.";
    hint.caption = text;
}

void Sub33::onPageClick(const std::string &name, int)
{
    if (name == "Label2")
        exchangeIntoUnits();
    else if (name == "Label1")
        exchangeIntoTens();
}

void Sub33::write(const char *label, int value)
{
    caption(label) = numberText(value);
    setVisible(label, true);
    if (label == std::string_view("Text16"))
        setVisible("strike", true, 0);
    else if (label == std::string_view("Text15"))
        setVisible("strike", true, 1);
}

void Sub33::exchangeIntoUnits()
{
    if (step_ != 1 || exchangedFromTens_ || bottomUnits_ <= topUnits_)
        return;
    if (!exchangedFromHundreds_ && topTens_ > 0) {
        write("Text15", topTens_ - 1);
    } else if (exchangedFromHundreds_) {
        // The tens had been 0 and read 10 after the hundred came in; one of them goes on.
        write("Text15", topTens_ + 10 - 1);
        setVisible("Text14", false);
    } else {
        return; // no tens to give: the hundreds must be exchanged first
    }
    write("text18", 1);
    exchangedFromTens_ = 1;
    showStep();
}

void Sub33::exchangeIntoTens()
{
    if (exchangedFromHundreds_)
        return;
    if (step_ == 1 && topTens_ == 0 && bottomUnits_ > topUnits_) {
        // The units need a ten but there are none: a hundred is changed into ten tens first.
        write("Text16", topHundreds_ - 1);
        write("Text14", 1);
        exchangedFromHundreds_ = 1;
        showStep();
    } else if (step_ == 2 && topTens_ - exchangedFromTens_ < bottomTens_) {
        write("Text16", topHundreds_ - 1);
        exchangedFromHundreds_ = 1;
        write(exchangedFromTens_ ? "text19" : "Text14", 1);
        showStep();
    }
}

void Sub33::submit(const std::string &box, int value)
{
    if (box == "Text11")
        unitsEntered_ = value;
    else if (box == "Text12")
        tensEntered_ = value;
    else if (box == "Text13")
        hundredsEntered_ = value;
    checkStep();
}

void Sub33::checkStep()
{
    bool right = false;
    switch (step_) {
    case 3:
        right = difference_ - 10 * tensEntered_ - unitsEntered_ == 100 * hundredsEntered_ &&
                hundredsEntered_ >= 0;
        break;
    case 2:
        // An entry made before a needed exchange is wrong, even with the right digit.
        right =
            bottomTens_ <= tensNow() && ((difference_ - unitsEntered_) / 10) % 10 == tensEntered_;
        break;
    default:
        right = unitsNow() - bottomUnits_ == unitsEntered_;
        break;
    }
    if (!right) {
        wrongEntry(kBoxes[step_ - 1]);
    } else {
        rightEntry();
        if (step_ == 3) {
            setEnabled("Text13", false);
            return questionDone();
        }
        ++step_;
    }
    showStep();
}

} // namespace nb
