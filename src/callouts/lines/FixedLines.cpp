#include <vantrel/callouts/lines/Lines.h>

#include "callouts/lines/ArrowGeometry.h"

namespace Vantrel {

namespace {

Polygon arrow(Point start, Point end, bool heads, double shaftHalfWidth, double headHalfWidth, double headLength,
              double cornerRadius) {
    ArrowSpec spec;
    spec.start = start;
    spec.end = end;
    spec.headAtStart = spec.headAtEnd = heads;
    spec.shaftHalfWidth = shaftHalfWidth;
    spec.headHalfWidth = headHalfWidth;
    spec.headLength = headLength;
    spec.cornerRadius = cornerRadius;
    return buildArrowPolygon(spec);
}

Color withAlpha(Color c, float factor) {
    c.alpha = c.alpha * factor;
    return c;
}

} // namespace

Rect FixedLine::trackingRect() const { return trackingRectAround(end); }

Rect FixedLine::boundingRect() const { return isPointLine(start, end) ? Rect(end, end) : BaseCallout::boundingRect(); }

BoldLine::BoldLine(Color const &color, Point const &start, Point const &end)
    : FixedLine(color, start, end), outline(arrow(start, end, false, 5, 0, 0, 0)) {}

void BoldLine::drawIntoContext(DrawingContext *context, DrawOptions, Rect, int, DrawOutputMetaData *) const {
    context->Fill(color, outline);
}

BoldLine *BoldLine::clone() const { return new BoldLine(*this); }

BoldDoubleArrow::BoldDoubleArrow(Color const &color, Point const &start, Point const &end)
    : FixedLine(color, start, end), outline(arrow(start, end, true, 20, 40, 52, 0)) {}

void BoldDoubleArrow::drawIntoContext(DrawingContext *context, DrawOptions, Rect, int, DrawOutputMetaData *) const {
    context->Fill(color, outline);
}

BoldDoubleArrow *BoldDoubleArrow::clone() const { return new BoldDoubleArrow(*this); }

AbstractLine::AbstractLine(Color const &color, Point const &start, Point const &end)
    : FixedLine(color, start, end), outline(arrow(start, end, false, 10, 0, 0, 0)) {}

void AbstractLine::drawIntoContext(DrawingContext *context, DrawOptions, Rect, int, DrawOutputMetaData *) const {
    context->Fill(color, outline.RoundedCorners(3));
}

AbstractLine *AbstractLine::clone() const { return new AbstractLine(*this); }

AbstractDoubleArrow::AbstractDoubleArrow(Color const &color, Point const &start, Point const &end)
    : FixedLine(color, start, end), outline(arrow(start, end, true, 10, 40, 48, 5)) {}

void AbstractDoubleArrow::drawIntoContext(DrawingContext *context, DrawOptions, Rect, int, DrawOutputMetaData *) const {
    context->Fill(color, outline);
}

AbstractDoubleArrow *AbstractDoubleArrow::clone() const { return new AbstractDoubleArrow(*this); }

UrbanLine::UrbanLine(Color const &color, Point const &start, Point const &end)
    : FixedLine(color, start, end), solidOutline(arrow(start + (end - start) * 0.15, end, false, 5, 0, 0, 0)),
      fullOutline(arrow(start, end, false, 5, 0, 0, 0)) {}

void UrbanLine::drawIntoContext(DrawingContext *context, DrawOptions, Rect, int, DrawOutputMetaData *) const {
    context->Fill(withAlpha(color, 0.7f), fullOutline);
    context->Fill(color, solidOutline);
}

UrbanLine *UrbanLine::clone() const { return new UrbanLine(*this); }

UrbanArrow::UrbanArrow(Color const &color, double width_, std::string const &style_, Point const &start,
                       std::string const &, Point const &end)
    : FixedLine(color, start, end), width(width_), style(style_) {}

void UrbanArrow::drawIntoContext(DrawingContext *context, DrawOptions, Rect, int, DrawOutputMetaData *) const {
    double const w = width;
    ArrowSpec spec;
    spec.start = start;
    spec.end = end;
    spec.headAtEnd = true;
    spec.shaftHalfWidth = w;
    spec.headHalfWidth = 3 * w;
    spec.headLength = 3 * w * 0.7;
    ArrowParts parts = buildArrowParts(spec);
    ArrowSpec shorter = spec;
    shorter.start = start + (end - start) * 0.15;
    Polygon second = buildArrowPolygon(shorter);
    context->Fill(withAlpha(color, 0.6f), parts.outline);
    context->Fill(withAlpha(color, 0.5f), second);
    context->Fill(color, parts.endHead);
}

UrbanArrow *UrbanArrow::clone() const { return new UrbanArrow(*this); }

} // namespace Vantrel
