// The abstract drawing surface. A callout describes itself once against this
// interface; painting, measuring and outlining are different implementations.
#pragma once

#include <vantrel/VantrelExport.h>
#include <vantrel/drawing/LineStyles.h>
#include <vantrel/values/Bitmap.h>
#include <vantrel/values/Color.h>
#include <vantrel/values/Polygon.h>
#include <vantrel/values/Range.h>
#include <vantrel/values/Rect.h>

#include <string>
#include <vector>

typedef struct _cairo cairo_t;
typedef struct _PangoLayout PangoLayout;
typedef struct _PangoLayoutLine PangoLayoutLine;

namespace Vantrel {

class Path;
class TextCalloutProperties;
class TextAttributeList;
struct DrawOutputMetaData;

// The operations that build and consume a current path.
class VANTREL_EXPORT PathDrawingContext {
public:
    virtual ~PathDrawingContext() = default;

    virtual void StartPath() = 0;
    virtual void FillCurrentPath(GradientPattern const &pattern) = 0;
    virtual void FillCurrentPath(Color const &color) = 0;
    // Style words: "", "solid", "dash", "dot", "dashdot", "dashdotdot"; any
    // other word keeps the dash the previous stroke left.
    virtual void StrokeCurrentPath(Color const &color, double lineWidth, std::string const &style, LineCapTypes cap,
                                   LineJoinTypes join, bool closePath) = 0;
    virtual void AddArcToCurrentPath(Point const &center, double radiusX, double radiusY, double startAngle,
                                     double endAngle) = 0;
    // An arc of the unit circle mapped by the frame (xAxis, yAxis) at center:
    // any ellipse arc, rotated or sheared. Angles are in that frame.
    virtual void AddArcToCurrentPath(Point const &center, Point const &xAxis, Point const &yAxis, double startAngle,
                                     double endAngle) = 0;
    // Without a current point this starts the path, as a move would.
    virtual void AddLineToCurrentPath(Point const &p) = 0;
    virtual void MoveToPointInCurrentPath(Point const &p) = 0;
    virtual void AddCurveToCurrentPath(Point const &control1, Point const &control2, Point const &end) = 0;
    virtual Point CurrentPointInPath() = 0;
};

// The whole surface: polygons, ellipses, paths, text, bitmaps and state.
class VANTREL_EXPORT DrawingContext : public PathDrawingContext {
public:
    // Replaces every pixel inside the clip, alpha included.
    virtual void Clear(Color const &color) = 0;
    virtual void Translate(Point const &offset) = 0;
    virtual void Scale(Point const &factors) = 0;
    // Polygons are filled with one orientation, so overlaps and inner
    // polygons fill solid: there are no holes. Polygons of fewer than three
    // points are skipped.
    virtual void Fill(GradientPattern const &pattern, Polygons const &polygons) = 0;
    virtual void Fill(GradientPattern const &pattern, Polygon const &polygon) = 0;
    virtual void Fill(Color const &color, Polygons const &polygons) = 0;
    virtual void Fill(Color const &color, Polygon const &polygon) = 0;
    virtual void Stroke(Color const &color, double lineWidth, std::string const &style, Polygons const &polygons) = 0;
    virtual void Stroke(Color const &color, double lineWidth, std::string const &style, Polygon const &polygon) = 0;
    // A one-unit outline, not a fill; it keeps whatever dash is in force.
    virtual void DrawRectangle(Color const &color, Rect const &rect) = 0;
    virtual void FillEllipse(GradientPattern const &pattern, Rect const &rect) = 0;
    virtual void FillEllipse(Color const &color, Rect const &rect) = 0;
    virtual void FillPath(GradientPattern const &pattern, Path const &path) = 0;
    virtual void FillPath(Color const &color, Path const &path) = 0;
    virtual void StrokeEllipse(Color const &color, double lineWidth, std::string const &style, Rect const &rect) = 0;
    virtual void StrokePath(Color const &color, double lineWidth, std::string const &style, Path const &path,
                            LineCapTypes cap, LineJoinTypes join, bool closePath) = 0;
    // The current path as one polygon of all its flattened points; the path stays.
    virtual Polygon FlattenedPath() = 0;
    virtual void DrawTextW(TextCalloutProperties const &properties, TextAttributeList const &attributes,
                           DrawOutputMetaData *metadata) = 0;
    virtual void DrawTextSelection(TextCalloutProperties const &properties, TextAttributeList const &attributes,
                                   Range const &selection, Color const &selectionColor, Color const &caretColor) = 0;
    virtual void DrawMisspelledRanges(TextCalloutProperties const &properties, TextAttributeList const &attributes,
                                      std::vector<Range> const &ranges, Color const &color) = 0;
    // Keeps whatever dash is in force.
    virtual void DrawLine(Point const &from, Point const &to, Color const &color, float width, bool roundCap) = 0;
    virtual void DrawPangoLayout(PangoLayout *layout) = 0;
    virtual void DrawPangoLayoutOutline(PangoLayout *layout) = 0;
    virtual void DrawPangoLayoutLine(PangoLayoutLine *line) = 0;
    virtual void DrawPangoLayoutLineOutline(PangoLayoutLine *line) = 0;
    virtual void SetLineSettings(Color const &color, double lineWidth, LineJoinTypes join, LineCapTypes cap) = 0;
    virtual void Save() = 0;
    virtual void Restore() = 0;
    // Intersects the clip with rect; only Restore widens it again.
    virtual void SetClip(Rect const &rect) = 0;
    // A new context of the same pixel size over a cleared Bitmap of its own;
    // the caller owns it.
    virtual DrawingContext *CreateBlankClone() = 0;
    // Paints other's pixels over this context's, the source scaled by alpha.
    virtual void BlendWith(DrawingContext *other, double alpha) = 0;
    virtual void DrawBitmap(Bitmap const &bitmap, Rect const &target, double alpha) = 0;
    virtual void DrawBitmap(Bitmap const &bitmap, Point const &topLeft, double alpha) = 0;
    // The cairo context behind the surface, borrowed; null where there is none.
    virtual cairo_t *Get() = 0;
};

} // namespace Vantrel
