#include "callouts/bubbles/BubbleGeometry.h"
#include "callouts/frame/Painting.h"

#include <vantrel/callouts/frame/BaseCallout.h>
#include <vantrel/values/Matrix3x3.h>

#include <algorithm>
#include <cmath>

namespace Vantrel {

namespace {

double const kHalfPi = 1.5707963267948966;
double const kFullTurn = 6.283185307179586;
double const kTailApex = 0.13962634015954636; // 8 degrees, half the angle at a tail's tip

// The two base corners of a tail of half width h across direction a, around p.
Point across(double a, double h) { return Point(std::cos(a + kHalfPi) * h, std::sin(a + kHalfPi) * h); }

// The base position on the centre line 45 degrees from the tip, as the pill
// and the cloud aim their tails.
double baseTowards(Point const &tail, Point const &ctr) {
    double const rise = std::fabs(tail.y - ctr.y);
    return ctr.x > tail.x ? tail.x + rise : tail.x - rise;
}

} // namespace

Rect collapseInverted(Rect r) {
    Point const c = r.Center();
    if (r.Left() > r.Right())
        r = Rect(c.x, r.Top(), c.x, r.Bottom());
    if (r.Top() > r.Bottom())
        r = Rect(r.Left(), c.y, r.Right(), c.y);
    return r;
}

double tailBaseWidth(Rect const &body, Point const &tail, double angle, double minimum) {
    double const dy = std::max(0.0, body.Top() > tail.y ? body.Top() - tail.y : tail.y - body.Bottom());
    double const dx = std::max(0.0, body.Left() > tail.x ? body.Left() - tail.x : tail.x - body.Right());
    if (dy == 0 && dx == 0)
        return minimum;
    double const grow = std::tan(angle);
    double wy = minimum, wx = minimum;
    if (dy > 0)
        wy = std::min(body.Width() * 0.25, std::max(minimum, grow * dy));
    if (dx > 0)
        wx = std::min(body.Height() * 0.25, std::max(minimum, grow * dx));
    return (dy / (dx + dy)) * wy + (dx / (dx + dy)) * wx;
}

Polygon rectangleWithTail(Rect const &body, Point const &tail, double cornerRadius, double baseWidth,
                          bool baseFromTip) {
    Point const tip = body.Contains(tail) ? body.PointAtFraction(0.5, 0.0) : tail;
    Polygon const p(body);
    int const e = p.NearestEdgeIndex(tip);
    double const W = p.EdgeLength(e), H = p.EdgeLength(e + 1);
    // The frame of the chosen edge: it runs from the origin to (W, 0), the body below it.
    Matrix3x3 m = Matrix3x3::SegmentMapping(p.Vertex(e), Point(0, 0), p.Vertex(e + 1), Point(W, 0));
    Point t = m * tip;
    if (t.x > W * 0.5) { // mirrored, so that only the first half of the edge is treated
        m = Matrix3x3::Translation(Point(W, 0)) * Matrix3x3::Scale(-1, 1) * m;
        t = m * tip;
    }
    double const r = cornerRadius;
    std::vector<Point> points;
    std::vector<double> radii;
    if (t.x < 0) { // beyond the near corner: the tail wraps it and the corner goes
        double const a = std::min(baseWidth, W - r), b = std::min(baseWidth, H - r);
        points = {Point(0, b), t, Point(a, 0), Point(W, 0), Point(W, H), Point(0, H)};
        radii = {0, 0, 0, r, r, r};
    } else {
        double const w = std::min(baseWidth, W - 2 * r);
        double s = baseFromTip || t.x < W * 0.35 ? t.x : t.x - w * 0.5;
        s = std::max(r, s);
        if (s + w > W - r)
            s = (W - r) - w;
        points = {Point(0, 0), Point(s, 0), t, Point(s + w, 0), Point(W, 0), Point(W, H), Point(0, H)};
        radii = {r, 0, 0, 0, r, r, r};
    }
    Matrix3x3 const back = m.Inverse();
    Polygon outline;
    for (Point const &q : points)
        outline.points.push_back(back * q);
    return outline.RoundedCorners(radii);
}

Polygon stadiumTail(Point const &tail, Rect const &core, Point const &outerSize) {
    Point const ctr = core.Center();
    double const x = std::max(core.Left(), std::min(core.Right(), baseTowards(tail, ctr)));
    double const a = std::atan2(tail.y - ctr.y, tail.x - x);
    double const h = std::min(outerSize.x * 0.25, std::min(core.Height() * 0.25, outerSize.y * 0.25));
    Point const n = across(a, h);
    return Polygon{tail, Point(x + n.x, ctr.y + n.y), Point(x - n.x, ctr.y - n.y)};
}

Polygon radialTail(Point const &tail, Point const &centre, double halfWidth, Point const &extent, double cornerRadius) {
    double const a = std::atan2(tail.y - centre.y, tail.x - centre.x);
    // A zero cosine or sine gives an infinite term, which the minimum drops.
    double h = std::min(halfWidth, extent.y / std::fabs(std::cos(a)) * 0.5);
    h = std::min(h, extent.x / std::fabs(std::sin(a)) * 0.5);
    Point const n = across(a, h);
    Polygon p{tail, centre + n, centre - n};
    return cornerRadius > 0 ? p.RoundedCorners(std::vector<double>{0, 0, cornerRadius}) : p;
}

Polygon cloudTail(Point const &tail, Rect const &box, Point const &cloudScale) {
    Point const ctr = box.Center();
    double x = ctr.x > tail.y ? ctr.x : baseTowards(tail, ctr);
    x = std::min(box.Right(), x);
    double const a = std::atan2(tail.y - ctr.y, tail.x - x);
    double const h =
        std::min(std::max(box.Height() * 0.25, box.Width() / 6.0), std::min(cloudScale.x * 0.25, cloudScale.y * 0.25));
    double const bx = std::max(h * 0.5 + box.Left(), x);
    Point const n = across(a, h);
    return Polygon{tail, Point(bx + n.x, ctr.y + n.y), Point(bx - n.x, ctr.y - n.y), tail};
}

double tailGapHalfAngle(double distance, double radius) {
    double q = std::asin(std::sin(kTailApex) * distance / radius);
    if (!(q < 0.5235987755982988))
        q = 0.5235987755982988;
    return std::max(q - kTailApex, 0.1);
}

void addGappedEllipse(Path &path, Point const &centre, double rx, double ry, Point const &d, double gapRadius,
                      Point const &tail) {
    if (d.x * d.x + d.y * d.y > rx * rx) {
        double const g = tailGapHalfAngle(d.Length(), gapRadius), theta = std::atan2(d.y, d.x);
        // From theta + g to theta - g with growing angle: the long way round.
        path.AddArc(centre, rx, ry, theta + g, theta - g);
        path.AddPoint(tail);
    } else {
        path.AddArc(centre, rx, ry, 0.0, kFullTurn);
    }
}

void addCloudPath(Path &path, Point const &scale) {
    double const sx = std::max(1.0, scale.x), sy = std::max(1.0, scale.y);
    path.AddPoint(Point(0.656061, -0.166667));
    path.AddCurve(Point(0.656061, -0.298485), Point(0.55, -0.404545), Point(0.418182, -0.404545));
    path.AddCurve(Point(0.365152, -0.404545), Point(0.315152, -0.386364), Point(0.275758, -0.357576));
    path.AddCurve(Point(0.224242, -0.540909), Point(0.056061, -0.674242), Point(-0.142424, -0.674242));
    path.AddCurve(Point(-0.383333, -0.674242), Point(-0.577273, -0.478788), Point(-0.577273, -0.239394));
    path.AddCurve(Point(-0.577273, -0.207576), Point(-0.574242, -0.177273), Point(-0.568182, -0.148485));
    path.AddCurve(Point(-0.686364, -0.106061), Point(-0.765152, 0.0), Point(-0.765152, 0.125758));
    path.AddCurve(Point(-0.765152, 0.280303), Point(-0.645455, 0.407576), Point(-0.492424, 0.416667));
    path.AddPoint(Point(0.116667, 0.416667));
    path.AddPoint(Point(0.656061, 0.416667));
    path.AddCurve(Point(0.818182, 0.416667), Point(0.948485, 0.286364), Point(0.948485, 0.124242));
    path.AddCurve(Point(0.948485, -0.037879), Point(0.816667, -0.166667), Point(0.656061, -0.166667));
    path.Transform(Matrix3x3::Scale(sx, sy));
}

void fillEllipseWithStyle(DrawingContext *context, Rect const &rect, Color const &color, double alpha, bool gradient,
                          Point const &direction) {
    Color c = color;
    if (alpha != 1.0)
        c.alpha *= float(alpha);
    fillOutline(context, EllipseOutline{rect}, c, gradient, rect, direction);
}

void drawThoughtCircles(Rect const &shape, Point const &extent, Point const &tail, double rimFactor,
                        DrawingContext *context, Color const &fill, Color const &stroke, double strokeWidth,
                        std::string const &strokeStyle, bool translucent, bool gradient, Point const &direction) {
    double const m = std::min(extent.x, extent.y);
    double const small = std::min(m / 6.0, 15.0), big = std::min(m * 0.25, 25.0);
    Point const ctr = shape.Center();
    double const w = shape.Width(), h = shape.Height();
    if (!(h != 0))
        return; // no ellipse to aim from
    double const a = std::atan2((tail.y - ctr.y) * w / h, tail.x - ctr.x);
    Point const rim(ctr.x + std::cos(a) * w * 0.5 * rimFactor, ctr.y + std::sin(a) * h * 0.5 * rimFactor);
    Point const mid = rim + (tail - rim) / 2.0;
    struct Circle {
        Rect rect;
        double alpha;
    } const circles[] = {{Rect(tail, tail).Expanded(Point(small, small)), translucent ? double(0.6f) : 1.0},
                         {Rect(mid, mid).Expanded(Point(big, big)), translucent ? double(0.8f) : 1.0}};
    for (Circle const &c : circles) {
        Color translucentFill = fill;
        if (c.alpha != 1.0)
            translucentFill.alpha *= float(c.alpha);
        CalloutProperties const circle(translucentFill, gradient ? "gradient" : "solid", direction, stroke, strokeWidth,
                                       strokeStyle);
        paintOutline(context, circle, EllipseOutline{c.rect}, c.rect);
    }
}

void drawThoughtCirclesForTails(Rect const &shape, Point const &extent, std::vector<Point> const &tails,
                                double rimFactor, DrawingContext *context, Color const &fill, Color const &stroke,
                                double strokeWidth, std::string const &strokeStyle, bool translucent, int tailIndex,
                                bool gradient, Point const &direction) {
    for (size_t i = 0; i < tails.size(); ++i)
        if (tailIndex == -1 || size_t(tailIndex) == i)
            drawThoughtCircles(shape, extent, tails[i], rimFactor, context, fill, stroke, strokeWidth, strokeStyle,
                               translucent, gradient, direction);
}

void drawThoughtCirclesForTails(Rect const &shape, Point const &extent, std::vector<Point> const &tails,
                                double rimFactor, DrawingContext *context, CalloutProperties const &properties,
                                bool translucent, int tailIndex) {
    drawThoughtCirclesForTails(shape, extent, tails, rimFactor, context, properties.fillColor, properties.strokeColor,
                               properties.strokeWidth, properties.strokeStyle, translucent, tailIndex,
                               properties.isGradient(), properties.gradientDirection);
}

void addArrowHead(Polygon &points, Rect const &box, double headHeight, double headLength, double progress) {
    double const f = clampBetween(0.0, progress * 8.0, 1.0);
    Point const m = box.PointAtFraction(1.0, 0.5);
    points.points.push_back(box.PointAtFraction(1.0, 0.0));
    points.points.push_back(m + Point(0, -headHeight * 0.5) * f);
    points.points.push_back(m + Point(headLength, 0));
    points.points.push_back(m + Point(0, headHeight * 0.5) * f);
    points.points.push_back(box.PointAtFraction(1.0, 1.0));
}

} // namespace Vantrel
