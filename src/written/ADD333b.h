#pragma once
// Column addition of three three-digit numbers in answer boxes: the pupil fills in the answer and
// any carries alone and has the whole answer marked. Five questions against the stopwatch.
#include "written/AnswerBoxMethod.h"

namespace nb {

class Add333b : public AnswerBoxMethod
{
public:
    explicit Add333b(App &app);

protected:
    void newQuestion() override;
};

} // namespace nb
