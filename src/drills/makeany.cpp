#include "drills/makeany.h"

namespace nb {

MakeAny::MakeAny(App &app)
    : MakeDrill(app, "addmenu", rgb(200, 235, 255),
                {true,
                 false,
                 &PupilProgress::AddNegatives,
                 &PupilProgress::AddDecimals,
                 {&PupilProgress::MakeAnyBest, &PupilProgress::MakeAnyBestNeg,
                  &PupilProgress::MakeAnyBestDec, &PupilProgress::MakeAnyBestNegDec}})
{}

} // namespace nb
