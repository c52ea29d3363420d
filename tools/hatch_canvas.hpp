#pragma once

#include <compare>
#include <vector>

namespace korven::tools {

/// A place on the plane of the patterns, in stroke units: 100 are half the side of a tile.
struct HatchPoint {
    double x = 0.0;
    double y = 0.0;
};

/// A stroke of a finished pattern: whole units inside the tile, -100 to 100. A stroke whose ends
/// are equal is a dot.
struct HatchStroke {
    int x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    auto operator<=>(const HatchStroke&) const = default;
    [[nodiscard]] bool dot() const { return x1 == x2 && y1 == y2; }
};

/// Where a pattern is drawn. The tile has no border here: what runs out of it on one side comes in
/// again on the other, so that a shape may lie anywhere and the finished tiles join without a seam.
class HatchCanvas {
 public:
    void dot(HatchPoint at);

    /// Draws the chain of lines through the points, rounded to whole units.
    /// @param closed  with a line from the last point to the first
    void chain(const std::vector<HatchPoint>& points, bool closed);

    /// Takes away what lies inside the polygon, as a stone hides the ground behind it. A line cut
    /// by it keeps its outer parts, but for crumbs shorter than 3 units.
    /// @param convex  its corners, in order, either way round
    void hide(const std::vector<HatchPoint>& convex);

    /// The strokes of the tile, in the order of drawing, cut at its edges. Where a line crosses an
    /// edge, both parts end at the same place of the two opposite edges.
    [[nodiscard]] std::vector<HatchStroke> strokes() const;

 private:
    struct Line {
        int x1, y1, x2, y2;
        [[nodiscard]] bool dot() const { return x1 == x2 && y1 == y2; }
    };

    void hideFrom(const Line& line, const std::vector<HatchPoint>& convex,
                  std::vector<Line>& left) const;

    std::vector<Line> lines_;
};

}  // namespace korven::tools
