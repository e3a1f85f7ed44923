#pragma once
// Column addition of three three-digit numbers, box by box with carry boxes, five questions
// against the stopwatch.
#include "written/CarryMethod.h"

#include <array>

namespace nb {

class Add333 : public CarryMethod
{
public:
    explicit Add333(App &app);

protected:
    void newQuestion() override;
    double keyReference(const std::string &box) override;
    void finishExercise() override;

private:
    // Hundreds, tens and units of the first, second and third number.
    std::array<int, 9> digits_{};
    int total_ = 0;
};

} // namespace nb
