#include "callouts/arrows/TextArrowGeometry.h"

#include <vantrel/callouts/arrows/TextArrows.h>
#include <vantrel/values/Matrix3x3.h>

#include "callouts/bubbles/BubbleGeometry.h"

#include <algorithm>
#include <cmath>

namespace Vantrel {

Polygon abstractArrowOutline(Rect const &box, bool halfRoundRear) {
    double const m = calloutMargin();
    // The head: s from the box's height, T its height, L its length.
    double const s = (box.Height() * 0.5 + m) * 2.1 - 11.0;
    double const T = 22.0 / std::tan(degreesToRadians(25.0)) + 2 * s;
    double const L = std::tan(degreesToRadians(50.0)) * T * 0.5;
    Rect r = box.Expanded(m);
    if (halfRoundRear) {
        Rect const n = box.Normalized(), e = n.Expanded(m);
        r = Rect(n.Left(), e.Top(), e.Right(), e.Bottom());
    }
    Point const d(-m, 0); // the shaft stops a margin short of r's right edge
    Point const mid = r.PointAtFraction(1.0, 0.5) + d;
    double const q = r.Height() * 0.5;
    Point const rearTop = halfRoundRear ? Point(r.Left() - q, r.Top()) : r.PointAtFraction(0.0, 0.0);
    Point const rearBottom = halfRoundRear ? Point(r.Left() - q, r.Bottom()) : r.PointAtFraction(0.0, 1.0);
    double const rear = halfRoundRear ? q : 9.0;
    Polygon const corners{rearTop,           r.PointAtFraction(1.0, 0.0) + d, mid + Point(0, -T * 0.5),
                          mid + Point(L, 0), mid + Point(0, T * 0.5),         r.PointAtFraction(1.0, 1.0) + d,
                          rearBottom};
    return corners.RoundedCorners({rear, 9.0, 11.0, 11.0, 11.0, 9.0, rear});
}

BasicArrow basicArrowOutline(Rect const &box, bool taperedRear, Rect const &reference) {
    Rect const n = box.Normalized(), e = n.Expanded(calloutMargin());
    Rect const r = taperedRear ? e : Rect(n.Left(), e.Top(), e.Right(), e.Bottom());
    double const W = r.Width(), H = r.Height();
    double const k = H * arrowHeadRatio();        // the head's height
    double const q = (k - H) * 0.5 * 3.0 * 0.125; // its back corners behind the shaft's end
    double const L = k * 3.0 * 0.25;              // its length
    Point const A(W * 0.5 - q, -k * 0.5), D(W * 0.5 - q, k * 0.5), B(A.x + L, 0.0);
    double const e27 = k / 27.0;
    Polygon outline;
    std::vector<double> radii;
    if (taperedRear) {
        // The rear keeps the text's half height plus 1, else narrows with length.
        double const y = std::max(box.Height() * 0.5 + 1.0, H * 0.5 - W * 2.0 / 58.0);
        outline = Polygon{Point(-W * 0.5, y), Point(-W * 0.5, -y)};
        radii = {e27, e27};
    } else {
        outline = Polygon{Point(-W * 0.5 - H * 0.5, H * 0.5), Point(-W * 0.5 - H * 0.5, -H * 0.5)};
        radii = {H * 0.5, H * 0.5};
    }
    for (Point const &p : {Point(W * 0.5, -H * 0.5), A, B, D, Point(W * 0.5, H * 0.5)})
        outline.points.push_back(p);
    radii.insert(radii.end(), {0.0, e27, e27, e27, 0.0});
    outline = outline.RoundedCorners(radii);

    // Both limits strict; the height one holds the head, not the shaft.
    double sx = 1.0, sy = 1.0;
    if (reference.Height() != 0 && k > reference.Height())
        sy = reference.Height() / k;
    double const total = W - q + L + (taperedRear ? 0.0 : H * 0.5);
    if (reference.Width() != 0 && total > reference.Width())
        sx = reference.Width() / total;
    double const v = taperedRear ? (B.x - W * 0.5) * 0.5 : (-W * 0.5 - H * 0.5 + B.x) * 0.5;
    outline = Matrix3x3::Translation(Point(-v, 0.0)) * outline;
    outline = Matrix3x3::Scale(sx, sy) * outline;
    outline = Matrix3x3::Translation(Point(v, 0.0)) * outline;
    return {outline, r};
}

Rect shaftAroundText(Rect const &box) {
    double const h0 = box.Height();
    double const grown = (h0 + 2 * calloutMargin()) * arrowBodyFactor();
    return box.Expanded(Point(0.0, (grown - h0) * 0.5));
}

Polygon boldArrowOutline(Rect const &box) {
    Rect const r = shaftAroundText(box);
    Point const o(r.Height() * 0.33, 0);
    return Polygon{r.PointAtFraction(0.0, 0.0) - o, r.PointAtFraction(1.0, 0.0),     r.PointAtFraction(1.0, 0.5) + o,
                   r.PointAtFraction(1.0, 1.0),     r.PointAtFraction(0.0, 1.0) - o, r.PointAtFraction(0.0, 0.5)};
}

Polygon boldArrowTwoOutline(Rect const &box) {
    Rect const r = box.Expanded(calloutMargin());
    return Polygon{r.PointAtFraction(0.0, 0.0),  r.PointAtFraction(1.0, 0.0), r.PointAtFraction(1.0, -0.5),
                   r.PointAtFraction(1.37, 0.5), r.PointAtFraction(1.0, 1.5), r.PointAtFraction(1.0, 1.0),
                   r.PointAtFraction(0.0, 1.0)};
}

double revealedProgress(double progress) { return std::isnan(progress) ? 1.0 : progress; }

double RevealGrid::alpha(int i) const {
    // The last four tiles never reach full strength.
    static double const caps[4] = {double(0.8f), double(0.6f), double(0.3f), 0.0};
    double const cap = i >= n - 4 ? caps[i - (n - 4)] : 1.0;
    return clampBetween(0.0, (front - i) / 10.0, cap);
}

Rect RevealGrid::tile(int i) const {
    int const col = i / 2, row = i % 2;
    Point const topLeft = shaft.PointAtFraction(0.0, 0.0) + Point(width * (cols - 3 - col), height * row);
    Rect t(topLeft, topLeft + Point(width, height));
    return Rect(t.Left(), t.Top(), std::min(t.Right(), shaft.Right()), t.Bottom());
}

RevealGrid revealGrid(Rect const &shaft, double progress) {
    RevealGrid g;
    g.shaft = shaft;
    double const t = shaft.Height() / 2.0;
    double const columns = std::ceil(shaft.Width() / t) + 2; // NaN for a grid without tiles
    if (t > 0 && std::isfinite(columns) && columns >= 1) {
        g.height = g.width = t;
        if (columns > kMaxRevealColumns) {
            g.width = shaft.Width() / (kMaxRevealColumns - 2);
            g.cols = kMaxRevealColumns;
        } else {
            g.cols = int(columns);
        }
        g.n = 2 * g.cols;
    }
    g.front = (g.n + 10.0 - 5.0) * ((progress - 0.05) * 2.0);
    for (int i = 0; i < g.n && g.first < 0; ++i)
        if (g.alpha(i) != 1.0)
            g.first = i;
    // Without tiles the body is solid, as at the end of the reveal.
    g.cut = g.n == 0 ? shaft.Left() : g.first < 0 ? shaft.Right() : g.tile(g.first).Right();
    return g;
}

} // namespace Vantrel
