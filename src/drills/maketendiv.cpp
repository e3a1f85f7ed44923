#include "drills/maketendiv.h"

namespace nb {

MakeTenDiv::MakeTenDiv(App &app)
    : MissingFactorDrill(app, "divmenu", rgb(235, 220, 255),
                         // The facts of Division 1: quotients 1 to 10, divisors 2 to 10.
                         {true,
                          {1, 10},
                          {2, 10},
                          &PupilProgress::DivNegatives,
                          {&PupilProgress::MakeTenDivBest, &PupilProgress::MakeTenDivBest2}})
{}

} // namespace nb
