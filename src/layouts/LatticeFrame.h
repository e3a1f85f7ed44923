#pragma once
// Lattice multiplication on the layout frame: A's digits along the top of the lattice, B's down
// its right-hand side, one box in every triangle of every cell, and the sum and carry boxes at
// the ends of the diagonal strips, below and to the left. The lattice is drawn on a canvas under
// the boxes: the triangle waiting for its digit is shaded yellow, answered ones light orange,
// ones still to come pale; while the strips are added, the strip being added is yellow in the
// pink band.
#include "layouts/Lattice.h"
#include "layouts/LayoutFrame.h"

namespace nb {

class LatticeFrame : public LayoutFrame
{
public:
    static constexpr std::uint32_t kLightOrange = rgb(255, 192, 128);
    static constexpr std::uint32_t kLightCyan = rgb(128, 255, 255);
    static constexpr std::uint32_t kPink = rgb(255, 128, 255);

protected:
    // `spareBoxes`: sum-box indices the screen keeps, hidden, beyond those its lattice uses.
    LatticeFrame(App &app, Value PupilProgress::*best, Sizes sizes, std::vector<int> spareBoxes);

    LayoutSteps plan(const std::vector<int> &a, const std::vector<int> &b) const override
    {
        return lattice_.steps(a, b);
    }
    StageColours colours(LayoutStep::Stage stage) const override;
    std::uint32_t completingColour() const override { return kLightCyan; }
    void questionStarted() override;
    void stepOpened(const LayoutStep &step) override;
    void stepAnswered(const LayoutStep &step) override;

private:
    enum class Shade { Pending, Waiting, Done };
    void setShade(const LayoutStep &step, Shade shade);
    void redraw();
    // The centre of a strip's sum box and of the carry box that leads into the strip.
    PointTw sumCentre(int strip) const;
    PointTw carryCentre(int strip) const;

    // Measures drawn for a cell of 1400 twips, in proportion to this lattice's cell.
    int scaled(int twips) const { return twips * cell_ / 1400; }
    double points(double size) const { return size * cell_ / 1400; }

    Lattice lattice_;
    int cell_;
    int band_;
    std::vector<Shade> shades_;
    int activeStrip_ = -1;
    // The lattice's top-left corner and the canvas under it, twips.
    int left_ = 0, top_ = 0;
    Control *canvas_ = nullptr;
};

} // namespace nb
