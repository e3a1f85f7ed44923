#include "layouts/grid22.h"

namespace nb {

Grid22::Grid22(App &app)
    : GridFrame(app, &PupilProgress::Mul22Best, {{{2, 9}, {1, 9}}, {{1, 5}, {1, 9}}})
{}

} // namespace nb
