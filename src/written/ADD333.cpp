#include "written/ADD333.h"

#include "core/NumberText.h"

namespace nb {

namespace {
// The digit labels in drawing order: each number's hundreds, tens and units.
constexpr const char *kDigitLabels[9] = {"text1", "text3",  "Text5",  "text10", "text4",
                                         "text2", "text20", "text19", "text18"};
} // namespace

Add333::Add333(App &app)
    : CarryMethod(app, &PupilProgress::ColumnAddBest, "addmenu")
{
    headings(kThousandsColumn, 0, {"Th", "H", "T", "U"});
    for (int i = 0; i < 9; ++i)
        digitLabel(kDigitLabels[i], kHundredsColumn + i % 3, 1 + i / 3);
    signLabel("+", kSignColumn, 3);
    buildAnswerRows(4, true);
}

void Add333::newQuestion()
{
    // A number's hundreds digit is 1 to 9, its tens and units 0 to 9.
    for (int i = 0; i < 9; ++i)
        digits_[i] = i % 3 == 0 ? drawDigit(kDigitLabels[i], 9, 1) : drawDigit(kDigitLabels[i], 10);
    const auto column = [this](int place) {
        return digits_[place] + digits_[3 + place] + digits_[6 + place];
    };
    total_ = column(0) * 100 + column(1) * 10 + column(2);
    answerWidth_ = total_ <= 999 ? 3 : 4;
    beginQuestion(column(2), column(1), column(0));
}

double Add333::keyReference(const std::string &box)
{
    // The units box takes its reference from the first number's units digit, not from its own
    // text: where that digit is 0 the units box accepts untidy text such as "07" as 7.
    if (box == "Text11")
        return readNumber(caption("Text5"));
    return CarryMethod::keyReference(box);
}

void Add333::finishExercise()
{
    stopExercise();
    const std::string time = numberText(run().seconds());
    std::string message = "You completed 5 questions in " + time + " seconds.";
    // On this screen, once a best time exists every run counts as beating it, and the best is
    // always replaced by this run's time, faster or not.
    Value &best = bestTime();
    if (best.number() >= 0) {
        if (best.number() != 0)
            message += " You have beaten your best time!!! ";
        best = Value::real(run().seconds());
    }
    askAnotherGo(std::move(message));
}

} // namespace nb
