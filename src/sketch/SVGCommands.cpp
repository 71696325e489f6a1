#include "sketch/SVGCommands.h"

#include <vantrel/drawing/DrawingContext.h>

#include <boost/make_shared.hpp>

#include <algorithm>
#include <stdexcept>

namespace Vantrel {

namespace {

// Where a command's numbers count from: the pen for relative letters, the
// origin for absolute ones.
Point base(bool absolute, Point const &current) { return absolute ? Point() : current; }

// How far along a segment of segmentLength the length reaches, up to the
// whole. A segment of length 0 is reached whole.
double reachedFraction(double length, double segmentLength) {
    double f = std::min(length / segmentLength, 1.0);
    return f == f ? f : 1.0;
}

int const kChords = 40;

} // namespace

double ParameterCursor::nextNumber() {
    if (index < 0 || size_t(index) >= params.size())
        throw std::runtime_error("error reading SVG");
    return params[size_t(index++)];
}

Point ParameterCursor::nextPoint() {
    double x = nextNumber();
    double y = nextNumber();
    return Point(x, y);
}

Point bezierPoint(Point const &p0, Point const &p1, Point const &p2, Point const &p3, double t) {
    double u = 1.0 - t;
    return p0 * (u * u * u) + p1 * (3 * u * u * t) + p2 * (3 * u * t * t) + p3 * (t * t * t);
}

void splitBezier(Point const &p0, Point const &p1, Point const &p2, Point const &p3, double t, Point &control1,
                 Point &control2, Point &end) {
    double u = 1.0 - t;
    control1 = p0 * u + p1 * t;
    control2 = p0 * (u * u) + p1 * (2 * t * u) + p2 * (t * t);
    end = bezierPoint(p0, p1, p2, p3, t);
}

// MoveCommand

Point MoveCommand::parse(bool absolute, Point const &current, ParameterCursor &cursor,
                         boost::shared_ptr<SVGCommand> const &) {
    start = current;
    end = base(absolute, current) + cursor.nextPoint();
    return end;
}

void MoveCommand::addToContext(DrawingContext *context, double) const { context->MoveToPointInCurrentPath(end); }

double MoveCommand::length() const { return (end - start).Length() * 0.7; }

boost::shared_ptr<SVGCommand> MoveCommand::scaled(Point const &factor) const {
    return boost::make_shared<MoveCommand>(start.MultipliedBy(factor), end.MultipliedBy(factor));
}

// Lines

LineSegmentCommand::LineSegmentCommand(Point const &start, Point const &end) : start(start), end(end) { measure(); }

void LineSegmentCommand::measure() { segmentLength = (end - start).Length(); }

Point LineSegmentCommand::parse(bool absolute, Point const &current, ParameterCursor &cursor,
                                boost::shared_ptr<SVGCommand> const &) {
    start = current;
    end = base(absolute, current) + cursor.nextPoint();
    measure();
    return end;
}

void LineSegmentCommand::addToContext(DrawingContext *context, double length) const {
    context->AddLineToCurrentPath(start + (end - start) * reachedFraction(length, segmentLength));
}

boost::shared_ptr<SVGCommand> LineSegmentCommand::scaled(Point const &factor) const {
    return boost::make_shared<LineSegmentCommand>(start.MultipliedBy(factor), end.MultipliedBy(factor));
}

Point HorizontalLineCommand::parse(bool absolute, Point const &current, ParameterCursor &cursor,
                                   boost::shared_ptr<SVGCommand> const &) {
    start = current;
    end = current;
    end.x = base(absolute, current).x + cursor.nextNumber();
    measure();
    return end;
}

Point VerticalLineCommand::parse(bool absolute, Point const &current, ParameterCursor &cursor,
                                 boost::shared_ptr<SVGCommand> const &) {
    start = current;
    end = current;
    end.y = base(absolute, current).y + cursor.nextNumber();
    measure();
    return end;
}

Point ClosePathCommand::parse(bool, Point const &current, ParameterCursor &, boost::shared_ptr<SVGCommand> const &) {
    start = current;
    measure();
    return end;
}

// Curves

BezierSegmentCommand::BezierSegmentCommand(Point const &start, Point const &control1, Point const &control2,
                                           Point const &end)
    : start(start), control1(control1), control2(control2), end(end) {
    measure();
}

void BezierSegmentCommand::measure() {
    segmentLength = 0.0;
    Point last = start;
    for (int i = 1; i <= kChords; ++i) {
        Point p = bezierPoint(start, control1, control2, end, double(i) / kChords);
        segmentLength += (p - last).Length();
        last = p;
    }
}

Point BezierSegmentCommand::parse(bool absolute, Point const &current, ParameterCursor &cursor,
                                  boost::shared_ptr<SVGCommand> const &) {
    start = current;
    Point b = base(absolute, current);
    control1 = b + cursor.nextPoint();
    control2 = b + cursor.nextPoint();
    end = b + cursor.nextPoint();
    measure();
    return end;
}

void BezierSegmentCommand::addToContext(DrawingContext *context, double length) const {
    if (length < segmentLength - 0.00001) {
        Point c1, c2, e;
        splitBezier(start, control1, control2, end, std::min(length / segmentLength, 1.0), c1, c2, e);
        context->AddCurveToCurrentPath(c1, c2, e);
    } else {
        context->AddCurveToCurrentPath(control1, control2, end);
    }
}

boost::shared_ptr<SVGCommand> BezierSegmentCommand::scaled(Point const &factor) const {
    return boost::make_shared<BezierSegmentCommand>(start.MultipliedBy(factor), control1.MultipliedBy(factor),
                                                    control2.MultipliedBy(factor), end.MultipliedBy(factor));
}

Point ShortcutBezierSegmentCommand::parse(bool absolute, Point const &current, ParameterCursor &cursor,
                                          boost::shared_ptr<SVGCommand> const &previous) {
    start = current;
    Point b = base(absolute, current);
    control2 = b + cursor.nextPoint();
    end = b + cursor.nextPoint();
    auto curve = boost::dynamic_pointer_cast<BezierSegmentCommand>(previous);
    control1 = start * 2.0 - (curve ? curve->control2 : start);
    measure();
    return end;
}

Point QuadraticBezierSegmentCommand::parse(bool absolute, Point const &current, ParameterCursor &cursor,
                                           boost::shared_ptr<SVGCommand> const &) {
    start = current;
    Point b = base(absolute, current);
    Point q = b + cursor.nextPoint();
    end = b + cursor.nextPoint();
    control1 = start / 3.0 + q * 2.0 / 3.0;
    control2 = end / 3.0 + q * 2.0 / 3.0;
    measure();
    return end;
}

} // namespace Vantrel
