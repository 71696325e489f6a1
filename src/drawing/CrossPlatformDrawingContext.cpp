#include "CrossPlatformDrawingContextImpl.h"

#include <algorithm>
#include <cmath>

namespace Vantrel {

namespace CairoUtil {

namespace {
double finiteOr0(double v) { return std::isfinite(v) ? v : 0.0; }
} // namespace

void setSourceColor(cairo_t *cr, Color const &c) {
    cairo_set_source_rgba(cr, finiteOr0(c.red), finiteOr0(c.green), finiteOr0(c.blue), finiteOr0(c.alpha));
}

cairo_pattern_t *createPattern(GradientPattern const &pattern) {
    cairo_pattern_t *p = cairo_pattern_create_linear(pattern.start.x, pattern.start.y, pattern.end.x, pattern.end.y);
    for (GradientStop const &s : pattern.stops)
        cairo_pattern_add_color_stop_rgba(p, finiteOr0(s.offset), finiteOr0(s.color.red), finiteOr0(s.color.green),
                                          finiteOr0(s.color.blue), finiteOr0(s.color.alpha));
    return p;
}

double safeWidth(double w) {
    if (!(w > 0.0))
        return 0.0; // negative and NaN
    return std::min(w, 1e7);
}

void applyStrokeStyle(cairo_t *cr, std::string const &style, double w) {
    w = safeWidth(w);
    if (style.empty() || style == "solid") {
        cairo_set_dash(cr, nullptr, 0, 0.0);
        return;
    }
    double const dash[] = {3 * w, 2 * w};
    double const dot[] = {1.0, 2 * w};
    double const dashdot[] = {3 * w, 2 * w, 1.0, 2 * w};
    double const dashdotdot[] = {3 * w, 2 * w, 1.0, 2 * w, 1.0, 2 * w};
    double const *pattern = nullptr;
    int count = 0;
    if (style == "dash") {
        pattern = dash;
        count = 2;
    } else if (style == "dot") {
        pattern = dot;
        count = 2;
    } else if (style == "dashdot") {
        pattern = dashdot;
        count = 4;
    } else if (style == "dashdotdot") {
        pattern = dashdotdot;
        count = 6;
    } else {
        return; // not a style word: the previous dash stays
    }
    // At width 0 a "dash" would be all zeros, which cairo rejects by putting the
    // whole context into an error state. Nothing of width 0 shows, so the line
    // is made continuous instead.
    if (w == 0.0)
        count = 0;
    cairo_set_dash(cr, pattern, count, 0.0);
}

bool keepsInvertible(cairo_t *cr, double det) {
    cairo_matrix_t ctm;
    cairo_get_matrix(cr, &ctm);
    double combined = (ctm.xx * ctm.yy - ctm.xy * ctm.yx) * det;
    return std::isfinite(combined) && combined != 0.0;
}

} // namespace CairoUtil

using namespace CairoUtil;

namespace {

double const kTwoPi = 6.283185307179586;

bool finite(Point const &p) { return std::isfinite(p.x) && std::isfinite(p.y); }

cairo_surface_t *surfaceFor(Bitmap *bitmap) {
    if (!bitmap)
        return cairo_recording_surface_create(CAIRO_CONTENT_COLOR_ALPHA, nullptr);
    if (!bitmap->bitmapData() || bitmap->width() <= 0 || bitmap->height() <= 0)
        return cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 0, 0);
    return cairo_image_surface_create_for_data(static_cast<unsigned char *>(bitmap->bitmapData()), CAIRO_FORMAT_ARGB32,
                                               bitmap->width(), bitmap->height(), bitmap->bytesPerRow());
}

// Adds every polygon with at least 3 points as a closed subpath, all brought
// to one orientation so that the winding rule fills overlaps once and never
// makes a hole. Returns false, touching nothing, for an empty list.
bool setPolygonsAsPath(cairo_t *cr, Polygons const &polygons) {
    if (polygons.polygons.empty())
        return false;
    cairo_new_path(cr);
    for (auto const &shared : polygons.polygons) {
        if (!shared || shared->points.size() < 3)
            continue;
        Polygon p = shared->PositivelyOriented();
        cairo_move_to(cr, p.points[0].x, p.points[0].y);
        for (size_t i = 1; i < p.points.size(); ++i)
            cairo_line_to(cr, p.points[i].x, p.points[i].y);
        cairo_close_path(cr);
    }
    return true;
}

bool singleShortPolygon(Polygons const &polygons) {
    return polygons.polygons.size() == 1 && (!polygons.polygons[0] || polygons.polygons[0]->points.size() < 3);
}

Polygons single(Polygon const &polygon) {
    Polygons list;
    list.Add(polygon);
    return list;
}

// The unit circle under the ellipse's scale. A rect without area, or one so
// large that the scale overflows, would need a transform cairo refuses, so
// such an ellipse adds nothing.
void addEllipse(cairo_t *cr, Rect const &rect) {
    double w = rect.Width(), h = rect.Height();
    if (!std::isfinite(rect.Left() + w * 0.5) || !std::isfinite(rect.Top() + h * 0.5) ||
        !keepsInvertible(cr, w * 0.5 * h * 0.5))
        return;
    cairo_save(cr);
    cairo_translate(cr, rect.Left() + w * 0.5, rect.Top() + h * 0.5);
    cairo_scale(cr, w * 0.5, h * 0.5);
    cairo_arc(cr, 0.0, 0.0, 1.0, 0.0, kTwoPi);
    cairo_restore(cr);
}

} // namespace

