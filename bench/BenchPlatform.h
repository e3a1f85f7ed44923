#pragma once
// A quiet platform for benchmarks: boxes answer at once, draws come from a fixed-seed generator.
#include "core/Platform.h"
#include "core/Random.h"

namespace nb::bench {

class BenchPlatform : public Platform
{
public:
    int yesNoReply = kNo;
    std::string inputReply = "Pupil";

    void beep() override {}
    bool soundOn() override { return soundOn_; }
    void setSoundOn(bool on) override { soundOn_ = on; }
    void message(const std::string &, const std::string &, MsgIcon, const std::string &) override {}
    int askYesNo(const std::string &, const std::string &) override { return yesNoReply; }
    std::string inputBox(const std::string &, const std::string &, const std::string &) override
    {
        return inputReply;
    }
    double random() override { return random_.next(); }
    std::chrono::system_clock::time_point now() override { return {}; }
    std::string documentsFolder() override { return "/tmp"; }
    std::vector<std::string> drives() override { return {"/"}; }
    PrintOutcome printScreen(const Screen &, const std::string &) override { return {}; }

private:
    bool soundOn_ = true;
    UniformRandom random_{42};
};

} // namespace nb::bench
