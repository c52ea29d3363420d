#include "tools/hatch_drawing.hpp"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <numbers>
#include <string_view>
#include <utility>

namespace korven::tools {

namespace {

constexpr int half = 100;
constexpr int side = 2 * half;
constexpr int candidates = 400;

double radians(double degrees) { return degrees * std::numbers::pi / 180.0; }

/// Turned, scaled, moved: where a block or a figure is placed.
struct Placing {
    HatchPoint origin;
    double turn = 0.0;  // degrees
    double scale = 1.0;

    [[nodiscard]] HatchPoint operator()(double x, double y) const {
        const double c = scale * std::cos(radians(turn));
        const double s = scale * std::sin(radians(turn));
        return {origin.x + c * x - s * y, origin.y + s * x + c * y};
    }
};

/// A generator of our own, so that a pattern never changes with a library.
/// Source: Knuth, The Art of Computer Programming, vol. 2 (1997), 3.3.4, the constants of MMIX (not
/// looked up).
class Chance {
 public:
    explicit Chance(int seed) : state_(static_cast<std::uint64_t>(seed)) { next(1); }

    /// A whole number from 0 to below `n`, n at least 1.
    int next(int n) {
        state_ = state_ * 6364136223846793005ULL + 1442695040888963407ULL;
        return static_cast<int>((state_ >> 33) % static_cast<std::uint64_t>(n));
    }

 private:
    std::uint64_t state_;
};

/// A round place that is taken.
struct Disc {
    HatchPoint centre;
    double radius;
};

/// Distance on the plane of endless tiles.
double distance(HatchPoint p, HatchPoint q) {
    const double dx = std::remainder(p.x - q.x, side);
    const double dy = std::remainder(p.y - q.y, side);
    return std::hypot(dx, dy);
}

class Drawing {
 public:
    explicit Drawing(const HatchSource& source) : source_(source) {}

    void run(const std::vector<HatchCommand>& commands, const Placing& at) {
        for (const auto& command : commands) step(command, at);
    }

    [[nodiscard]] std::vector<HatchStroke> strokes() const { return canvas_.strokes(); }

 private:
    using Action = void (Drawing::*)(const HatchCommand&, const Placing&);

    void step(const HatchCommand& command, const Placing& at) {
        static constexpr std::pair<std::string_view, Action> actions[] = {
            {"linea", &Drawing::points},     {"spezzata", &Drawing::points},
            {"poligono", &Drawing::polygon}, {"cerchio", &Drawing::circle},
            {"ellisse", &Drawing::ellipse},  {"arco", &Drawing::arc},
            {"onda", &Drawing::wave},        {"punto", &Drawing::dot},
            {"mattoni", &Drawing::bricks},   {"occupa", &Drawing::occupy},
            {"metti", &Drawing::place},      {"griglia", &Drawing::grid},
            {"ripeti", &Drawing::repeat},    {"sparsi", &Drawing::scatter},
        };
        for (const auto& [word, action] : actions)
            if (word == command.word) (this->*action)(command, at);
    }

    static std::vector<HatchPoint> placed(const std::vector<int>& values, const Placing& at) {
        std::vector<HatchPoint> all;
        for (std::size_t i = 0; i + 1 < values.size(); i += 2)
            all.push_back(at(values[i], values[i + 1]));
        return all;
    }

    void points(const HatchCommand& command, const Placing& at) {
        canvas_.chain(placed(command.values, at), false);
    }

    void closed(const std::vector<HatchPoint>& corners, bool full) {
        if (full) canvas_.hide(corners);
        canvas_.chain(corners, true);
    }

    void polygon(const HatchCommand& command, const Placing& at) {
        closed(placed(command.values, at), command.full);
    }

    void circle(const HatchCommand& command, const Placing& at) {
        const auto& v = command.values;
        closed(oval(v[0], v[1], v[2], v[2], 0, v[3], at), command.full);
    }

    void ellipse(const HatchCommand& command, const Placing& at) {
        const auto& v = command.values;
        closed(oval(v[0], v[1], v[2], v[3], v[4], v[5], at), command.full);
    }

    // The corners lie half a step beside the axes, so that a circle has flat sides there.
    static std::vector<HatchPoint> oval(double cx, double cy, double rx, double ry, double turn,
                                        int n, const Placing& at) {
        const Placing own{{cx, cy}, turn, 1.0};
        std::vector<HatchPoint> corners;
        for (int i = 0; i < n; ++i) {
            const double t = 2.0 * std::numbers::pi * (i + 0.5) / n;
            const HatchPoint p = own(rx * std::cos(t), ry * std::sin(t));
            corners.push_back(at(p.x, p.y));
        }
        return corners;
    }

    void arc(const HatchCommand& command, const Placing& at) {
        const auto& v = command.values;
        std::vector<HatchPoint> chain;
        for (int i = 0; i <= v[5]; ++i) {
            const double t = radians(v[3] + (v[4] - v[3]) * static_cast<double>(i) / v[5]);
            chain.push_back(at(v[0] + v[2] * std::cos(t), v[1] + v[2] * std::sin(t)));
        }
        canvas_.chain(chain, false);
    }

