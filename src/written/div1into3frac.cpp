#include "written/div1into3frac.h"

namespace nb {

Div1Into3Frac::Div1Into3Frac(App &app)
    : ShortDivision(app, &PupilProgress::DivFracBest, DivisionEnding::Fraction)
{}

} // namespace nb
