#include "layouts/grid32.h"

namespace nb {

Grid32::Grid32(App &app)
    : GridFrame(app, &PupilProgress::Mul32Best, {{{1, 5}, {1, 9}, {1, 9}}, {{1, 5}, {1, 9}}})
{}

} // namespace nb
