#include "written/t32.h"

namespace nb {

T32::T32(App &app)
    : LongMultiplication(app, &PupilProgress::Mul32Best, 3)
{}

} // namespace nb
