#include "layouts/grid21.h"

namespace nb {

Grid21::Grid21(App &app)
    : GridFrame(app, &PupilProgress::Mul21Best, {{{3, 9}, {3, 9}}, {{1, 9}}})
{}

} // namespace nb
