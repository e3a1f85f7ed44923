#include "drills/maketen.h"

namespace nb {

MakeTen::MakeTen(App &app)
    : MakeDrill(app, "addmenu", rgb(200, 235, 255),
                {false,
                 false,
                 &PupilProgress::AddNegatives,
                 &PupilProgress::AddDecimals,
                 {&PupilProgress::MakeTenBest, &PupilProgress::MakeTenBestNeg,
                  &PupilProgress::MakeTenBestDec, &PupilProgress::MakeTenBestNegDec}})
{}

} // namespace nb
