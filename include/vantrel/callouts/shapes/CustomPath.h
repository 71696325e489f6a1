// A host's own open polyline, in units that a size stretches on drawing.
#pragma once

#include <vantrel/VantrelExport.h>
#include <vantrel/callouts/frame/BaseCallout.h>

#include <string>
#include <vector>

namespace Vantrel {

// Only strokes: one open polyline with round caps and joins, each vertex
// multiplied component-wise by size. It has no clone.
class VANTREL_EXPORT CustomPath : public BaseCallout {
public:
    // path is a list of numbers, x then y, separated by commas or blanks
    // (runs of them count once; tabs and newlines do not separate). Each
    // number is read with atof, so junk reads as 0, and a last number without
    // a partner is ignored.
    CustomPath(std::string const &path, Point const &size, Color const &color, double strokeWidth,
               std::string const &strokeStyle);

    // Replaces the points; bounds measured before stay as they were.
    void setPath(std::vector<Point> const &points);
    std::vector<Point> const &pathPoints() const { return points; }

    void drawIntoContext(DrawingContext *context, DrawOptions options, Rect referenceRect, int tailIndex,
                         DrawOutputMetaData *metadata) const override;
    // Centred on the origin: size plus the stroke width and one unit, which
    // holds vertices between -0.5 and 0.5.
    Rect trackingRect() const override;

    // The numbers of a path text as points, by the rules of the constructor.
    static std::vector<Point> parsePoints(std::string const &path);

protected:
    std::vector<Point> points;
    Point size;
    Color color;
    double strokeWidth;
    std::string strokeStyle;
};

} // namespace Vantrel
