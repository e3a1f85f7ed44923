#include "drills/makeanysub.h"

namespace nb {

MakeAnySub::MakeAnySub(App &app)
    : MakeDrill(app, "submenu", rgb(220, 255, 215),
                {true,
                 true,
                 &PupilProgress::SubNegatives,
                 &PupilProgress::SubDecimals,
                 {&PupilProgress::MakeAnySubBest, &PupilProgress::MakeAnySubBestNeg,
                  &PupilProgress::MakeAnySubBestDec, &PupilProgress::MakeAnySubBestNegDec}})
{}

} // namespace nb
