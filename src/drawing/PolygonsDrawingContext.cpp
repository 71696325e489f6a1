#include "drawing/PolygonsDrawingContext.h"
#include "values/Pi.h"

#include <vantrel/drawing/CrossPlatformDrawingContext.h>
#include <vantrel/geometry/Path.h>

namespace Vantrel {

PolygonsDrawingContext::PolygonsDrawingContext() : pathContext(new CrossPlatformDrawingContext(nullptr)) {}

PolygonsDrawingContext::~PolygonsDrawingContext() { delete pathContext; }

void PolygonsDrawingContext::StartPath() { pathContext->StartPath(); }

void PolygonsDrawingContext::AddArcToCurrentPath(Point const &center, double radiusX, double radiusY, double startAngle,
                                                 double endAngle) {
    AddArcToCurrentPath(center, Point(radiusX, 0), Point(0, radiusY), startAngle, endAngle);
}

void PolygonsDrawingContext::AddArcToCurrentPath(Point const &center, Point const &xAxis, Point const &yAxis,
                                                 double startAngle, double endAngle) {
    pathContext->AddArcToCurrentPath(center, xAxis, yAxis, startAngle, endAngle);
}

void PolygonsDrawingContext::AddLineToCurrentPath(Point const &p) { pathContext->AddLineToCurrentPath(p); }

void PolygonsDrawingContext::MoveToPointInCurrentPath(Point const &p) { pathContext->MoveToPointInCurrentPath(p); }

void PolygonsDrawingContext::AddCurveToCurrentPath(Point const &c1, Point const &c2, Point const &end) {
    pathContext->AddCurveToCurrentPath(c1, c2, end);
}

Polygon PolygonsDrawingContext::FlattenedPath() { return pathContext->FlattenedPath(); }

// Every polygon is kept as drawn, moved by the offset: no orientation change,
// no minimum of points, no union.
void PolygonsDrawingContext::collect(Polygons const &list) {
    for (auto const &shared : list.polygons) {
        Polygon moved;
        if (shared) {
            moved.points.reserve(shared->points.size());
            for (Point const &p : shared->points)
                moved.points.push_back(p + offset);
        }
        polygons.Add(moved);
    }
}

Polygon PolygonsDrawingContext::ellipsePolygon(Rect const &rect) {
    Path ellipse;
    ellipse.AddArc(rect.Center(), rect.Width() * 0.5, rect.Height() * 0.5, 0.0, 2 * kPi);
    return ellipse.Flattened(this);
}

namespace {
Polygons single(Polygon const &polygon) {
    Polygons list;
    list.Add(polygon);
    return list;
}
} // namespace

// Gradient fills collect like colour fills, so that a gradient-filled shape
// without an outline still has its polygons.
void PolygonsDrawingContext::Fill(GradientPattern const &, Polygons const &list) { collect(list); }

void PolygonsDrawingContext::Fill(GradientPattern const &pattern, Polygon const &polygon) {
    Fill(pattern, single(polygon));
}

void PolygonsDrawingContext::Fill(Color const &, Polygons const &list) { collect(list); }

void PolygonsDrawingContext::Fill(Color const &color, Polygon const &polygon) { Fill(color, single(polygon)); }

void PolygonsDrawingContext::Stroke(Color const &, double, std::string const &, Polygons const &list) { collect(list); }

void PolygonsDrawingContext::Stroke(Color const &color, double lineWidth, std::string const &style,
                                    Polygon const &polygon) {
    Stroke(color, lineWidth, style, single(polygon));
}

void PolygonsDrawingContext::FillEllipse(GradientPattern const &pattern, Rect const &rect) {
    Fill(pattern, ellipsePolygon(rect));
}

void PolygonsDrawingContext::FillEllipse(Color const &color, Rect const &rect) { Fill(color, ellipsePolygon(rect)); }

void PolygonsDrawingContext::FillPath(GradientPattern const &pattern, Path const &path) {
    Fill(pattern, path.Flattened(this));
}

void PolygonsDrawingContext::FillPath(Color const &color, Path const &path) { Fill(color, path.Flattened(this)); }

void PolygonsDrawingContext::StrokeEllipse(Color const &color, double lineWidth, std::string const &style,
                                           Rect const &rect) {
    Stroke(color, lineWidth, style, ellipsePolygon(rect));
}

void PolygonsDrawingContext::StrokePath(Color const &color, double lineWidth, std::string const &style,
                                        Path const &path, LineCapTypes, LineJoinTypes, bool) {
    Stroke(color, lineWidth, style, path.Flattened(this));
}

} // namespace Vantrel
