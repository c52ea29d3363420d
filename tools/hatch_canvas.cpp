#include "tools/hatch_canvas.hpp"

#include <algorithm>
#include <cmath>
#include <utility>

namespace korven::tools {

namespace {

constexpr int half = 100;
constexpr int side = 2 * half;
constexpr int crumb = 3;

int rounded(double value) { return static_cast<int>(std::lround(value)); }

/// Number of the tile that a coordinate lies in; a tile has its lower edge, not its upper one.
int tileOf(double value) { return static_cast<int>(std::floor((value + half) / side)); }

bool onEdge(int value) { return (value + half) % side == 0; }

/// A corner of a chain that falls on an edge of the tile goes one unit further: a line shall cross
/// the edge with a straight part, so that both sides of the seam run in one direction.
int offEdge(int value) { return onEdge(value) ? value + 1 : value; }

struct Interval {
    double from = 0.0;
    double to = 1.0;
};

double cross(HatchPoint a, HatchPoint b) { return a.x * b.y - a.y * b.x; }

double area(const std::vector<HatchPoint>& polygon) {
    double twice = 0.0;
    for (std::size_t i = 0; i < polygon.size(); ++i)
        twice += cross(polygon[i], polygon[(i + 1) % polygon.size()]);
    return twice / 2.0;
}

/// The part of the line from `a` to `b` inside a convex polygon, by its parameter; empty (`from`
/// not below `to`) when it passes by.
/// Source: Cyrus, Beck (1978), Generalized two- and three-dimensional clipping (not looked up).
Interval inside(HatchPoint a, HatchPoint b, const std::vector<HatchPoint>& polygon) {
    const double turn = area(polygon) < 0.0 ? -1.0 : 1.0;
    const HatchPoint d{b.x - a.x, b.y - a.y};
    Interval part;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const HatchPoint p = polygon[i];
        const HatchPoint q = polygon[(i + 1) % polygon.size()];
        const HatchPoint edge{turn * (q.x - p.x), turn * (q.y - p.y)};
        const double distance = cross(edge, {a.x - p.x, a.y - p.y});
        const double growth = cross(edge, d);
        if (growth == 0.0) {
            if (distance <= 0.0) return {1.0, 0.0};
        } else if (growth > 0.0) {
            part.from = std::max(part.from, -distance / growth);
        } else {
            part.to = std::min(part.to, -distance / growth);
        }
    }
    return part;
}

struct Range {
    double low, high;
};

Range rangeOf(const std::vector<HatchPoint>& points, double HatchPoint::*axis) {
    const auto [low, high] = std::minmax_element(
        points.begin(), points.end(),
        [axis](const HatchPoint& p, const HatchPoint& q) { return p.*axis < q.*axis; });
    return {(*low).*axis, (*high).*axis};
}

/// The shifts by whole tiles that bring a polygon over the range of a line.
std::pair<int, int> shifts(int a, int b, Range polygon) {
    return {static_cast<int>(std::ceil((std::min(a, b) - polygon.high) / side)),
            static_cast<int>(std::floor((std::max(a, b) - polygon.low) / side))};
}

void addCuts(int a, int b, std::vector<double>& cuts) {
    if (a == b) return;
    for (int k = tileOf(std::min(a, b)); k <= tileOf(std::max(a, b)) + 1; ++k) {
        const double t = static_cast<double>(k * side - half - a) / (b - a);
        if (t > 0.0 && t < 1.0) cuts.push_back(t);
    }
}

}  // namespace

void HatchCanvas::dot(HatchPoint at) {
    const int x = offEdge(rounded(at.x));
    const int y = offEdge(rounded(at.y));
    lines_.push_back({x, y, x, y});
}

