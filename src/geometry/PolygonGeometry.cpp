// Circles, rounded corners and nearest edges of a single polygon.
#include "values/Pi.h"
#include <vantrel/values/Polygon.h>

#include <algorithm>
#include <cmath>

namespace Vantrel {

namespace {

double const kSagitta = 0.1;

// Half the angle of one arc segment of radius r: its sagitta is 0.1, and no
// turn gets more than kMaxSegmentsPerTurn segments. Radii too small for the
// formula give NaN, which callers take as "as few segments as allowed".
double halfSegmentAngle(double r) {
    double a = std::acos(1.0 - kSagitta / r);
    return std::max(a, kPi / Polygon::kMaxSegmentsPerTurn);
}

int wrap(int i, int n) { return ((i % n) + n) % n; }

} // namespace

Point const &Polygon::Vertex(int i) const {
    static Point const origin;
    return points.empty() ? origin : points[wrap(i, int(points.size()))];
}

double Polygon::EdgeLength(int edge) const {
    if (points.empty())
        return 0.0;
    return (Vertex(edge + 1) - Vertex(edge)).Length();
}

Polygon Polygon::Circle(Point const &center, double radius) {
    Polygon circle;
    if (!(radius > 0.0))
        return circle;
    double a = halfSegmentAngle(radius);
    // A NaN angle (radius below 0.05) or a count below 3 both end at 3.
    double m = std::round(2.0 * kPi / (a + a));
    int n = m >= 3.0 ? int(m) : 3;
    circle.points.reserve(n);
    for (int i = 0; i < n; ++i)
        circle.points.push_back(center + Point::FromAngle(2.0 * kPi * i / n) * radius);
    return circle;
}

double Polygon::CornerCut(Point const &previous, Point const &corner, Point const &next, double radius) {
    if (radius < 0.01)
        return 0.0;
    Point u = (previous - corner).Normalized();
    Point v = (next - corner).Normalized();
    return radius / std::tan(std::acos(u * v) * 0.5);
}

Polygon Polygon::CornerArc(Point const &toPrevious, Point const &toNext, double radius) {
    Polygon arc;
    if (radius < 0.1) {
        arc.points.push_back(Point(0, 0));
        return arc;
    }
    Point u = toPrevious.Normalized();
    Point v = toNext.Normalized();
    double t = radius / std::tan(std::acos(u * v) * 0.5);
    Point c = ((v - u) / (v ^ u)).Perpendicular() * t;
    double start = (u * t - c).Angle();
    double sweep = (v * t - c).Angle() - start;
    // Collinear neighbours divide by a zero cross product: the vertex drops out.
    if (!std::isfinite(sweep) || !std::isfinite(start) || !std::isfinite(radius))
        return arc;
    while (sweep < -kPi)
        sweep += 2 * kPi;
    while (sweep > kPi)
        sweep -= 2 * kPi;
    double a = halfSegmentAngle(radius);
    int k = int(std::ceil(std::fabs(sweep / (a + a))));
    if (k == 0) {
        arc.points.push_back(c + Point::FromAngle(start) * radius);
        return arc;
    }
    arc.points.reserve(k + 1);
    for (int i = 0; i <= k; ++i)
        arc.points.push_back(c + Point::FromAngle(i * sweep / k + start) * radius);
    return arc;
}

Polygon Polygon::RoundedCorner(Point const &previous, Point const &corner, Point const &next, double radius) {
    Polygon arc = CornerArc(previous - corner, next - corner, radius);
    for (Point &p : arc.points)
        p = p + corner;
    return arc;
}

Polygon Polygon::RoundedCorners(double radius) const {
    return RoundedCorners(std::vector<double>(points.size(), radius));
}

Polygon Polygon::RoundedCorners(std::vector<double> const &radii) const {
    if (radii.size() != points.size())
        return *this;
    // Coincident neighbours have no direction between them; keep the first of each run.
    Polygon distinct;
    std::vector<double> r;
    for (size_t i = 0; i < points.size(); ++i) {
        if (!distinct.points.empty() && points[i] == distinct.points.back())
            continue;
        distinct.points.push_back(points[i]);
        r.push_back(radii[i]);
    }
    while (distinct.points.size() > 1 && distinct.points.back() == distinct.points.front()) {
        distinct.points.pop_back();
        r.pop_back();
    }
    int n = int(distinct.points.size());
    if (n < 3)
        return *this;

    std::vector<double> cut(n);
    for (int i = 0; i < n; ++i) {
        cut[i] = CornerCut(distinct.Vertex(i - 1), distinct.Vertex(i), distinct.Vertex(i + 1), r[i]);
        // A corner that turns straight back cuts infinitely far; it rounds to
        // nothing anyway and must not shrink its neighbours to nothing.
        if (!std::isfinite(cut[i]))
            cut[i] = 0.0;
    }
    Polygon result;
    for (int i = 0; i < n; ++i) {
        double s1 = std::max((cut[wrap(i - 1, n)] + cut[i]) / distinct.EdgeLength(i - 1), 1.0);
        double s2 = std::max((cut[i] + cut[wrap(i + 1, n)]) / distinct.EdgeLength(i), 1.0);
        result.Append(
            RoundedCorner(distinct.Vertex(i - 1), distinct.Vertex(i), distinct.Vertex(i + 1), r[i] / std::max(s1, s2)));
    }
    return result;
}

int Polygon::NearestEdgeIndex(Point const &p) const {
    int n = int(points.size());
    int best = -1;
    double bestDistance = 0.0;
    for (int i = 0; i < n; ++i) {
        Point a = points[i], b = Vertex(i + 1);
        // Shortened by 0.001 at both ends, so that a shared corner belongs to neither edge.
        Point e = (b - a).Normalized() * 0.001;
        Point a1 = a + e, b1 = b - e;
        Point ab = b1 - a1;
        double t = (ab * (p - a1)) / (ab * ab);
        double d;
        if (t >= 0.0 && t <= 1.0)
            d = ab.Perpendicular().Normalized() * (p - a1);
        else if (t < 0.0)
            d = (p - a1).Length();
        else
            d = (p - b1).Length();
        if (best < 0 || bestDistance > d) {
            best = i;
            bestDistance = d;
        }
    }
    return best;
}

} // namespace Vantrel
