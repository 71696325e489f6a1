#include "drawing/CrossPlatformDrawingContextImpl.h"
#include "values/Pi.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace Vantrel {

namespace {
double const kInfinity = std::numeric_limits<double>::infinity();
// Within this many device units of the origin cairo's coordinates are
// exact enough; beyond, a path is far (half of where they wrap).
double const kTrustedDeviceExtent = 4e6;
cairo_user_data_key_t const kPathStateKey = {0};
} // namespace

void PathReach::clear() {
    left = top = kInfinity;
    right = bottom = -kInfinity;
}

void PathReach::add(double x, double y) {
    left = std::fmin(left, x);
    top = std::fmin(top, y);
    right = std::fmax(right, x);
    bottom = std::fmax(bottom, y);
}

bool PathReach::far() const {
    return !empty() && !(left >= -kTrustedDeviceExtent && right <= kTrustedDeviceExtent &&
                         top >= -kTrustedDeviceExtent && bottom <= kTrustedDeviceExtent);
}

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

PathState *pathState(cairo_t *cr) { return static_cast<PathState *>(cairo_get_user_data(cr, &kPathStateKey)); }

namespace {
void noteUserPoint(cairo_t *cr, double x, double y) {
    if (PathState *state = pathState(cr)) {
        cairo_user_to_device(cr, &x, &y);
        state->reach.add(x, y);
    }
}
} // namespace

void moveTo(cairo_t *cr, double x, double y) {
    noteUserPoint(cr, x, y);
    cairo_move_to(cr, x, y);
}

void lineTo(cairo_t *cr, double x, double y) {
    noteUserPoint(cr, x, y);
    cairo_line_to(cr, x, y);
}

void newPath(cairo_t *cr) {
    if (PathState *state = pathState(cr))
        state->reach.clear();
    cairo_new_path(cr);
}

void noteUserBox(cairo_t *cr, double x0, double y0, double x1, double y1) {
    noteUserPoint(cr, x0, y0);
    noteUserPoint(cr, x1, y0);
    noteUserPoint(cr, x1, y1);
    noteUserPoint(cr, x0, y1);
}

double strokeReach(cairo_t *cr) {
    double const half = cairo_get_line_width(cr) * 0.5;
    double x = half, y = 0; // the width is in user space
    cairo_user_to_device_distance(cr, &x, &y);
    double x2 = 0, y2 = half;
    cairo_user_to_device_distance(cr, &x2, &y2);
    return std::fmax(std::hypot(x, y), std::hypot(x2, y2)) * std::fmax(cairo_get_miter_limit(cr), std::sqrt(2.0));
}

