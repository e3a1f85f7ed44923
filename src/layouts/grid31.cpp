#include "layouts/grid31.h"

namespace nb {

Grid31::Grid31(App &app)
    : GridFrame(app, &PupilProgress::Mul31Best, {{{1, 5}, {1, 9}, {1, 9}}, {{3, 9}}})
{}

} // namespace nb
