#pragma once
// The frame every darts screen shares: the board drawn on a canvas with its numbers round the
// rim, three dart marks, the bed and number of the last dart, the wobble scroll bar, and one turn
// of three darts by a thrower who clicks to throw and types the score left after each dart. The
// screens add who throws against whom and what winning means.
#include "core/Screen.h"
#include "games/DartBoard.h"

#include <array>
#include <string>

namespace nb {

class DartsFrame : public Screen
{
public:
    void onClick(const std::string &name, int index) override;
    void onMouseDown(const MousePress &press) override;
    void onKeyPress(const std::string &name, int index, int &key) override;
    void onScreenKey(int key) override;
    void onChange(const std::string &name, int index) override;
    void onTimer(const std::string &name) override;

    // Layout shared with tests and benchmarks: the board canvas and the screen. The canvas is
    // the whole wall between the two panels, so a dart thrown off the board's face misses
    // rather than going nowhere; its edges lie on whole pixels of the unscaled window.
    static constexpr int kBoardLeft = 2775, kBoardTop = 0, kBoardWidth = 6360, kBoardHeight = 6870;
    static constexpr int kWidth = 12600, kHeight = 8400;
    static constexpr int kDartsPerTurn = 3;
    static constexpr int kStartScore = 301;

    // Board colours: the sectors alternate dark and cream; a scoring ring is red on a dark
    // sector and green on a cream one. The bull is red, the outer bull green.
    static constexpr std::uint32_t kDarkSector = rgb(36, 32, 33);
    static constexpr std::uint32_t kCreamSector = rgb(240, 224, 178);
    static constexpr std::uint32_t kRedRing = rgb(214, 40, 46);
    static constexpr std::uint32_t kGreenRing = rgb(22, 138, 70);
    // The 20 is dark, and every other number clockwise from it.
    static bool darkSector(int number);

    // Texts of the rules.
    static constexpr const char *kBust = "You've bust !!. Your darts will not count.";
    static constexpr const char *kNeedsDouble =
        "You've bust !!. You must finish on a double. The darts will not count.";
    static constexpr const char *kWrongSum =
        "You worked your score out wrong. That dart doesn't count!";

protected:
    DartsFrame(App &app, darts::BoardKind kind, std::string exitTo);

    enum class Phase {
        Waiting,  // before START
        Throwing, // the thrower clicks on the board
        Typing,   // the thrower types the score left
        Pausing,  // between turns, or the computer throwing: the board takes no darts
    };

    // One side of the game: the label with its name (lit while it throws), the one showing its
    // score left, the box it types in (empty for the computer) and the colour of its darts.
    struct Side
    {
        std::string nameLabel;
        std::string scoreLabel;
        std::string answerBox;
        std::uint32_t markColor;
        int remaining = kStartScore;
    };

    // What the screen does when the thrower's turn is over (after the last dart or a bust),
    // when the thrower has typed 0 after a legal finish, when Timer1 ticks, and what to say to
    // a dart thrown while the board is pausing.
    virtual void turnOver() = 0;
    virtual void finished() = 0;
    virtual void tick() = 0;
    virtual std::string pauseHint() const = 0;
    // START: a new game.
    virtual void start() = 0;
    // "click on the board" is put after this, for the one whose turn it is.
    virtual std::string throwerCall() const = 0;

    // The darts screens' own look: white chalk and yellow on a green wall.
    static constexpr std::uint32_t kChalk = rgb(255, 250, 235);
    static constexpr std::uint32_t kYellowText = rgb(255, 222, 89);
    static Control &styled(Control &c, double points, bool bold, Align align, std::uint32_t ink);

    // Building: the left-hand panel block of one side.
    Control &panelLabel(std::string name, std::string caption, int top, int height, double points);
    Control &scoreBoard(std::string name, int top);
    Control &answerBox(std::string name, std::string spoken, int top);

    void setRemaining(int side, int value);
    void beginTurn(int side);  // the side throws its three darts from now
    void setThrower(int side); // whose marks and name light up
    // A dart lands: its mark moves there and the board names its bed. Returns the hit.
    darts::Hit landDart(double x, double y);
    void hideMarks();
    void clearBed();
    void setStatus(const std::string &text);
    void leave();
    void resetBoard(); // no marks, no bed, nobody throwing, the timer off
    void tell(const std::string &text);

    darts::BoardKind kind_;
    std::array<Side, 2> sides_;
    Phase phase_ = Phase::Waiting;
    int thrower_ = 0;
    int dart_ = 0; // darts thrown in this turn
    int turnStart_ = kStartScore;

private:
    void buildBoard();
    static void drawDart(Drawing &d, std::uint32_t flights);
    static constexpr int kDartPicture = 920; // twips square
    static constexpr int kDartPoint = 60;    // the point, in from the bottom-left corner
    void drawBoard();
    void throwAt(double x, double y);
    void submit(std::string &text);
    void afterDart();
    void showWobble();
    std::string exitTo_;
    int number_ = 0; // the last number named: a dart on a sector line keeps it
    int expected_ = 0;
};

} // namespace nb