CrossPlatformDrawingContext::CrossPlatformDrawingContext(Bitmap *bitmap) : impl(new Impl) {
    impl->bitmap = bitmap;
    impl->surface = surfaceFor(bitmap);
    impl->cr = cairo_create(impl->surface);
    cairo_set_miter_limit(impl->cr, 1.0 / std::sin(0.008726646259971648));
}

CrossPlatformDrawingContext::~CrossPlatformDrawingContext() {
    cairo_surface_destroy(impl->surface);
    cairo_destroy(impl->cr);
    delete impl;
}

Bitmap *CrossPlatformDrawingContext::bitmap() const { return impl->bitmap; }

cairo_t *CrossPlatformDrawingContext::Get() { return impl->cr; }

void CrossPlatformDrawingContext::StartPath() { cairo_new_path(impl->cr); }

void CrossPlatformDrawingContext::FillCurrentPath(GradientPattern const &pattern) {
    cairo_pattern_t *p = createPattern(pattern);
    cairo_set_source(impl->cr, p);
    cairo_fill(impl->cr);
    cairo_pattern_destroy(p);
}

void CrossPlatformDrawingContext::FillCurrentPath(Color const &color) {
    setSourceColor(impl->cr, color);
    cairo_fill(impl->cr);
}

void CrossPlatformDrawingContext::StrokeCurrentPath(Color const &color, double lineWidth, std::string const &style,
                                                    LineCapTypes cap, LineJoinTypes join, bool closePath) {
    cairo_t *cr = impl->cr;
    if (closePath)
        cairo_close_path(cr);
    applyStrokeStyle(cr, style, lineWidth);
    setSourceColor(cr, color);
    cairo_set_line_width(cr, safeWidth(lineWidth));
    cairo_set_line_cap(cr, cairo_line_cap_t(cap));
    cairo_set_line_join(cr, cairo_line_join_t(join));
    cairo_stroke(cr);
}

void CrossPlatformDrawingContext::AddArcToCurrentPath(Point const &center, double radiusX, double radiusY,
                                                      double startAngle, double endAngle) {
    AddArcToCurrentPath(center, Point(radiusX, 0), Point(0, radiusY), startAngle, endAngle);
}

