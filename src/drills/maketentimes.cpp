#include "drills/maketentimes.h"

namespace nb {

MakeTenTimes::MakeTenTimes(App &app)
    : MissingFactorDrill(app, "mulmenu", rgb(255, 230, 200),
                         // The tables up to 10 × 10 of the times tables drill, the other way round.
                         {false,
                          {1, 10},
                          {1, 10},
                          &PupilProgress::MulNegatives,
                          {&PupilProgress::MakeTenTimesBestA, &PupilProgress::MakeTenTimesBestB}})
{}

} // namespace nb
