#pragma once
// A scripted platform for model tests: queued Yes/No and input replies (an unexpected box fails
// the test), scripted random draws, and a record of beeps and messages.
#include "core/Platform.h"
#include "core/Random.h"

#include <deque>
#include <string>
#include <vector>

namespace nb::test {

struct Shown
{
    enum class Kind { Message, YesNo, Input };
    Kind kind;
    std::string text;
    std::string title;
    MsgIcon icon = MsgIcon::None;
    std::string details;
};

class FakePlatform : public Platform
{
public:
    FakePlatform();
    ~FakePlatform() override;

    // Scripting.
    void queueYesNo(int reply) { yesNo_.push_back(reply); }
    void queueYes() { queueYesNo(kYes); }
    void queueNo() { queueYesNo(kNo); }
    void queueCancel() { queueYesNo(kCancel); } // the box closed or escaped unanswered
    void queueInput(std::string reply) { inputs_.push_back(std::move(reply)); }
    // Draws returned in order by random(); once they run out, a fixed-seed generator answers
    // (or, with strictDraws, the test fails).
    void queueDraws(std::initializer_list<double> draws) { draws_.insert(draws_.end(), draws); }
    void queueDraw(double d) { draws_.push_back(d); }
    void setStrictDraws(bool strict) { strictDraws_ = strict; }
    // When set, any box without a queued reply answers at random instead of failing the test (a
    // Yes/No box is sometimes closed without an answer: kCancel).
    void setLenient(bool lenient, std::uint64_t seed = 1);
    void setDocuments(std::string folder) { documents_ = std::move(folder); }
    void setDrives(std::vector<std::string> drives) { drives_ = std::move(drives); }
    void setPrintOutcome(PrintOutcome o) { printOutcome_ = std::move(o); }

    // What happened.
    int beeps = 0;
    std::vector<Shown> shown;
    std::vector<std::string> printed;          // pdf paths asked for
    std::vector<std::string> messages() const; // texts of OK boxes, in order
    std::string lastMessage() const;           // text of the last box of any kind
    void clearShown() { shown.clear(); }

    // Platform
    void beep() override { ++beeps; }
    bool soundOn() override { return soundOn_; }
    void setSoundOn(bool on) override { soundOn_ = on; }
    void message(const std::string &text, const std::string &title, MsgIcon icon,
                 const std::string &details) override;
    int askYesNo(const std::string &text, const std::string &title) override;
    std::string inputBox(const std::string &prompt, const std::string &title,
                         const std::string &defaultText) override;
    double random() override;
    std::chrono::system_clock::time_point now() override { return clock_; }
    std::string documentsFolder() override { return documents_; }
    std::vector<std::string> drives() override { return drives_; }
    PrintOutcome printScreen(const Screen &screen, const std::string &pdfPath) override;

    std::chrono::system_clock::time_point clock_{std::chrono::seconds(1'800'000'000)};

private:
    bool soundOn_ = true;
    std::deque<int> yesNo_;
    std::deque<std::string> inputs_;
    std::deque<double> draws_;
    bool strictDraws_ = false;
    bool lenient_ = false;
    UniformRandom fallback_{12345};
    UniformRandom lenientRandom_{1};
    std::string documents_;
    std::vector<std::string> drives_;
    PrintOutcome printOutcome_{PrintOutcome::Kind::Printed, {}};
};

} // namespace nb::test
