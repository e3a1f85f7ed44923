#include "written/div1into3withremsum.h"

namespace nb {

Div1Into3WithRemSum::Div1Into3WithRemSum(App &app)
    : ShortDivision(app, &PupilProgress::DivRemBest, DivisionEnding::Remainder)
{}

} // namespace nb