void CrossPlatformDrawingContext::AddArcToCurrentPath(Point const &center, Point const &xAxis, Point const &yAxis,
                                                      double startAngle, double endAngle) {
    cairo_t *cr = impl->cr;
    if (!finite(center) || !finite(xAxis) || !finite(yAxis) || !std::isfinite(startAngle) || !std::isfinite(endAngle))
        return; // a non-finite arc adds nothing
    // cairo turns an end below the start into the next turn; beyond two turns
    // the arc looks the same but costs a segment run per turn, so the sweep is
    // cut to under two turns with the same end point.
    if (endAngle - startAngle > 2 * kTwoPi)
        endAngle = startAngle + kTwoPi + std::fmod(endAngle - startAngle, kTwoPi);
    if (!keepsInvertible(cr, xAxis ^ yAxis)) {
        // The ellipse has collapsed to a segment or a point. cairo would refuse
        // the singular transform (and stop drawing altogether), so the arc is
        // traced by its mapped points instead.
        double sweep = endAngle - startAngle;
        if (sweep < 0)
            sweep = std::fmod(sweep, kTwoPi) + kTwoPi;
        int n = std::max(1, int(std::ceil(sweep / (M_PI / 16))));
        for (int i = 0; i <= n; ++i) {
            Point u = Point::FromAngle(startAngle + sweep * i / n);
            Point q = center + xAxis * u.x + yAxis * u.y;
            if (i == 0 && !cairo_has_current_point(cr))
                cairo_move_to(cr, q.x, q.y);
            else
                cairo_line_to(cr, q.x, q.y);
        }
        return;
    }
    cairo_save(cr);
    cairo_matrix_t frame;
    cairo_matrix_init(&frame, xAxis.x, xAxis.y, yAxis.x, yAxis.y, center.x, center.y);
    cairo_transform(cr, &frame);
    cairo_arc(cr, 0.0, 0.0, 1.0, startAngle, endAngle);
    cairo_restore(cr);
}

void CrossPlatformDrawingContext::AddLineToCurrentPath(Point const &p) { cairo_line_to(impl->cr, p.x, p.y); }

void CrossPlatformDrawingContext::MoveToPointInCurrentPath(Point const &p) { cairo_move_to(impl->cr, p.x, p.y); }

void CrossPlatformDrawingContext::AddCurveToCurrentPath(Point const &c1, Point const &c2, Point const &end) {
    cairo_curve_to(impl->cr, c1.x, c1.y, c2.x, c2.y, end.x, end.y);
}

Point CrossPlatformDrawingContext::CurrentPointInPath() {
    if (!cairo_has_current_point(impl->cr))
        return Point();
    Point p;
    cairo_get_current_point(impl->cr, &p.x, &p.y);
    return p;
}

void CrossPlatformDrawingContext::Clear(Color const &color) {
    cairo_t *cr = impl->cr;
    cairo_save(cr);
    setSourceColor(cr, color);
    cairo_set_operator(cr, CAIRO_OPERATOR_SOURCE);
    cairo_paint(cr);
    cairo_restore(cr);
}

// A non-finite or singular transform would leave cairo in an error state
// for the rest of the context's life, so such calls are ignored.
void CrossPlatformDrawingContext::Translate(Point const &offset) {
    if (finite(offset))
        cairo_translate(impl->cr, offset.x, offset.y);
}

void CrossPlatformDrawingContext::Scale(Point const &factors) {
    if (finite(factors) && keepsInvertible(impl->cr, factors.x * factors.y))
        cairo_scale(impl->cr, factors.x, factors.y);
}

void CrossPlatformDrawingContext::Fill(GradientPattern const &pattern, Polygons const &polygons) {
    if (singleShortPolygon(polygons) || !setPolygonsAsPath(impl->cr, polygons))
        return;
    cairo_pattern_t *p = createPattern(pattern);
    cairo_set_source(impl->cr, p);
    cairo_fill(impl->cr);
    cairo_pattern_destroy(p);
}

void CrossPlatformDrawingContext::Fill(GradientPattern const &pattern, Polygon const &polygon) {
    Fill(pattern, single(polygon));
}

void CrossPlatformDrawingContext::Fill(Color const &color, Polygons const &polygons) {
    if (singleShortPolygon(polygons) || !setPolygonsAsPath(impl->cr, polygons))
        return;
    setSourceColor(impl->cr, color);
    cairo_fill(impl->cr);
}

void CrossPlatformDrawingContext::Fill(Color const &color, Polygon const &polygon) { Fill(color, single(polygon)); }

void CrossPlatformDrawingContext::Stroke(Color const &color, double lineWidth, std::string const &style,
                                         Polygons const &polygons) {
    cairo_t *cr = impl->cr;
    if (!setPolygonsAsPath(cr, polygons))
        return;
    applyStrokeStyle(cr, style, lineWidth);
    setSourceColor(cr, color);
    cairo_set_line_width(cr, safeWidth(lineWidth));
    // Every contour is closed, so the cap shows only at the ends of dashes.
    cairo_set_line_cap(cr, CAIRO_LINE_CAP_SQUARE);
    cairo_stroke(cr);
}

