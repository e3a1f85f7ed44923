#include "layouts/italian31.h"

namespace nb {

Italian31::Italian31(App &app)
    : LatticeFrame(app, &PupilProgress::Mul31Best, {{{1, 9}, {1, 9}, {1, 9}}, {{1, 9}}}, {})
{}

} // namespace nb
