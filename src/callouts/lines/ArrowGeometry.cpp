#include "callouts/lines/ArrowGeometry.h"

#include <vantrel/values/Matrix3x3.h>

namespace Vantrel {

Polygon buildArrowPolygon(ArrowSpec const &spec) {
    if (isPointLine(spec.start, spec.end))
        return Polygon();
    double const L = (spec.end - spec.start).Length();
    int const heads = (spec.headAtStart ? 1 : 0) + (spec.headAtEnd ? 1 : 0);
    double s = spec.shaftHalfWidth, w = spec.headHalfWidth, h = spec.headLength, radius = spec.cornerRadius;
    if (heads * h * 1.5 > L) {
        double k = L / (heads * h * 1.5);
        s *= k;
        w *= k;
        h *= k;
        radius *= k;
    }
    // In the frame of the line from (0, 0) to (L, 0): one end's vertices.
    auto end = [&](bool head) {
        return head ? Polygon{Point(h, -s), Point(h, -w), Point(0, 0), Point(h, w), Point(h, s)}
                    : Polygon{Point(0, -s), Point(0, s)};
    };
    Polygon outline = end(spec.headAtStart);
    Polygon second = Matrix3x3::Translation(Point(L, 0)) * Matrix3x3::Scale(-1, 1) * end(spec.headAtEnd).Reversed();
    outline.Append(second);
    if (radius > 0)
        outline = outline.RoundedCorners(radius);
    return Matrix3x3::SegmentMapping(Point(0, 0), spec.start, Point(L, 0), spec.end) * outline;
}

ArrowParts buildArrowParts(ArrowSpec const &spec) {
    ArrowParts parts;
    parts.outline = buildArrowPolygon(spec);
    std::vector<Point> const &p = parts.outline.points;
    auto pick = [&](size_t first) {
        return first + 2 < p.size() ? Polygon{p[first], p[first + 1], p[first + 2]} : Polygon();
    };
    if (spec.headAtStart)
        parts.startHead = pick(1);
    if (spec.headAtEnd)
        parts.endHead = pick(spec.headAtStart ? 6 : 3);
    return parts;
}

} // namespace Vantrel
