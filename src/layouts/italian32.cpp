#include "layouts/italian32.h"

namespace nb {

// The leftmost strip never carries, so answerbox(9), its carry box, is never needed and stays
// hidden.
Italian32::Italian32(App &app)
    : LatticeFrame(app, &PupilProgress::Mul32Best, {{{1, 9}, {1, 9}, {1, 9}}, {{1, 9}, {1, 9}}},
                   {9})
{}

} // namespace nb
