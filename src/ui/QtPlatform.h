#pragma once
// The real platform: Qt message boxes, the right-answer sound, the clock, the user's folders,
// printing. Before a box opens every view is brought up to date and painted, and the screen timers
// stand still until it is answered.
#include "core/Platform.h"
#include "core/Random.h"
#include "ui/ProgramBox.h"
#include "ui/Sound.h"

#include <functional>
#include <string>

namespace nb::ui {

class MainWindow;

class QtPlatform : public Platform
{
public:
    // settingsFile: where the sound choice is kept; empty means the user's usual settings.
    explicit QtPlatform(QString settingsFile = {});

    // The window whose views are synced and whose timers pause around boxes; also the boxes'
    // parent. May be null (boxes then open on their own).
    void setWindow(MainWindow *window) { window_ = window; }

    // When set, boxes are answered by this function instead of being shown (tests, snapshots).
    // It runs at the moment the box would open: views synced, timers paused.
    using Answerer = std::function<BoxAnswer(const BoxRequest &)>;
    void setAnswerer(Answerer answerer) { answerer_ = std::move(answerer); }

    void beep() override { sound_.play(); }
    bool soundOn() override { return sound_.on(); }
    void setSoundOn(bool on) override { sound_.setOn(on); }
    Sound &sound() { return sound_; }
    void message(const std::string &text, const std::string &title, MsgIcon icon,
                 const std::string &details) override;
    int askYesNo(const std::string &text, const std::string &title) override;
    std::string inputBox(const std::string &prompt, const std::string &title,
                         const std::string &defaultText) override;
    double random() override { return random_.next(); }
    std::chrono::system_clock::time_point now() override;
    std::string documentsFolder() override;
    std::vector<std::string> drives() override;
    PrintOutcome printScreen(const Screen &screen, const std::string &pdfPath) override;

private:
    BoxAnswer openBox(const BoxRequest &request);
    BoxAnswer showDialog(const BoxRequest &request);

    MainWindow *window_ = nullptr;
    Answerer answerer_;
    UniformRandom random_;
    Sound sound_;
};

} // namespace nb::ui
