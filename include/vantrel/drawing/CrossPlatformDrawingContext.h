// The cairo implementation of DrawingContext: pixels over a Bitmap, or an
// unbounded recording surface that measures ink.
#pragma once

#include <vantrel/VantrelExport.h>
#include <vantrel/drawing/DrawingContext.h>

#include <boost/shared_ptr.hpp>

typedef struct _cairo_surface cairo_surface_t;

namespace Vantrel {

// Over a Bitmap, cairo draws straight into the Bitmap's buffer: no copy, no
// flush. With a null Bitmap the context records into an unbounded recording
// surface, whose ink InkExtents() reports.
//
// The miter limit is 1/sin(0.5 degrees), so miter joins stay sharp down to a
// 1 degree corner. Fill rule, tolerance and operator stay cairo's defaults.
//
// Defined results where the host's input leaves the cairo contract:
// - a Bitmap without data, or of zero size, gives a 0 by 0 surface on which
//   every drawing operation does nothing;
// - a Bitmap whose bytesPerRow cairo cannot use (not a multiple of 4, or
//   shorter than a row) gives a surface in cairo's error state, which ignores
//   every call;
// - coordinates beyond cairo's fixed-point range (about 8 million device
//   units) cannot be drawn faithfully: arcs and curves reaching there are
//   traced as lines, and a dash that would need more than a million dashes
//   along one stroke is drawn continuous, so that drawing stays bounded in
//   time rather than exact;
// - a path that reaches farther than 4 million device units from the
//   origin is a far path: its pixels are cairo's (whose coordinates wrap
//   there) and it is stroked without its dash, whose cost would grow with the
//   distance. A recording context does not record a far path: it counts the
//   path's box, grown by the stroke's reach (half the width times the miter
//   limit), as ink, so that InkExtents and so every callout's boundingRect
//   hold the ink, generously, wherever cairo cannot measure it;
// - a recording context measures a dash exactly up to 10,000 dashes along one
//   stroke; beyond, the stroke counts as continuous, whose ink holds the
//   dashes' but for a cap that a dash may put beyond a sharp corner, at most
//   the stroke's width away (the bounds of a dotted outline a million pixels
//   round cost no more than those of a solid one).
class VANTREL_EXPORT CrossPlatformDrawingContext : public DrawingContext {
public:
    explicit CrossPlatformDrawingContext(Bitmap *bitmap);
    ~CrossPlatformDrawingContext() override;
    CrossPlatformDrawingContext(CrossPlatformDrawingContext const &) = delete;
    CrossPlatformDrawingContext &operator=(CrossPlatformDrawingContext const &) = delete;

    void StartPath() override;
    void FillCurrentPath(GradientPattern const &pattern) override;
    void FillCurrentPath(Color const &color) override;
    void StrokeCurrentPath(Color const &color, double lineWidth, std::string const &style, LineCapTypes cap,
                           LineJoinTypes join, bool closePath) override;
    void AddArcToCurrentPath(Point const &center, double radiusX, double radiusY, double startAngle,
                             double endAngle) override;
    void AddArcToCurrentPath(Point const &center, Point const &xAxis, Point const &yAxis, double startAngle,
                             double endAngle) override;
    void AddLineToCurrentPath(Point const &p) override;
    void MoveToPointInCurrentPath(Point const &p) override;
    void AddCurveToCurrentPath(Point const &control1, Point const &control2, Point const &end) override;
    Point CurrentPointInPath() override;