bool beginPaint(cairo_t *cr, double reach) {
    PathState *state = pathState(cr);
    if (!state)
        return true;
    bool const far = state->reach.far();
    if (far && state->measuring) {
        PathReach const &r = state->reach;
        double const grow = std::isfinite(reach) ? reach : 0.0;
        state->farInk.add(r.left - grow, r.top - grow);
        state->farInk.add(r.right + grow, r.bottom + grow);
        state->reach.clear();
        cairo_new_path(cr);
        return false;
    }
    state->reach.clear();
    return true;
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

double const kTwoPi = 2 * kPi;

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
    newPath(cr);
    for (auto const &shared : polygons.polygons) {
        if (!shared || shared->points.size() < 3)
            continue;
        // A polygon counts as that of its finite vertices, as in the union:
        // cairo is never handed a coordinate that is not a number.
        Polygon p = shared->PositivelyOriented();
        size_t drawn = 0;
        for (Point const &q : p.points)
            if (finite(q)) {
                (drawn++ ? lineTo : moveTo)(cr, q.x, q.y);
            }
        if (drawn)
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

// cairo keeps path coordinates in 24.8 fixed point. Beyond about 8.4 million
// device units they wrap around, and a curve through such points flattens
// into millions of segments. Arcs and curves reaching past this extent are
// traced as lines instead, with a bounded number of segments.
double const kSafeDeviceExtent = 4e6;
int const kSegmentsPerTurn = Polygon::kMaxSegmentsPerTurn;

bool withinSafeExtent(cairo_t *cr, Point p) {
    cairo_user_to_device(cr, &p.x, &p.y);
    return std::fabs(p.x) <= kSafeDeviceExtent && std::fabs(p.y) <= kSafeDeviceExtent;
}

double deviceLength(cairo_t *cr, Point v) {
    cairo_user_to_device_distance(cr, &v.x, &v.y);
    return v.Length();
}

// More dashes than this along one stroke is far beyond any visible length,
// and cairo's time grows with the count.
double const kMaxDashesPerStroke = 1e6;

double flattenedLength(cairo_t *cr) {
    cairo_path_t *path = cairo_copy_path_flat(cr);
    double length = 0.0;
    Point last, first;
    for (int i = 0; i < path->num_data; i += path->data[i].header.length) {
        cairo_path_data_t const &d = path->data[i];
        if (d.header.type == CAIRO_PATH_CLOSE_PATH) {
            length += (first - last).Length();
            last = first;
            continue;
        }
        Point p(path->data[i + 1].point.x, path->data[i + 1].point.y);
        if (d.header.type == CAIRO_PATH_MOVE_TO)
            first = p;
        else
            length += (p - last).Length();
        last = p;
    }
    cairo_path_destroy(path);
    return length;
}

// A measuring context measures dashes exactly up to this many along one
// stroke; a longer rhythm is measured continuous, whose ink holds the dashes'
// but for the caps a dash may put beyond a sharp corner.
double const kMaxMeasuredDashes = 1e4;

// cairo_stroke, bounded in time. A dash is left out for this one stroke (and
// stays in force afterwards) when it would need more than
// kMaxDashesPerStroke dashes along the path, or kMaxMeasuredDashes in a
// measuring context, and when the path reaches where cairo's coordinates
// wrap: cairo's dash then walks a path that is not the one given, at a cost
// that grows with the distance. A far path is not stroked at all in a
// measuring context (beginPaint).
void strokeBounded(cairo_t *cr) {
    PathState const *state = pathState(cr);
    bool const far = state && state->reach.far();
    bool const measuring = state && state->measuring;
    if (!beginPaint(cr, strokeReach(cr)))
        return;
    int count = cairo_get_dash_count(cr);
    if (count > 0) {
        std::vector<double> dashes(count);
        double offset = 0.0;
        cairo_get_dash(cr, dashes.data(), &offset);
        double period = 0.0;
        for (double d : dashes)
            period += d;
        if (count % 2)
            period *= 2; // an odd count alternates on and off over two rounds
        double const budget = measuring ? kMaxMeasuredDashes : kMaxDashesPerStroke;
        if (far || !(flattenedLength(cr) / period <= budget)) {
            cairo_set_dash(cr, nullptr, 0, 0.0);
            cairo_stroke(cr);
            cairo_set_dash(cr, dashes.data(), count, offset);
            return;
        }
    }
    cairo_stroke(cr);
}

void lineOrMove(cairo_t *cr, Point const &p, bool first) {
    if (first && !cairo_has_current_point(cr))
        moveTo(cr, p.x, p.y);
    else
        lineTo(cr, p.x, p.y);
}

// The arc of the unit circle from start over sweep (>= 0), mapped by the
// frame, as segments lines.
void traceArc(cairo_t *cr, Point const &center, Point const &xAxis, Point const &yAxis, double start, double sweep,
              int segments) {
    for (int i = 0; i <= segments; ++i) {
        Point u = Point::FromAngle(start + sweep * i / segments);
        lineOrMove(cr, center + xAxis * u.x + yAxis * u.y, i == 0);
    }
}

// An arc of any ellipse: the unit circle under the frame (xAxis, yAxis) at
// center, joined to the current point by a line as cairo_arc does.
void addArc(cairo_t *cr, Point const &center, Point const &xAxis, Point const &yAxis, double startAngle,
            double endAngle) {
    if (!finite(center) || !finite(xAxis) || !finite(yAxis) || !std::isfinite(startAngle) || !std::isfinite(endAngle))
        return; // a non-finite arc adds nothing
    // cairo turns an end below the start into the next turn; past two turns
    // an arc looks the same but costs a segment run per turn, so the sweep is
    // cut to under two turns with the same end point.
    if (endAngle - startAngle > 2 * kTwoPi)
        endAngle = startAngle + kTwoPi + std::fmod(endAngle - startAngle, kTwoPi);
    bool singular = !keepsInvertible(cr, xAxis ^ yAxis);
    double reach = deviceLength(cr, xAxis) + deviceLength(cr, yAxis);
    bool huge = !(reach <= kSafeDeviceExtent) || !withinSafeExtent(cr, center);
    if (singular || huge) {
        // cairo would refuse a collapsed frame (and stop drawing altogether) or
        // drown in segments on a huge one: trace the arc's mapped points.
        double sweep = endAngle - startAngle;
        if (sweep < 0)
            sweep = std::fmod(sweep, kTwoPi) + kTwoPi;
        int segments = std::max(1, int(std::ceil(sweep / kTwoPi * (singular ? 32 : kSegmentsPerTurn))));
        traceArc(cr, center, xAxis, yAxis, startAngle, sweep, segments);
        return;
    }
    // The box of the whole ellipse holds the arc.
    double const rx = std::fabs(xAxis.x) + std::fabs(yAxis.x), ry = std::fabs(xAxis.y) + std::fabs(yAxis.y);
    noteUserBox(cr, center.x - rx, center.y - ry, center.x + rx, center.y + ry);
    cairo_save(cr);
    cairo_matrix_t frame;
    cairo_matrix_init(&frame, xAxis.x, xAxis.y, yAxis.x, yAxis.y, center.x, center.y);
    cairo_transform(cr, &frame);
    cairo_arc(cr, 0.0, 0.0, 1.0, startAngle, endAngle);
    cairo_restore(cr);
}

// The ellipse inscribed in rect: the unit circle under its half sizes. One
// without area has no outline and adds nothing.
void addEllipse(cairo_t *cr, Rect const &rect) {
    double w = rect.Width(), h = rect.Height();
    if (w == 0.0 || h == 0.0)
        return;
    addArc(cr, Point(rect.Left() + w * 0.5, rect.Top() + h * 0.5), Point(w * 0.5, 0), Point(0, h * 0.5), 0.0, kTwoPi);
}

} // namespace

CrossPlatformDrawingContext::CrossPlatformDrawingContext(Bitmap *bitmap) : impl(new Impl) {
    impl->bitmap = bitmap;
    impl->surface = surfaceFor(bitmap);
    impl->cr = cairo_create(impl->surface);
    impl->paths.measuring = !bitmap;
    cairo_set_user_data(impl->cr, &kPathStateKey, &impl->paths, nullptr);
    cairo_set_miter_limit(impl->cr, 1.0 / std::sin(0.008726646259971648));
}

CrossPlatformDrawingContext::~CrossPlatformDrawingContext() {
    cairo_surface_destroy(impl->surface);
    cairo_destroy(impl->cr);
    delete impl;
}

Bitmap *CrossPlatformDrawingContext::bitmap() const { return impl->bitmap; }

cairo_t *CrossPlatformDrawingContext::Get() { return impl->cr; }

void CrossPlatformDrawingContext::StartPath() { newPath(impl->cr); }

void CrossPlatformDrawingContext::FillCurrentPath(GradientPattern const &pattern) {
    if (!beginPaint(impl->cr, 0))
        return;
    cairo_pattern_t *p = createPattern(pattern);
    cairo_set_source(impl->cr, p);
    cairo_fill(impl->cr);
    cairo_pattern_destroy(p);
}

void CrossPlatformDrawingContext::FillCurrentPath(Color const &color) {
    if (!beginPaint(impl->cr, 0))
        return;
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
    strokeBounded(cr);
}

void CrossPlatformDrawingContext::AddArcToCurrentPath(Point const &center, double radiusX, double radiusY,
                                                      double startAngle, double endAngle) {
    AddArcToCurrentPath(center, Point(radiusX, 0), Point(0, radiusY), startAngle, endAngle);
}

void CrossPlatformDrawingContext::AddArcToCurrentPath(Point const &center, Point const &xAxis, Point const &yAxis,
                                                      double startAngle, double endAngle) {
    addArc(impl->cr, center, xAxis, yAxis, startAngle, endAngle);
}

// A point that is not finite adds nothing.
void CrossPlatformDrawingContext::AddLineToCurrentPath(Point const &p) {
    if (finite(p))
        lineTo(impl->cr, p.x, p.y);
}

void CrossPlatformDrawingContext::MoveToPointInCurrentPath(Point const &p) {
    if (finite(p))
        moveTo(impl->cr, p.x, p.y);
}

void CrossPlatformDrawingContext::AddCurveToCurrentPath(Point const &c1, Point const &c2, Point const &end) {
    cairo_t *cr = impl->cr;
    Point start = c1; // without a current point the curve starts at its first control point
    if (cairo_has_current_point(cr))
        cairo_get_current_point(cr, &start.x, &start.y);
    if (withinSafeExtent(cr, start) && withinSafeExtent(cr, c1) && withinSafeExtent(cr, c2) &&
        withinSafeExtent(cr, end)) {
        // The curve lies within the box of its four points.
        noteUserBox(cr, std::fmin(std::fmin(start.x, c1.x), std::fmin(c2.x, end.x)),
                    std::fmin(std::fmin(start.y, c1.y), std::fmin(c2.y, end.y)),
                    std::fmax(std::fmax(start.x, c1.x), std::fmax(c2.x, end.x)),
                    std::fmax(std::fmax(start.y, c1.y), std::fmax(c2.y, end.y)));
        cairo_curve_to(cr, c1.x, c1.y, c2.x, c2.y, end.x, end.y);
        return;
    }
    // Beyond cairo's coordinate range: the curve's own points, as lines.
    int const segments = 64;
    for (int i = 0; i <= segments; ++i) {
        double t = double(i) / segments, s = 1.0 - t;
        Point p = start * (s * s * s) + c1 * (3 * s * s * t) + c2 * (3 * s * t * t) + end * (t * t * t);
        lineOrMove(cr, p, i == 0);
    }
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
    if (singleShortPolygon(polygons) || !setPolygonsAsPath(impl->cr, polygons) || !beginPaint(impl->cr, 0))
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
    if (singleShortPolygon(polygons) || !setPolygonsAsPath(impl->cr, polygons) || !beginPaint(impl->cr, 0))
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
    strokeBounded(cr);
}

void CrossPlatformDrawingContext::Stroke(Color const &color, double lineWidth, std::string const &style,
                                         Polygon const &polygon) {
    Stroke(color, lineWidth, style, single(polygon));
}

void CrossPlatformDrawingContext::DrawRectangle(Color const &color, Rect const &rect) {
    cairo_t *cr = impl->cr;
    cairo_set_line_width(cr, 1.0);
    newPath(cr);
    setSourceColor(cr, color);
    noteUserBox(cr, rect.Left(), rect.Top(), rect.Right(), rect.Bottom());
    cairo_rectangle(cr, rect.Left(), rect.Top(), rect.Width(), rect.Height());
    strokeBounded(cr);
}

void CrossPlatformDrawingContext::FillEllipse(GradientPattern const &pattern, Rect const &rect) {
    cairo_t *cr = impl->cr;
    // The source is set before the ellipse's own scale, so the gradient stays in user space.
    cairo_pattern_t *p = createPattern(pattern);
    cairo_set_source(cr, p);
    newPath(cr);
    addEllipse(cr, rect);
    if (beginPaint(cr, 0))
        cairo_fill(cr);
    cairo_pattern_destroy(p);
}

void CrossPlatformDrawingContext::FillEllipse(Color const &color, Rect const &rect) {
    cairo_t *cr = impl->cr;
    setSourceColor(cr, color);
    newPath(cr);
    addEllipse(cr, rect);
    if (beginPaint(cr, 0))
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
    strokeBounded(cr);
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
    newPath(cr);
    moveTo(cr, from.x, from.y);
    lineTo(cr, to.x, to.y);
    strokeBounded(cr);
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
    impl->paths.reach.clear(); // the clip took the path
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
    PathReach const &far = impl->paths.farInk;
    if (far.empty())
        return Rect(x, y, x + w, y + h);
    // Paths too far for cairo count by their boxes, which hold their ink.
    if (w > 0 || h > 0)
        return Rect(std::fmin(x, far.left), std::fmin(y, far.top), std::fmax(x + w, far.right),
                    std::fmax(y + h, far.bottom));
    return Rect(far.left, far.top, far.right, far.bottom);
}

CrossPlatformDrawingContextWithBuiltInBitmap::CrossPlatformDrawingContextWithBuiltInBitmap(int width, int height)
    : CrossPlatformDrawingContextWithBuiltInBitmap(boost::shared_ptr<Bitmap>(new Bitmap(width, height))) {}

CrossPlatformDrawingContextWithBuiltInBitmap::CrossPlatformDrawingContextWithBuiltInBitmap(
    boost::shared_ptr<Bitmap> bitmap)
    : CrossPlatformDrawingContext(bitmap.get()), mBitmap(bitmap) {}

} // namespace Vantrel
