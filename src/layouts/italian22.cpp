#include "layouts/italian22.h"

namespace nb {

// A 2-digit by 2-digit product has at most four digits, so answerbox(8), the box of a fifth, is
// never needed and stays hidden.
Italian22::Italian22(App &app)
    : LatticeFrame(app, &PupilProgress::Mul22Best, {{{1, 9}, {1, 9}}, {{1, 9}, {1, 9}}}, {8})
{}

} // namespace nb
