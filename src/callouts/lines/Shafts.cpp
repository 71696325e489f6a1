#include "callouts/lines/Shafts.h"

#include <cmath>

namespace Vantrel {

Polygons TaperedShaft::outline() const {
    Polygons result;
    if (!(mWidth > 0)) {
        result.Add(Polygon());
        return result;
    }
    result.Add(Polygon{Point(0, mWidth / 2), Point(0, -mWidth / 2), Point(length, -endWidth / 2),
                       Point(length, endWidth / 2)});
    return result;
}

std::vector<double> fitDashPattern(std::vector<double> const &pattern, double total, bool leadingGap,
                                   bool trailingGap) {
    if (!(total > 0) || !std::isfinite(total))
        return {};
    double sum = 0;
    bool usable = !pattern.empty();
    for (double p : pattern) {
        usable = usable && std::isfinite(p) && p >= 0;
        sum += p;
    }
    if (!usable || !(sum > 0) || !std::isfinite(sum))
        return {total}; // a single bar
    int const m = int(pattern.size());
    // About m * total / sum elements would be laid: scale the pattern up where that is too many.
    double const elements = m * (total / sum);
    double const scale = elements > 2.0 * kMaxShaftPieces ? elements / (2.0 * kMaxShaftPieces) : 1.0;
    auto P = [&](long k) { return pattern[size_t(((k % m) + m) % m)] * scale; };

    long const first = leadingGap ? -1 : 0;
    long e;
    double lower;
    if (leadingGap == trailingGap) { // an odd number of elements
        e = first + 1;
        lower = P(first);
    } else {
        e = first;
        lower = 0;
    }
    while (total > lower + P(e) + P(e + 1)) {
        lower += P(e) + P(e + 1);
        e += 2;
    }
    double const shrink = total / (lower + P(e) + P(e + 1));
    double const stretch = lower == 0 ? 0 : lower / total;
    long end;
    double factor;
    if (shrink > stretch) {
        end = e + 2;
        factor = shrink;
    } else {
        end = e;
        factor = total / lower;
    }
    std::vector<double> result;
    result.reserve(size_t(end - first + 1));
    if (leadingGap)
        result.push_back(0.0);
    for (long k = first; k < end; ++k)
        result.push_back(factor * P(k));
    return result;
}

Polygons DashShaft::outline() const {
    Polygons result;
    double const w = width();
    if (!(w > 0))
        return result;
    double const h = w / 2;
    std::vector<double> S = fitDashPattern(pattern, length / w, leadingGap, trailingGap);
    std::vector<Polygon> dashes;
    double position = 0;
    for (size_t i = 0; i < S.size(); i += 2) {
        double dash = S[i], gap = S[(i + 1) % S.size()];
        if (dash > 0)
            dashes.push_back(Polygon(Rect(Point(position * w, -h), Point((position + dash) * w, h))));
        position += dash + gap;
    }
    // Corners 1 and 4 of a rect's polygon lie at the start side.
    double const s = w * startCornerRatio, e = w * endCornerRatio;
    if (dashes.size() == 1) {
        dashes[0] = dashes[0].RoundedCorners(std::vector<double>{s, e, e, s});
    } else if (dashes.size() > 1) {
        dashes.front() = dashes.front().RoundedCorners(std::vector<double>{s, 0, 0, s});
        dashes.back() = dashes.back().RoundedCorners(std::vector<double>{0, e, e, 0});
    }
    for (Polygon const &d : dashes)
        result.Add(d);
    return result;
}

Polygons DotShaft::outline() const {
    Polygons result;
    double const d = width(), r = d / 2, g = d * gapRatio;
    int const extraGaps = (leadingGap ? 1 : 0) + (trailingGap ? 1 : 0) - 1; // gaps minus dots
    double const count = std::round((length - extraGaps * g) / (g + d));
    if (!(count > 0) || count + extraGaps <= 0)
        return result;
    int const n = count > kMaxShaftPieces ? kMaxShaftPieces : int(count);
    double const gap = (length - n * d) / (n + extraGaps);
    for (int i = 0; i < n; ++i)
        result.Add(Polygon::Circle(Point(i * (gap + d) + r + (leadingGap ? gap : 0), 0), r));
    return result;
}

namespace {

bool boxesMeet(Rect const &a, Rect const &b) {
    return !(a.Right() < b.Left() || b.Right() < a.Left() || a.Bottom() < b.Top() || b.Bottom() < a.Top());
}

} // namespace

Polygons uniteShaftWithCaps(Polygons const &pieces, Polygons const &firstCap, Polygons const &secondCap) {
    std::vector<Rect> caps;
    std::vector<Polygons const *> drawn; // a cap without points leaves the union as it is
    for (Polygons const *cap : {&firstCap, &secondCap})
        for (auto const &p : cap->polygons)
            if (p && !p->points.empty()) {
                caps.push_back(p->BoundingRect());
                if (drawn.empty() || drawn.back() != cap)
                    drawn.push_back(cap);
            }
    Polygons apart, touching;
    for (auto const &piece : pieces.polygons) {
        if (!piece)
            continue;
        Rect const box = piece->BoundingRect();
        bool meets = false;
        for (Rect const &cap : caps)
            meets = meets || boxesMeet(box, cap);
        (meets ? touching : apart).polygons.push_back(piece);
    }
    Polygons united = touching;
    for (Polygons const *cap : drawn)
        united = united.UnionWith(*cap);
    united.polygons.insert(united.polygons.end(), apart.polygons.begin(), apart.polygons.end());
    return united;
}

boost::shared_ptr<Shaft> makeShaft(ShaftSpec const &spec, double length, bool leadingGap, bool trailingGap) {
    auto dots = [&](double gapRatio) {
        return boost::shared_ptr<Shaft>(new DotShaft(spec.width, length, gapRatio, leadingGap, trailingGap));
    };
    auto dashes = [&](std::vector<double> pattern) {
        auto *shaft = new DashShaft(spec.width, length, std::move(pattern), leadingGap, trailingGap);
        if (spec.kind == ShaftKind::Bar || spec.kind == ShaftKind::AbstractDashDotDot) {
            shaft->startCornerRatio = spec.roundedEnds & 1 ? 0.3 : 0;
            shaft->endCornerRatio = spec.roundedEnds & 2 ? 0.3 : 0;
        }
        return boost::shared_ptr<Shaft>(shaft);
    };
    switch (spec.kind) {
    case ShaftKind::BasicDots:
    case ShaftKind::ModernDots:
        return dots(0.5);
    case ShaftKind::BasicDashes:
        return dashes({3.2, 1.0});
    case ShaftKind::BoldShortDashes:
        return dashes({1.0, 0.4});
    case ShaftKind::BoldDashDot:
        return dashes({2.0, 0.4, 1.0, 0.4});
    case ShaftKind::ModernDashes:
        return dashes({1.7, 0.75});
    case ShaftKind::Bar:
        return dashes({});
    case ShaftKind::AbstractDashDotDot:
        return dashes({2.0, 1.0, 1.0, 1.0, 1.0, 1.0});
    case ShaftKind::AbstractDots:
        return dots(0.4);
    case ShaftKind::UrbanLongDashes:
        return dashes({5.0, 0.5});
    case ShaftKind::UrbanShortDashes:
        return dashes({1.0, 1.5});
    default: // Tapered, and any kind the table does not name
        return boost::shared_ptr<Shaft>(new TaperedShaft(spec.width, length, spec.endWidth));
    }
}

} // namespace Vantrel