    // y, height, periods, chords a period, phase: from edge to edge. The chords begin half a step
    // outside the tile, so that one of them crosses the edge.
    void wave(const HatchCommand& command, const Placing& at) {
        const auto& v = command.values;
        const int chords = v[2] * v[3];
        const double phase = v.size() > 4 ? radians(v[4]) : 0.0;
        std::vector<HatchPoint> chain;
        for (int i = 0; i <= chords; ++i) {
            const double t = (i - 0.5) / chords;
            chain.push_back(at(-half + side * t,
                               v[0] + v[1] * std::sin(2.0 * std::numbers::pi * v[2] * t + phase)));
        }
        canvas_.chain(chain, false);
    }

    void dot(const HatchCommand& command, const Placing& at) {
        canvas_.dot(at(command.values[0], command.values[1]));
    }

    // Courses, joints a course, lean of a joint over its course.
    void bricks(const HatchCommand& command, const Placing& at) {
        const auto& v = command.values;
        const double height = static_cast<double>(side) / v[0];
        const double length = static_cast<double>(side) / v[1];
        const double lean = v.size() > 2 ? v[2] : 0.0;
        for (int k = 0; k < v[0]; ++k) {
            const double y = -half + (k + 0.5) * height;
            canvas_.chain({at(-half, y), at(half, y)}, false);
            for (int j = 0; j < v[1]; ++j) {
                const double x = -half + (j + (k % 2 == 0 ? 0.25 : 0.75)) * length;
                canvas_.chain({at(x - lean / 2, y), at(x + lean / 2, y + height)}, false);
            }
        }
    }

    void occupy(const HatchCommand& command, const Placing& at) {
        const auto& v = command.values;
        taken_.push_back({at(v[0], v[1]), at.scale * v[2]});
    }

    void place(const HatchCommand& command, const Placing& at) {
        const auto& v = command.values;
        const double turn = v.size() > 2 ? v[2] : 0.0;
        const double scale = v.size() > 3 ? v[3] / 100.0 : 1.0;
        run(source_.figures.at(command.figure), {at(v[0], v[1]), at.turn + turn, at.scale * scale});
    }

    // Columns, rows, shift of every second row in percent of the column.
    void grid(const HatchCommand& command, const Placing& at) {
        const auto& v = command.values;
        const double shift = v.size() > 2 ? v[2] / 100.0 : 0.0;
        for (int row = 0; row < v[1]; ++row)
            for (int column = 0; column < v[0]; ++column) {
                const double offset = row % 2 == 0 ? 0.0 : shift;
                run(command.body, {at(-half + side * (column + 0.25 + offset) / v[0],
                                      -half + side * (row + 0.5) / v[1]),
                                   at.turn, at.scale});
            }
    }

    void repeat(const HatchCommand& command, const Placing& at) {
        const auto& v = command.values;
        for (int k = 0; k < v[2]; ++k)
            run(command.body, {at(k * v[0], k * v[1]), at.turn, at.scale});
    }

    // Seed, count, radius of a copy, largest turn to either side. Each copy goes to the place that
    // is farthest from all that is there (best of many candidates), so that they spread evenly and
    // yet without rows.
    // Source: Mitchell (1991), Spectrally optimal sampling for distribution ray tracing, Computer
    // Graphics 25(4), 157-164 (not looked up).
    void scatter(const HatchCommand& command, const Placing& at) {
        const auto& v = command.values;
        const int turn = v.size() > 3 ? v[3] : 0;
        Chance chance(v[0]);
        for (int k = 0; k < v[1]; ++k) {
            const HatchPoint best = freest(chance);
            taken_.push_back({best, static_cast<double>(v[2])});
            const double angle = turn > 0 ? chance.next(2 * turn + 1) - turn : 0.0;
            run(command.body, {best, at.turn + angle, at.scale});
        }
    }

    HatchPoint freest(Chance& chance) const {
        HatchPoint best;
        double room = -std::numeric_limits<double>::max();
        for (int i = 0; i < candidates; ++i) {
            HatchPoint p;
            p.x = chance.next(side) - half;
            p.y = chance.next(side) - half;
            double nearest = 2.0 * side;
            for (const auto& disc : taken_)
                nearest = std::min(nearest, distance(p, disc.centre) - disc.radius);
            if (nearest > room) {
                room = nearest;
                best = p;
            }
        }
        return best;
    }

    const HatchSource& source_;
    HatchCanvas canvas_;
    std::vector<Disc> taken_;
};

}  // namespace

std::vector<HatchStroke> drawHatch(const HatchSource& source, const HatchPattern& pattern) {
    Drawing drawing(source);
    drawing.run(pattern.commands, {});
    return drawing.strokes();
}

}  // namespace korven::tools
