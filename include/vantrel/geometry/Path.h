// A single contour of lines, cubic curves and elliptical arcs that replays
// itself into a drawing context to be filled, stroked or flattened.
#pragma once

#include <vantrel/VantrelExport.h>
#include <vantrel/drawing/LineStyles.h>
#include <vantrel/values/Color.h>
#include <vantrel/values/Matrix3x3.h>
#include <vantrel/values/Polygon.h>

#include <string>
#include <vector>

namespace Vantrel {

class DrawingContext;
class PathDrawingContext;

// There are no move or close steps: the first step starts the contour (a
// line step by moving there, a curve at its first control point, an arc at
// its start), and later arcs join the contour with a straight line.
class VANTREL_EXPORT Path {
public:
    // One element of the contour.
    class VANTREL_EXPORT Step {
    public:
        virtual ~Step() = default;
        // A heap copy; the caller owns it.
        virtual Step *Clone() const = 0;
        virtual void AddToContext(PathDrawingContext *context) const = 0;
        virtual void Transform(Matrix3x3 const &m) = 0;
    };

    Path() = default;
    Path(Path const &other);
    Path(Path &&other) noexcept;
    Path &operator=(Path other) noexcept;
    // Down the left side first: (left, top), (left, bottom), (right, bottom),
    // (right, top); the contour is not closed by a fifth point.
    explicit Path(Rect const &rect);
    ~Path();

    void AddPoint(Point const &p);
    void AddCurve(Point const &control1, Point const &control2, Point const &end);
    // An arc of the ellipse with axes (radiusX, 0) and (0, radiusY); radians.
    void AddArc(Point const &center, double radiusX, double radiusY, double startAngle, double endAngle);
    void AddArc(Point const &center, double radius, double startAngle, double endAngle);

    int NumSteps() const { return int(steps.size()); }
    bool IsEmpty() const { return steps.empty(); }

    // Transforms every step in place. Arcs carry the linear part into their
    // axes and keep their angles, which are measured in the arc's own frame.
    Path &Transform(Matrix3x3 const &m);

    // Each replaces the context's current path with this one and consumes it.
    void Fill(Color const &color, DrawingContext *context) const;
    void Fill(GradientPattern const &pattern, DrawingContext *context) const;
    void Stroke(Color const &color, double lineWidth, std::string const &style, DrawingContext *context,
                LineCapTypes cap, LineJoinTypes join, bool closePath) const;
    // The contour flattened by the context into one polygon; the path stays
    // current in the context. A path reaching beyond a million units is
    // flattened at a power of two smaller and scaled back, since cairo holds
    // paths in a fixed point of about 8 million units.
    Polygon Flattened(DrawingContext *context) const;

private:
    void replay(PathDrawingContext *context) const;

    std::vector<Step *> steps;
};

} // namespace Vantrel
