#include "layouts/italian21.h"

namespace nb {

Italian21::Italian21(App &app)
    : LatticeFrame(app, &PupilProgress::Mul21Best, {{{3, 9}, {1, 9}}, {{3, 9}}}, {})
{}

} // namespace nb
