#pragma once

#include <array>
#include <optional>
#include <vector>

#include "canvas/handles/ElementFrame.h"

namespace tamber {

/// Lines on the stage that what is dragged keeps to: the grid, and edges and middles of neighbours.
class Snapping {
public:
    /// How near a line draws, pixels of the stage.
    double Reach = 5;
    /// Distance of the grid's lines, pixels of the stage; 0 for no grid.
    double GridWidth = 0;

    void AddBox(const StageBox& box);
    void AddLineX(double x) { Add(linesX_, x); }
    void AddLineY(double y) { Add(linesY_, y); }

    /// How far to move, and the lines that are met then.
    struct Pull {
        double Way = 0;
        std::optional<double> Line{};
    };
    Pull PullX(double x) const { return PullTo(linesX_, {x, x, x}); }
    Pull PullY(double y) const { return PullTo(linesY_, {y, y, y}); }
    /// For the edges or the middle of a box, whatever lies nearest to a line.
    Pull PullX(const StageBox& box) const {
        return PullTo(linesX_, {box.Left, (box.Left + box.Right) / 2, box.Right});
    }
    Pull PullY(const StageBox& box) const {
        return PullTo(linesY_, {box.Top, (box.Top + box.Bottom) / 2, box.Bottom});
    }

private:
    using Lines = std::vector<double>;

    static void Add(Lines& lines, double at);
    Pull PullTo(const Lines& lines, const std::array<double, 3>& places) const;
    std::optional<double> Nearest(const Lines& lines, double place) const;

    /// In order.
    Lines linesX_;
    Lines linesY_;
};

}  // namespace tamber
