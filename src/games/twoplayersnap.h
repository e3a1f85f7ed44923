#pragma once
// Snap for two pupils at one keyboard. Each pupil types a name; then cards showing calculations
// are dealt one at a time on a clock, and a pupil who sees two cards of the same value on show
// calls SNAP with their key (A for player 1, L for player 2). A right call scores for the caller,
// a wrong one for the other pupil; five points win the game.
#include "core/Screen.h"
#include "games/SnapDeck.h"

#include <array>
#include <chrono>
#include <optional>
#include <string>

namespace nb {

class TwoPlayerSnap : public Screen
{
public:
    explicit TwoPlayerSnap(App &app);

    void onOpened() override;
    void onClick(const std::string &name, int index) override;
    void onKeyPress(const std::string &name, int index, int &key) override;
    void onScreenKey(int key) override;
    void onTimer(const std::string &name) override;

    static constexpr int kWinningPoints = 5;
    static constexpr int kLongestName = 14; // letters
    // A key held down repeats at about 25 presses a second, and some windowing systems pass the
    // repeats on as fresh presses. A press of a key within this time of that key's previous press
    // is such a repeat and does not call: no finger, and no pupil reading two cards, is that quick.
    static constexpr std::chrono::milliseconds kRepeat{80};

    // Milliseconds between cards at a level.
    static int dealInterval(int level);

    // The game as it stands, for tests and the look.
    const snap::Deck &deck() const { return deck_; }
    // The card on show beneath (0) and the one just dealt (1), or -1 for none.
    int cardOnShow(int slot) const { return shown_[std::size_t(slot)]; }
    int points(int player) const { return points_[std::size_t(player)]; }
    int cardsDealt() const { return dealt_; }

private:
    enum class Stage { Waiting, Naming1, Naming2, Dealing, Boxed };

    void buildControls();
    void buildPlayerPanel(int player, int left);
    void askName(int player);
    void acceptName(int player);
    void newGame();
    void dealNext();
    void reshuffle();
    void call(int player);
    void won(int player);
    void leave();
    void showCards();
    void showScores();
    // Marks what a call earned in the players' panels (caller -1 clears them).
    void showCallResult(int caller, bool right);
    void restartDealing();

    Stage stage_ = Stage::Waiting;
    int level_ = 1;
    snap::Deck deck_;
    int dealt_ = 0;                    // cards dealt from the current order
    std::array<int, 2> shown_{-1, -1}; // card beneath, card just dealt
    std::array<int, 2> points_{};
    std::array<std::string, 2> names_;
    std::array<std::optional<std::chrono::system_clock::time_point>, 2> lastPress_;
};

} // namespace nb