void HatchCanvas::chain(const std::vector<HatchPoint>& points, bool closed) {
    std::vector<std::pair<int, int>> corners;
    for (const auto& p : points) corners.emplace_back(rounded(p.x), rounded(p.y));
    if (closed) corners.push_back(corners.front());
    const auto whole = corners;
    for (std::size_t i = 0; i < whole.size(); ++i) {
        // An open end may lie on an edge if it was put there, since a line from edge to edge has
        // its ends there, but no line may run along one.
        const bool end = !closed && (i == 0 || i + 1 == whole.size());
        const auto& next = whole[i == 0 ? 1 : i - 1];
        auto& [x, y] = corners[i];
        if (!end || next.first == x || points[i].x != x) x = offEdge(x);
        if (!end || next.second == y || points[i].y != y) y = offEdge(y);
    }
    for (std::size_t i = 1; i < corners.size(); ++i)
        if (corners[i] != corners[i - 1])
            lines_.push_back(
                {corners[i - 1].first, corners[i - 1].second, corners[i].first, corners[i].second});
}

void HatchCanvas::hide(const std::vector<HatchPoint>& convex) {
    std::vector<Line> left;
    for (const auto& line : lines_) hideFrom(line, convex, left);
    lines_ = std::move(left);
}

void HatchCanvas::hideFrom(const Line& line, const std::vector<HatchPoint>& convex,
                           std::vector<Line>& left) const {
    const HatchPoint a{static_cast<double>(line.x1), static_cast<double>(line.y1)};
    const HatchPoint b{static_cast<double>(line.x2), static_cast<double>(line.y2)};
    std::vector<Interval> hidden;
    const auto [i1, i2] = shifts(line.x1, line.x2, rangeOf(convex, &HatchPoint::x));
    const auto [j1, j2] = shifts(line.y1, line.y2, rangeOf(convex, &HatchPoint::y));
    for (int i = i1; i <= i2; ++i)
        for (int j = j1; j <= j2; ++j) {
            auto shifted = convex;
            for (auto& p : shifted) p = {p.x + side * i, p.y + side * j};
            if (const Interval part = inside(a, b, shifted); part.from < part.to)
                hidden.push_back(part);
        }
    if (hidden.empty()) return left.push_back(line);
    if (line.dot()) return;
    std::sort(hidden.begin(), hidden.end(),
              [](const Interval& p, const Interval& q) { return p.from < q.from; });

    const auto at = [&](double t) {
        if (t == 0.0) return std::pair(line.x1, line.y1);
        if (t == 1.0) return std::pair(line.x2, line.y2);
        return std::pair(offEdge(rounded(a.x + t * (b.x - a.x))),
                         offEdge(rounded(a.y + t * (b.y - a.y))));
    };
    const auto keep = [&](double from, double to) {
        if ((to - from) * std::hypot(b.x - a.x, b.y - a.y) < crumb) return;
        const auto [x1, y1] = at(from);
        const auto [x2, y2] = at(to);
        left.push_back({x1, y1, x2, y2});
    };
    double done = 0.0;
    for (const auto& part : hidden) {
        keep(done, part.from);
        done = std::max(done, part.to);
    }
    keep(done, 1.0);
}

std::vector<HatchStroke> HatchCanvas::strokes() const {
    std::vector<HatchStroke> found;
    for (const auto& line : lines_) {
        std::vector<double> cuts = {0.0, 1.0};
        addCuts(line.x1, line.x2, cuts);
        addCuts(line.y1, line.y2, cuts);
        std::sort(cuts.begin(), cuts.end());
        const auto x = [&](double t) { return line.x1 + t * (line.x2 - line.x1); };
        const auto y = [&](double t) { return line.y1 + t * (line.y2 - line.y1); };
        for (std::size_t i = 1; i < cuts.size(); ++i) {
            const double middle = (cuts[i - 1] + cuts[i]) / 2.0;
            const int left = side * tileOf(x(middle));
            const int low = side * tileOf(y(middle));
            const HatchStroke part = {rounded(x(cuts[i - 1])) - left, rounded(y(cuts[i - 1])) - low,
                                      rounded(x(cuts[i])) - left, rounded(y(cuts[i])) - low};
            if (!part.dot() || line.dot()) found.push_back(part);
        }
    }
    return found;
}

}  // namespace korven::tools