void CrossPlatformDrawingContext::Stroke(Color const &color, double lineWidth, std::string const &style,
                                         Polygon const &polygon) {
    Stroke(color, lineWidth, style, single(polygon));
}

void CrossPlatformDrawingContext::DrawRectangle(Color const &color, Rect const &rect) {
    cairo_t *cr = impl->cr;
    cairo_set_line_width(cr, 1.0);
    cairo_new_path(cr);
    setSourceColor(cr, color);
    cairo_rectangle(cr, rect.Left(), rect.Top(), rect.Width(), rect.Height());
    cairo_stroke(cr);
}

void CrossPlatformDrawingContext::FillEllipse(GradientPattern const &pattern, Rect const &rect) {
    cairo_t *cr = impl->cr;
    // The source is set before the ellipse's own scale, so the gradient stays in user space.
    cairo_pattern_t *p = createPattern(pattern);
    cairo_set_source(cr, p);
    cairo_new_path(cr);
    addEllipse(cr, rect);
    cairo_fill(cr);
    cairo_pattern_destroy(p);
}

void CrossPlatformDrawingContext::FillEllipse(Color const &color, Rect const &rect) {
    cairo_t *cr = impl->cr;
    setSourceColor(cr, color);
    cairo_new_path(cr);
    addEllipse(cr, rect);
    cairo_fill(cr);
}

void CrossPlatformDrawingContext::StrokeEllipse(Color const &color, double lineWidth, std::string const &style,
                                                Rect const &rect) {
    cairo_t *cr = impl->cr;
    setSourceColor(cr, color);
    // No new path here: whatever is pending is stroked along with the ellipse.
    addEllipse(cr, rect);
    cairo_set_line_width(cr, safeWidth(lineWidth));
    applyStrokeStyle(cr, style, lineWidth);
    cairo_stroke(cr);
}

Polygon CrossPlatformDrawingContext::FlattenedPath() {
    Polygon result;
    cairo_path_t *path = cairo_copy_path_flat(impl->cr);
    for (int i = 0; i < path->num_data; i += path->data[i].header.length) {
        cairo_path_data_t const &d = path->data[i];
        if (d.header.type == CAIRO_PATH_MOVE_TO || d.header.type == CAIRO_PATH_LINE_TO)
            result.points.emplace_back(path->data[i + 1].point.x, path->data[i + 1].point.y);
    }
    cairo_path_destroy(path);
    return result;
}

void CrossPlatformDrawingContext::DrawLine(Point const &from, Point const &to, Color const &color, float width,
                                           bool roundCap) {
    cairo_t *cr = impl->cr;
    setSourceColor(cr, color);
    cairo_set_line_cap(cr, roundCap ? CAIRO_LINE_CAP_ROUND : CAIRO_LINE_CAP_BUTT);
    cairo_set_line_width(cr, safeWidth(width));
    cairo_new_path(cr);
    cairo_move_to(cr, from.x, from.y);
    cairo_line_to(cr, to.x, to.y);
    cairo_stroke(cr);
}

void CrossPlatformDrawingContext::SetLineSettings(Color const &color, double lineWidth, LineJoinTypes join,
                                                  LineCapTypes cap) {
    cairo_t *cr = impl->cr;
    cairo_set_line_width(cr, safeWidth(lineWidth));
    cairo_set_line_join(cr, cairo_line_join_t(join));
    cairo_set_line_cap(cr, cairo_line_cap_t(cap));
    setSourceColor(cr, color);
}

void CrossPlatformDrawingContext::Save() { cairo_save(impl->cr); }

void CrossPlatformDrawingContext::Restore() { cairo_restore(impl->cr); }

void CrossPlatformDrawingContext::SetClip(Rect const &rect) {
    cairo_rectangle(impl->cr, rect.Left(), rect.Top(), rect.Width(), rect.Height());
    cairo_clip(impl->cr);
}

DrawingContext *CrossPlatformDrawingContext::CreateBlankClone() {
    PointInt size = impl->bitmap ? impl->bitmap->size() : PointInt(0, 0);
    auto *clone = new CrossPlatformDrawingContextWithBuiltInBitmap(size.x, size.y);
    clone->builtInBitmap()->clear();
    return clone;
}

