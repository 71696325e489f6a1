// Shafts: the body of a line between its caps, built for one length along
// the positive x axis from the origin. A dash or dot rhythm is fitted so that
// a whole number of repeats fills the length.
#pragma once

#include <vantrel/callouts/lines/LineWithCaps.h>
#include <vantrel/values/Polygon.h>

#include <boost/shared_ptr.hpp>
#include <vector>

namespace Vantrel {

// Beyond this many dashes or dots a shaft is far below a pixel a piece; the
// rhythm is then scaled up so that no more are made.
int const kMaxShaftPieces = 10000;

class Shaft {
public:
    Shaft(double width_, double length_) : mWidth(width_), length(length_) {}
    virtual ~Shaft() = default;
    virtual Polygons outline() const = 0;
    virtual double width() const { return mWidth; }

protected:
    double mWidth;
    double length;
};

// A bar from width at the start to endWidth at the end.
class TaperedShaft : public Shaft {
public:
    TaperedShaft(double width_, double length_, double endWidth_) : Shaft(width_, length_), endWidth(endWidth_) {}
    Polygons outline() const override;

private:
    double endWidth;
};

// Rectangles: dash, gap, dash... as multiples of the width.
class DashShaft : public Shaft {
public:
    DashShaft(double width_, double length_, std::vector<double> pattern_, bool leadingGap_, bool trailingGap_)
        : Shaft(width_, length_), pattern(std::move(pattern_)), leadingGap(leadingGap_), trailingGap(trailingGap_) {}
    Polygons outline() const override;

    double startCornerRatio = 0; // corner radius of the start, as a fraction of the width
    double endCornerRatio = 0;

private:
    std::vector<double> pattern;
    bool leadingGap, trailingGap;
};

// Round dots of the shaft's width; the dots keep their size and the gaps give way.
class DotShaft : public Shaft {
public:
    DotShaft(double width_, double length_, double gapRatio_, bool leadingGap_, bool trailingGap_)
        : Shaft(width_, length_), gapRatio(gapRatio_), leadingGap(leadingGap_), trailingGap(trailingGap_) {}
    Polygons outline() const override;

private:
    double gapRatio;
    bool leadingGap, trailingGap;
};

// The pattern (dash, gap, ... in even and odd places) scaled so that a whole
// number of its elements fills total, starting and ending on a gap as asked;
// a leading gap is preceded by a dash of length 0. The sum is always total.
// Empty for a total at or below 0 (or not finite); a pattern without length
// gives the single element total. At most 2 * kMaxShaftPieces elements: a
// pattern that would repeat more often is scaled up first.
std::vector<double> fitDashPattern(std::vector<double> const &pattern, double total, bool leadingGap, bool trailingGap);

// The shaft's pieces united with both caps' outlines, first then second.
// Pieces of a shaft never overlap one another, so a piece whose box meets no
// cap's box would come through the union unchanged: it is passed by, the
// same Polygon object, after the united ones. A dashed shaft has up to
// kMaxShaftPieces pieces, and only those at its ends touch a cap.
Polygons uniteShaftWithCaps(Polygons const &pieces, Polygons const &firstCap, Polygons const &secondCap);

// The shaft of a spec's kind for the given length.
boost::shared_ptr<Shaft> makeShaft(ShaftSpec const &spec, double length, bool leadingGap, bool trailingGap);

} // namespace Vantrel
