#pragma once
// The screen frame both four-in-a-row games share: the six left numbers (`xvalue`) and six right
// numbers (`expression`) as big buttons, the 6 x 6 board of sums (`Label1`, indexed 100 x row +
// column), the hidden status labels the board model writes its codes into, the message line and
// the frames that mark a winning four. A player chooses a number on each side (in either order; a
// second click on a side changes the choice), then clicks a cell holding their sum.
#include "core/Screen.h"
#include "games/FourRowBoard.h"

#include <string>

namespace nb {

class FourRowFrame : public Screen
{
public:
    void onClick(const std::string &name, int index) override;

    // Layout in twips, shared by both games.
    static constexpr int kWidth = 12000, kHeight = 9000;
    static constexpr int kCellSize = 1000, kCellStep = 1060;
    static constexpr int kBoardLeft = (kWidth - (6 * kCellStep - (kCellStep - kCellSize))) / 2;
    static constexpr int kBoardTop = 1250;
    static constexpr int kNumberWidth = 1800, kNumberMargin = 675;
    static constexpr int kStripTop = 7900, kStripHeight = 850;

    static constexpr std::uint32_t kFreeCell = rgb(255, 251, 238);
    static constexpr std::uint32_t kRedCell = colors::red;     // 255
    static constexpr std::uint32_t kGreenCell = colors::green; // 65280

    const fourrow::FourRowBoard &board() const { return board_; }

protected:
    explicit FourRowFrame(App &app);

    // A new game: the numbers shown, the board filled and scrambled, every claim gone.
    void newBoard(const std::array<fourrow::Numbers, 2> &numbers);
    // Claims a cell and shows it; true when it made four in a row (the four are then marked).
    bool claimCell(fourrow::Cell cell, fourrow::Owner who);
    // Writes the model's status codes and tie-break scores into the status labels.
    void showStatus();
    void clearPicks();
    // Puts the keyboard focus on a number button, where Enter does no harm.
    void parkFocus();
    void say(const std::string &text) { caption("text1") = text; }
    int askYesNo(const std::string &text);
    void tellOk(const std::string &text);
    Control &strip(Control &c, double points);

    // Whether a player may choose numbers and cells now.
    virtual bool picking() const = 0;
    // The prompt shown when a cell is clicked before both numbers are chosen.
    virtual std::string choosePrompt() const = 0;
    // A click on a free cell holding the chosen sum, and on a free cell that does not.
    virtual void rightCell(fourrow::Cell cell) = 0;
    virtual void wrongCell() = 0;
    // A click on any control that is not a number or a cell.
    virtual void onCommand(const std::string &name) = 0;

    fourrow::FourRowBoard board_;

private:
    void buildBoard();
    void pickNumber(const std::string &side, int index);
    void clickCell(int row, int col);
    void showPicks();
    void markLine(fourrow::Cell from, fourrow::Cell to);

    int leftPick_ = 0, rightPick_ = 0; // chosen row and column number (4..9), 0 when none
    bool focusOnLeft_ = false;
};

} // namespace nb