void CrossPlatformDrawingContext::BlendWith(DrawingContext *other, double alpha) {
    auto *source = dynamic_cast<CrossPlatformDrawingContext *>(other);
    if (!source || !impl->bitmap || !source->impl->bitmap)
        return;
    Bitmap &dst = *impl->bitmap;
    Bitmap const &src = *source->impl->bitmap;
    if (!dst.bitmapData() || !src.bitmapData())
        return;
    // cairo may hold drawing back; the buffers are read and written directly.
    cairo_surface_flush(impl->surface);
    cairo_surface_flush(source->impl->surface);
    int width = std::min(dst.width(), src.width());
    int height = std::min(dst.height(), src.height());
    for (int y = 0; y < height; ++y) {
        uint8_t *d = dst.bufAt(0, y);
        uint8_t const *s = src.bufAt(0, y);
        for (int x = 0; x < width; ++x, d += 4, s += 4) {
            if (s[3] == 0)
                continue;
            double k = 1.0 - s[3] / 255.0;
            for (int c = 0; c < 4; ++c)
                d[c] = uint8_t(std::lround(s[c] * alpha + d[c] * k) & 0xFF);
        }
    }
    cairo_surface_mark_dirty(impl->surface);
}

namespace {

// The Bitmap's pixels as a cairo surface, without a copy; null when it has none.
cairo_surface_t *wrap(Bitmap const &bitmap) {
    if (!bitmap.bitmapData() || bitmap.width() <= 0 || bitmap.height() <= 0)
        return nullptr;
    return cairo_image_surface_create_for_data(static_cast<unsigned char *>(bitmap.bitmapData()), CAIRO_FORMAT_ARGB32,
                                               bitmap.width(), bitmap.height(), bitmap.bytesPerRow());
}

} // namespace

void CrossPlatformDrawingContext::DrawBitmap(Bitmap const &bitmap, Rect const &target, double alpha) {
    Point scale = target.Size().DividedBy(Point(bitmap.width(), bitmap.height()));
    if (!finite(scale) || !finite(target.topLeft) || !keepsInvertible(impl->cr, scale.x * scale.y))
        return; // a target without area shows nothing
    cairo_surface_t *source = wrap(bitmap);
    if (!source)
        return;
    cairo_t *cr = impl->cr;
    cairo_save(cr);
    cairo_translate(cr, target.Left(), target.Top());
    cairo_scale(cr, scale.x, scale.y);
    cairo_set_source_surface(cr, source, 0.0, 0.0);
    cairo_paint_with_alpha(cr, alpha);
    cairo_restore(cr);
    cairo_surface_destroy(source);
}

void CrossPlatformDrawingContext::DrawBitmap(Bitmap const &bitmap, Point const &topLeft, double alpha) {
    cairo_surface_t *source = wrap(bitmap);
    if (!source)
        return;
    cairo_t *cr = impl->cr;
    cairo_save(cr);
    cairo_set_source_surface(cr, source, topLeft.x, topLeft.y);
    cairo_paint_with_alpha(cr, alpha);
    cairo_restore(cr);
    cairo_surface_destroy(source);
}

Rect CrossPlatformDrawingContext::InkExtents() {
    if (impl->bitmap || cairo_surface_get_type(impl->surface) != CAIRO_SURFACE_TYPE_RECORDING)
        return Rect();
    double x = 0, y = 0, w = 0, h = 0;
    cairo_recording_surface_ink_extents(impl->surface, &x, &y, &w, &h);
    return Rect(x, y, x + w, y + h);
}

CrossPlatformDrawingContextWithBuiltInBitmap::CrossPlatformDrawingContextWithBuiltInBitmap(int width, int height)
    : CrossPlatformDrawingContextWithBuiltInBitmap(boost::shared_ptr<Bitmap>(new Bitmap(width, height))) {}

CrossPlatformDrawingContextWithBuiltInBitmap::CrossPlatformDrawingContextWithBuiltInBitmap(
    boost::shared_ptr<Bitmap> bitmap)
    : CrossPlatformDrawingContext(bitmap.get()), mBitmap(bitmap) {}

} // namespace Vantrel
