#include "written/t22.h"

namespace nb {

T22::T22(App &app)
    : LongMultiplication(app, &PupilProgress::Mul22Best, 2)
{}

} // namespace nb
