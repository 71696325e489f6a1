// The pen commands of an SVG path: each knows where it starts and ends, how
// long it is, how to add itself to a context's current path cut short at a
// length, and how to make a scaled copy of itself.
#pragma once

#include <vantrel/values/Point.h>

#include <boost/shared_ptr.hpp>

#include <vector>

namespace Vantrel {

class DrawingContext;

// Reads a command's numbers one after the other. Running out of numbers
// throws std::runtime_error("error reading SVG").
struct ParameterCursor {
    std::vector<double> const &params;
    int index = 0;

    explicit ParameterCursor(std::vector<double> const &p) : params(p) {}
    double nextNumber();
    Point nextPoint();
};

class SVGCommand {
public:
    virtual ~SVGCommand() = default;
    // Reads the command's numbers and returns where the pen is afterwards.
    // previous is the command read before this one, null for the first.
    virtual Point parse(bool absolute, Point const &current, ParameterCursor &cursor,
                        boost::shared_ptr<SVGCommand> const &previous) = 0;
    virtual Point startPoint() const = 0;
    // True for commands that leave ink.
    virtual bool isSegment() const = 0;
    // Adds the command to the current path, cut short to length.
    virtual void addToContext(DrawingContext *context, double length) const = 0;
    virtual double length() const = 0;
    // Moves before anything was drawn cost nothing; other commands ignore it.
    virtual void collapseStart() {}
    // A copy with every point multiplied component-wise by factor, as a
    // plain move, line or curve.
    virtual boost::shared_ptr<SVGCommand> scaled(Point const &factor) const = 0;
};

using SVGCommandList = std::vector<boost::shared_ptr<SVGCommand>>;

// A pen-up move. It costs 0.7 of its distance, so that the pen takes time
// to travel between strokes.
class MoveCommand : public SVGCommand {
public:
    MoveCommand() = default;
    MoveCommand(Point const &start, Point const &end) : start(start), end(end) {}
    Point parse(bool absolute, Point const &current, ParameterCursor &cursor,
                boost::shared_ptr<SVGCommand> const &previous) override;
    Point startPoint() const override { return start; }
    bool isSegment() const override { return false; }
    void addToContext(DrawingContext *context, double length) const override;
    double length() const override;
    void collapseStart() override { start = end; }
    boost::shared_ptr<SVGCommand> scaled(Point const &factor) const override;

    Point start, end;
};

// A straight stroke. A line of length 0 adds its end point whatever the
// length asked for.
class LineSegmentCommand : public SVGCommand {
public:
    LineSegmentCommand() = default;
    LineSegmentCommand(Point const &start, Point const &end);
    Point parse(bool absolute, Point const &current, ParameterCursor &cursor,
                boost::shared_ptr<SVGCommand> const &previous) override;
    Point startPoint() const override { return start; }
    bool isSegment() const override { return true; }
    void addToContext(DrawingContext *context, double length) const override;
    double length() const override { return segmentLength; }
    boost::shared_ptr<SVGCommand> scaled(Point const &factor) const override;

    Point start, end;
    double segmentLength = 0.0;

protected:
    void measure();
};

class HorizontalLineCommand : public LineSegmentCommand {
public:
    Point parse(bool absolute, Point const &current, ParameterCursor &cursor,
                boost::shared_ptr<SVGCommand> const &previous) override;
};

class VerticalLineCommand : public LineSegmentCommand {
public:
    Point parse(bool absolute, Point const &current, ParameterCursor &cursor,
                boost::shared_ptr<SVGCommand> const &previous) override;
};

// Closes to the end given at construction: the start of the list's first
// segment. Reads no numbers.
class ClosePathCommand : public LineSegmentCommand {
public:
    explicit ClosePathCommand(Point const &closingPoint) { end = closingPoint; }
    Point parse(bool absolute, Point const &current, ParameterCursor &cursor,
                boost::shared_ptr<SVGCommand> const &previous) override;
};

// A cubic curve. Its length is that of 40 chords; cut short, it is split
// by de Casteljau, unless the length is within 0.00001 of the whole.
class BezierSegmentCommand : public SVGCommand {
public:
    BezierSegmentCommand() = default;
    BezierSegmentCommand(Point const &start, Point const &control1, Point const &control2, Point const &end);
    Point parse(bool absolute, Point const &current, ParameterCursor &cursor,
                boost::shared_ptr<SVGCommand> const &previous) override;
    Point startPoint() const override { return start; }
    bool isSegment() const override { return true; }
    void addToContext(DrawingContext *context, double length) const override;
    double length() const override { return segmentLength; }
    boost::shared_ptr<SVGCommand> scaled(Point const &factor) const override;

    Point start, control1, control2, end;
    double segmentLength = 0.0;

protected:
    void measure();
};

// S: its first control reflects the previous curve's second control about
// the start, or is the start when no curve came before.
class ShortcutBezierSegmentCommand : public BezierSegmentCommand {
public:
    Point parse(bool absolute, Point const &current, ParameterCursor &cursor,
                boost::shared_ptr<SVGCommand> const &previous) override;
};

// Q, lifted to the cubic with the same curve.
class QuadraticBezierSegmentCommand : public BezierSegmentCommand {
public:
    Point parse(bool absolute, Point const &current, ParameterCursor &cursor,
                boost::shared_ptr<SVGCommand> const &previous) override;
};

// The point of the cubic at t, and the first part of it up to t.
Point bezierPoint(Point const &p0, Point const &p1, Point const &p2, Point const &p3, double t);
void splitBezier(Point const &p0, Point const &p1, Point const &p2, Point const &p3, double t, Point &control1,
                 Point &control2, Point &end);

} // namespace Vantrel
