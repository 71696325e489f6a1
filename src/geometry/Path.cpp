#include <vantrel/geometry/Path.h>

#include <vantrel/drawing/DrawingContext.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace Vantrel {

namespace {

class PointStep : public Path::Step {
public:
    explicit PointStep(Point const &p) : point(p) {}
    Step *Clone() const override { return new PointStep(*this); }
    void AddToContext(PathDrawingContext *context) const override { context->AddLineToCurrentPath(point); }
    void Transform(Matrix3x3 const &m) override { point = m * point; }

private:
    Point point;
};

class CurveStep : public Path::Step {
public:
    CurveStep(Point const &c1, Point const &c2, Point const &e) : control1(c1), control2(c2), end(e) {}
    Step *Clone() const override { return new CurveStep(*this); }
    void AddToContext(PathDrawingContext *context) const override {
        context->AddCurveToCurrentPath(control1, control2, end);
    }
    void Transform(Matrix3x3 const &m) override {
        control1 = m * control1;
        control2 = m * control2;
        end = m * end;
    }

private:
    Point control1, control2, end;
};

// An arc of the unit circle in the frame (center, xAxis, yAxis).
class ArcStep : public Path::Step {
public:
    ArcStep(Point const &c, Point const &x, Point const &y, double start, double end)
        : center(c), xAxis(x), yAxis(y), startAngle(start), endAngle(end) {}
    Step *Clone() const override { return new ArcStep(*this); }
    void AddToContext(PathDrawingContext *context) const override {
        context->AddArcToCurrentPath(center, xAxis, yAxis, startAngle, endAngle);
    }
    void Transform(Matrix3x3 const &m) override {
        // The axes are vectors: they take the linear part only.
        Point origin = m * Point(0, 0);
        center = m * center;
        xAxis = m * xAxis - origin;
        yAxis = m * yAxis - origin;
    }

private:
    Point center, xAxis, yAxis;
    double startAngle, endAngle;
};

// The largest coordinate a path's steps name, as far as they are finite: an
// arc counts its centre and axes, a curve its control points.
class ExtentContext : public PathDrawingContext {
public:
    double extent = 0;

    void StartPath() override {}
    void FillCurrentPath(GradientPattern const &) override {}
    void FillCurrentPath(Color const &) override {}
    void StrokeCurrentPath(Color const &, double, std::string const &, LineCapTypes, LineJoinTypes, bool) override {}
    void AddArcToCurrentPath(Point const &center, double rx, double ry, double, double) override {
        see(center, std::fabs(rx) + std::fabs(ry));
    }
    void AddArcToCurrentPath(Point const &center, Point const &xAxis, Point const &yAxis, double, double) override {
        see(center, xAxis.Length() + yAxis.Length());
    }
    void AddLineToCurrentPath(Point const &p) override { see(p, 0); }
    void MoveToPointInCurrentPath(Point const &p) override { see(p, 0); }
    void AddCurveToCurrentPath(Point const &c1, Point const &c2, Point const &e) override {
        see(c1, 0);
        see(c2, 0);
        see(e, 0);
    }
    Point CurrentPointInPath() override { return Point(); }

private:
    void see(Point const &p, double reach) {
        double const far = std::max(std::fabs(p.x), std::fabs(p.y)) + reach;
        if (std::isfinite(far))
            extent = std::max(extent, far);
    }
};

// cairo keeps a path in fixed point, which holds about 8 million units;
// flattening stays well inside that.
double const kFlatteningExtent = 1 << 20;

} // namespace

Path::Path(Path const &other) {
    steps.reserve(other.steps.size());
    for (Step const *s : other.steps)
        steps.push_back(s->Clone());
}

Path::Path(Path &&other) noexcept : steps(std::move(other.steps)) { other.steps.clear(); }

Path &Path::operator=(Path other) noexcept {
    std::swap(steps, other.steps);
    return *this;
}

Path::Path(Rect const &r) {
    AddPoint(Point(r.Left(), r.Top()));
    AddPoint(Point(r.Left(), r.Bottom()));
    AddPoint(Point(r.Right(), r.Bottom()));
    AddPoint(Point(r.Right(), r.Top()));
}

Path::~Path() {
    for (Step *s : steps)
        delete s;
}

void Path::AddPoint(Point const &p) { steps.push_back(new PointStep(p)); }

void Path::AddCurve(Point const &control1, Point const &control2, Point const &end) {
    steps.push_back(new CurveStep(control1, control2, end));
}

void Path::AddArc(Point const &center, double radiusX, double radiusY, double startAngle, double endAngle) {
    steps.push_back(new ArcStep(center, Point(radiusX, 0), Point(0, radiusY), startAngle, endAngle));
}

void Path::AddArc(Point const &center, double radius, double startAngle, double endAngle) {
    AddArc(center, radius, radius, startAngle, endAngle);
}

Path &Path::Transform(Matrix3x3 const &m) {
    for (Step *s : steps)
        s->Transform(m);
    return *this;
}

void Path::replay(PathDrawingContext *context) const {
    context->StartPath();
    for (Step const *s : steps)
        s->AddToContext(context);
}

void Path::Fill(Color const &color, DrawingContext *context) const {
    replay(context);
    context->FillCurrentPath(color);
}

void Path::Fill(GradientPattern const &pattern, DrawingContext *context) const {
    replay(context);
    context->FillCurrentPath(pattern);
}

void Path::Stroke(Color const &color, double lineWidth, std::string const &style, DrawingContext *context,
                  LineCapTypes cap, LineJoinTypes join, bool closePath) const {
    replay(context);
    context->StrokeCurrentPath(color, lineWidth, style, cap, join, closePath);
}

Polygon Path::Flattened(DrawingContext *context) const {
    ExtentContext reach;
    replay(&reach);
    if (!(reach.extent > kFlatteningExtent)) {
        replay(context);
        return context->FlattenedPath();
    }
    // Beyond cairo's range: flattened at a power of two smaller, which is
    // exact to scale back, then the path itself is made current.
    int exponent = 0;
    std::frexp(reach.extent / kFlatteningExtent, &exponent);
    Path smaller(*this);
    smaller.Transform(Matrix3x3::Uniform(std::ldexp(1.0, -exponent)));
    smaller.replay(context);
    Polygon flat = context->FlattenedPath();
    for (Point &p : flat.points)
        p = Point(std::ldexp(p.x, exponent), std::ldexp(p.y, exponent));
    replay(context);
    return flat;
}

} // namespace Vantrel
