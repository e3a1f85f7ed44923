#include "layouts/Lattice.h"

namespace nb {

int numberOf(const std::vector<int> &digits)
{
    int n = 0;
    for (int d : digits)
        n = n * 10 + d;
    return n;
}

Lattice::Lattice(int columns, int rows)
    : columns_(columns)
    , rows_(rows)
{
    for (int r = 0; r < rows_; ++r)
        for (int c = 0; c < columns_; ++c)
            for (bool upper : {true, false})
                triangles_.push_back({r, c, upper, triangleBox(r, c, upper), stripOf(r, c, upper)});
}

const Lattice::Triangle *Lattice::triangleAt(int box) const
{
    for (const Triangle &t : triangles_)
        if (t.box == box)
            return &t;
    return nullptr;
}

std::vector<int> Lattice::sumBoxes() const
{
    std::vector<int> out;
    for (int s = 0; s < strips(); ++s) {
        out.push_back(sumBox(s));
        if (canCarry(s))
            out.push_back(carryBox(s));
    }
    return out;
}

LayoutSteps Lattice::steps(const std::vector<int> &a, const std::vector<int> &b) const
{
    using Stage = LayoutStep::Stage;
    LayoutSteps out;
    out.reserve(std::size_t(columns_ + rows_) * 4 + triangles_.size());
    for (int c = 0; c < columns_; ++c)
        out.push_back({"question", aBox(c), a[std::size_t(c)], Stage::SetOut});
    for (int r = 0; r < rows_; ++r)
        out.push_back({"question", bBox(r), b[std::size_t(r)], Stage::SetOut});

    // The strips' totals gather the triangle digits as the triangles are listed.
    int totals[5] = {};
    for (const Triangle &t : triangles_) {
        const int product = a[std::size_t(t.column)] * b[std::size_t(t.row)];
        const int digit = t.upper ? product / 10 : product % 10;
        totals[t.strip] += digit;
        out.push_back({"answers", t.box, digit, Stage::Work});
    }

    int carry = 0;
    for (int s = 0; s < strips(); ++s) {
        const int total = totals[s] + carry;
        if (s == strips() - 1 && total == 0)
            break;
        out.push_back({"answerbox", sumBox(s), total % 10, Stage::Answer});
        carry = total / 10;
        if (carry > 0)
            out.push_back({"answerbox", carryBox(s), carry, Stage::Answer});
    }
    return out;
}

} // namespace nb
