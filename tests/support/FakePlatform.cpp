#include "support/FakePlatform.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace nb::test {

FakePlatform::FakePlatform()
{
    documents_ = (std::filesystem::temp_directory_path() / "numbrook-test-documents").string();
    drives_ = {"/"};
}

FakePlatform::~FakePlatform()
{
    if (!lenient_ && !std::uncaught_exceptions()) {
        EXPECT_TRUE(yesNo_.empty())
            << yesNo_.size() << " queued Yes/No replies were never asked for";
        EXPECT_TRUE(inputs_.empty())
            << inputs_.size() << " queued input replies were never asked for";
    }
}

void FakePlatform::setLenient(bool lenient, std::uint64_t seed)
{
    lenient_ = lenient;
    lenientRandom_ = UniformRandom(seed);
}

std::vector<std::string> FakePlatform::messages() const
{
    std::vector<std::string> out;
    for (const Shown &s : shown)
        if (s.kind == Shown::Kind::Message)
            out.push_back(s.text);
    return out;
}

std::string FakePlatform::lastMessage() const
{
    return shown.empty() ? std::string() : shown.back().text;
}

void FakePlatform::message(const std::string &text, const std::string &title, MsgIcon icon,
                           const std::string &details)
{
    shown.push_back({Shown::Kind::Message, text, title, icon, details});
}

int FakePlatform::askYesNo(const std::string &text, const std::string &title)
{
    shown.push_back({Shown::Kind::YesNo, text, title, MsgIcon::None, {}});
    if (yesNo_.empty()) {
        if (lenient_) { // now and then the box is closed without an answer
            const double r = lenientRandom_.next();
            return r < 0.45 ? kYes : r < 0.9 ? kNo : kCancel;
        }
        ADD_FAILURE() << "unexpected Yes/No box: \"" << text << "\"";
        return kNo;
    }
    const int reply = yesNo_.front();
    yesNo_.pop_front();
    return reply;
}

std::string FakePlatform::inputBox(const std::string &prompt, const std::string &title,
                                   const std::string &)
{
    shown.push_back({Shown::Kind::Input, prompt, title, MsgIcon::None, {}});
    if (inputs_.empty()) {
        if (lenient_)
            return lenientRandom_.next() < 0.3 ? std::string() : std::string("Pupil");
        ADD_FAILURE() << "unexpected input box: \"" << prompt << "\"";
        return {};
    }
    std::string reply = inputs_.front();
    inputs_.pop_front();
    return reply;
}

double FakePlatform::random()
{
    if (!draws_.empty()) {
        const double d = draws_.front();
        draws_.pop_front();
        return d;
    }
    if (strictDraws_)
        ADD_FAILURE() << "a random draw was taken with none queued";
    return fallback_.next();
}

PrintOutcome FakePlatform::printScreen(const Screen &, const std::string &pdfPath)
{
    printed.push_back(pdfPath);
    return printOutcome_;
}

} // namespace nb::test
