#include "drills/mentmul.h"

namespace nb {

MentMul::MentMul(App &app)
    : Mul11(app, kFirst, kSecond, &PupilProgress::MentMulBest)
{}

} // namespace nb
