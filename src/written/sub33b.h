#pragma once
// Column subtraction of a three-digit number from a larger one in answer boxes: the pupil makes
// any exchanges in small boxes of their own, fills in the answer and has the whole answer marked.
// Five questions against the stopwatch.
#include "written/AnswerBoxMethod.h"

namespace nb {

class Sub33b : public AnswerBoxMethod
{
public:
    explicit Sub33b(App &app);

protected:
    void newQuestion() override;
};

} // namespace nb