    void Clear(Color const &color) override;
    void Translate(Point const &offset) override;
    void Scale(Point const &factors) override;
    void Fill(GradientPattern const &pattern, Polygons const &polygons) override;
    void Fill(GradientPattern const &pattern, Polygon const &polygon) override;
    void Fill(Color const &color, Polygons const &polygons) override;
    void Fill(Color const &color, Polygon const &polygon) override;
    void Stroke(Color const &color, double lineWidth, std::string const &style, Polygons const &polygons) override;
    void Stroke(Color const &color, double lineWidth, std::string const &style, Polygon const &polygon) override;
    void DrawRectangle(Color const &color, Rect const &rect) override;
    void FillEllipse(GradientPattern const &pattern, Rect const &rect) override;
    void FillEllipse(Color const &color, Rect const &rect) override;
    void FillPath(GradientPattern const &pattern, Path const &path) override;
    void FillPath(Color const &color, Path const &path) override;
    void StrokeEllipse(Color const &color, double lineWidth, std::string const &style, Rect const &rect) override;
    void StrokePath(Color const &color, double lineWidth, std::string const &style, Path const &path, LineCapTypes cap,
                    LineJoinTypes join, bool closePath) override;
    Polygon FlattenedPath() override;
    void DrawTextW(TextCalloutProperties const &properties, TextAttributeList const &attributes,
                   DrawOutputMetaData *metadata) override;
    void DrawTextSelection(TextCalloutProperties const &properties, TextAttributeList const &attributes,
                           Range const &selection, Color const &selectionColor, Color const &caretColor) override;
    void DrawMisspelledRanges(TextCalloutProperties const &properties, TextAttributeList const &attributes,
                              std::vector<Range> const &ranges, Color const &color) override;
    void DrawLine(Point const &from, Point const &to, Color const &color, float width, bool roundCap) override;
    void DrawPangoLayout(PangoLayout *layout) override;
    void DrawPangoLayoutOutline(PangoLayout *layout) override;
    void DrawPangoLayoutLine(PangoLayoutLine *line) override;
    void DrawPangoLayoutLineOutline(PangoLayoutLine *line) override;
    void SetLineSettings(Color const &color, double lineWidth, LineJoinTypes join, LineCapTypes cap) override;
    void Save() override;
    void Restore() override;
    void SetClip(Rect const &rect) override;
    // On a recording context, which has no pixels, this gives a context over
    // an empty 0 by 0 Bitmap: safe to draw on, and blending it does nothing.
    DrawingContext *CreateBlankClone() override;
    // Works on the two pixel buffers directly, over the pixels both have; a
    // context without a Bitmap on either side, or an other that is not a
    // CrossPlatformDrawingContext, leaves this one unchanged.
    void BlendWith(DrawingContext *other, double alpha) override;
    // A Bitmap without data or pixels draws nothing.
    void DrawBitmap(Bitmap const &bitmap, Rect const &target, double alpha) override;
    void DrawBitmap(Bitmap const &bitmap, Point const &topLeft, double alpha) override;
    cairo_t *Get() override;

    // The ink recorded so far, as (x, y, x + width, y + height). Only a
    // recording context measures: over a Bitmap the result is an all-zero Rect.
    virtual Rect InkExtents();

    // The Bitmap drawn into; null for a recording context.
    Bitmap *bitmap() const;

    // Adds a folder to search for font files after the system's, listed flat
    // (not its subfolders). Any thread may add one at any time; it serves the
    // families searched for after it, on every thread. A family that was
    // searched for and not found is not searched for again, so add folders
    // before drawing text that needs them.
    static void addFontSearchFolder(std::string const &folder);

    // Text queries. Pixel width and height of the text at full size.
    static Point calculateDrawingDimensions(TextCalloutProperties const &properties,
                                            TextAttributeList const &attributes);
    // The scale in (0, 1] at which the text fits its box: 1 when it fits, or
    // when resizeBehavior is not "resizeText"; found by eight rounds of
    // bisection otherwise.
    static double calculateDrawingFontScale(TextCalloutProperties const &properties,
                                            TextAttributeList const &attributes);
    // A copy with every listed font size and letter spacing multiplied by
    // scale and floored, in pango units.
    static TextAttributeList textAttributeListByApplyingFontScale(TextAttributeList const &attributes, double scale);

    struct Impl;

protected:
    Impl *impl;
};

// A context that owns the Bitmap it draws into. The pixels start
// uninitialised: clear them before drawing if the background matters.
class VANTREL_EXPORT CrossPlatformDrawingContextWithBuiltInBitmap : public CrossPlatformDrawingContext {
public:
    CrossPlatformDrawingContextWithBuiltInBitmap(int width, int height);

    boost::shared_ptr<Bitmap> builtInBitmap() const { return mBitmap; }

private:
    explicit CrossPlatformDrawingContextWithBuiltInBitmap(boost::shared_ptr<Bitmap> bitmap);
    boost::shared_ptr<Bitmap> mBitmap;
};

} // namespace Vantrel
