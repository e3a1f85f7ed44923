#include "drills/maketensub.h"

namespace nb {

MakeTenSub::MakeTenSub(App &app)
    : MakeDrill(app, "submenu", rgb(220, 255, 215),
                {false,
                 true,
                 &PupilProgress::SubNegatives,
                 &PupilProgress::SubDecimals,
                 {&PupilProgress::MakeTenSubBest, &PupilProgress::MakeTenSubBestNeg,
                  &PupilProgress::MakeTenSubBestDec, &PupilProgress::MakeTenSubBestNegDec}})
{}

} // namespace nb
