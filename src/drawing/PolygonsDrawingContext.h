// Collects the polygons a drawing fills and strokes, in drawing order,
// instead of painting them: the outline of a callout.
#pragma once

#include <vantrel/drawing/DrawingContext.h>

namespace Vantrel {

// Only the Fill, Stroke, FillEllipse, StrokeEllipse, FillPath and StrokePath
// families collect; everything else does nothing. Strokes collect their line,
// not an outline around it, and gradient fills collect like colour fills.
// The offset of Translate replaces the previous one, and Save and Restore do
// nothing, so an offset outlives the Restore after it.
class PolygonsDrawingContext : public DrawingContext {
public:
    PolygonsDrawingContext();
    ~PolygonsDrawingContext() override;
    PolygonsDrawingContext(PolygonsDrawingContext const &) = delete;
    PolygonsDrawingContext &operator=(PolygonsDrawingContext const &) = delete;

    Polygons const &Result() const { return polygons; }

    void StartPath() override;
    void FillCurrentPath(GradientPattern const &) override {}
    void FillCurrentPath(Color const &) override {}
    void StrokeCurrentPath(Color const &, double, std::string const &, LineCapTypes, LineJoinTypes, bool) override {}
    void AddArcToCurrentPath(Point const &center, double radiusX, double radiusY, double startAngle,
                             double endAngle) override;
    void AddArcToCurrentPath(Point const &center, Point const &xAxis, Point const &yAxis, double startAngle,
                             double endAngle) override;
    void AddLineToCurrentPath(Point const &p) override;
    void MoveToPointInCurrentPath(Point const &p) override;
    void AddCurveToCurrentPath(Point const &control1, Point const &control2, Point const &end) override;
    Point CurrentPointInPath() override { return Point(); }

    void Clear(Color const &) override {}
    void Translate(Point const &offset) override { this->offset = offset; }
    void Scale(Point const &) override {}
    void Fill(GradientPattern const &pattern, Polygons const &polygons) override;
    void Fill(GradientPattern const &pattern, Polygon const &polygon) override;
    void Fill(Color const &color, Polygons const &polygons) override;
    void Fill(Color const &color, Polygon const &polygon) override;
    void Stroke(Color const &color, double lineWidth, std::string const &style, Polygons const &polygons) override;
    void Stroke(Color const &color, double lineWidth, std::string const &style, Polygon const &polygon) override;
    void DrawRectangle(Color const &, Rect const &) override {}
    void FillEllipse(GradientPattern const &pattern, Rect const &rect) override;
    void FillEllipse(Color const &color, Rect const &rect) override;
    void FillPath(GradientPattern const &pattern, Path const &path) override;
    void FillPath(Color const &color, Path const &path) override;
    void StrokeEllipse(Color const &color, double lineWidth, std::string const &style, Rect const &rect) override;
    void StrokePath(Color const &color, double lineWidth, std::string const &style, Path const &path, LineCapTypes cap,
                    LineJoinTypes join, bool closePath) override;
    Polygon FlattenedPath() override;
    void DrawTextW(TextCalloutProperties const &, TextAttributeList const &, DrawOutputMetaData *) override {}
    void DrawTextSelection(TextCalloutProperties const &, TextAttributeList const &, Range const &, Color const &,
                           Color const &) override {}
    void DrawMisspelledRanges(TextCalloutProperties const &, TextAttributeList const &, std::vector<Range> const &,
                              Color const &) override {}
    void DrawLine(Point const &, Point const &, Color const &, float, bool) override {}
    void DrawPangoLayout(PangoLayout *) override {}
    void DrawPangoLayoutOutline(PangoLayout *) override {}
    void DrawPangoLayoutLine(PangoLayoutLine *) override {}
    void DrawPangoLayoutLineOutline(PangoLayoutLine *) override {}
    void SetLineSettings(Color const &, double, LineJoinTypes, LineCapTypes) override {}
    void Save() override {}
    void Restore() override {}
    void SetClip(Rect const &) override {}
    DrawingContext *CreateBlankClone() override { return nullptr; }
    void BlendWith(DrawingContext *, double) override {}
    void DrawBitmap(Bitmap const &, Rect const &, double) override {}
    void DrawBitmap(Bitmap const &, Point const &, double) override {}
    cairo_t *Get() override { return nullptr; }

private:
    void collect(Polygons const &list);
    Polygon ellipsePolygon(Rect const &rect);

    DrawingContext *pathContext; // flattens paths; never painted on
    Polygons polygons;
    Point offset;
};

} // namespace Vantrel
