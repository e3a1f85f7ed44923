#include "written/div1into3dec.h"

namespace nb {

Div1Into3Dec::Div1Into3Dec(App &app)
    : ShortDivision(app, &PupilProgress::DivDecBest, DivisionEnding::Decimals)
{}

} // namespace nb
