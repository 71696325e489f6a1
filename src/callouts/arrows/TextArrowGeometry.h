// The outlines of the text arrows as functions of the text box, and the tile
// grid of the Urban reveal at one progress. Coordinates are those of the
// box; the arrows point towards growing x.
#pragma once

#include <vantrel/values/Polygon.h>

namespace Vantrel {

// The Abstract arrow around box: the first design from the raw box grown by
// the margin, the second (halfRoundRear) from the normalised box with its
// left edge not grown and a half-round rear.
Polygon abstractArrowOutline(Rect const &box, bool halfRoundRear);

// The Basic arrow about the origin, shrunk about its own middle to fit
// reference (a width or height of 0 sets no limit), with the rectangle r
// whose centre it is to be drawn at and whose gradient it takes.
struct BasicArrow {
    Polygon outline;
    Rect r;
};
BasicArrow basicArrowOutline(Rect const &box, bool taperedRear, Rect const &reference);

// The Bold arrows, sharp: a notched rear, or a square rear with a long head.
Polygon boldArrowOutline(Rect const &box);
Polygon boldArrowTwoOutline(Rect const &box);

// The shaft of the Bold and Urban arrows: box grown 12 above and below.
Rect shaftAroundText(Rect const &box);

// Progress as the Urban arrows read it: NaN is the finished arrow.
double revealedProgress(double progress);

// UrbanTextArrow's tiles at one progress. Tiles are numbered i = 2 col + row
// from the head's side; column 0 stands nearest the head, the last two
// columns left of the shaft. The grid holds no tiles, only formulas.
struct RevealGrid {
    Rect shaft;
    double height = 0; // of a tile: half the shaft's
    double width = 0;  // of a tile: its height, wider for a capped grid
    int cols = 0, n = 0;
    double front = 0; // where the wave of full strength has come to
    int first = -1;   // the lowest tile not at full strength, -1 for none
    double cut = 0;   // the left end of the solid body

    double alpha(int i) const;
    Rect tile(int i) const;
};
RevealGrid revealGrid(Rect const &shaft, double progress);

} // namespace Vantrel
