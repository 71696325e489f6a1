// Sketch motion: a vector picture, read from the path data of an SVG
// document, that draws itself as a pen would write it, stroke by stroke up
// to any progress, fitted to any rectangle.
#pragma once

#include <vantrel/VantrelExport.h>
#include <vantrel/values/Color.h>
#include <vantrel/values/Point.h>
#include <vantrel/values/Rect.h>

#include <boost/shared_ptr.hpp>

#include <string>
#include <vector>

namespace Vantrel {

class DrawingContext;
class SVGCommand;

// A picture's pen commands, one list per path element, and the bounds of
// its ink at pen width 0.
struct VANTREL_EXPORT SketchMotionPaths {
    std::vector<std::vector<boost::shared_ptr<SVGCommand>>> commandLists;
    Rect bounds;

    // The sum of every command's length, pen-up moves included.
    double totalLength() const;
    // Strokes the lists up to progress (0 to 1) of the total length, each
    // from a fresh path, with round caps and joins, between a Save and a
    // Restore. A list starts only while some length remains; a progress of
    // 0 or below, or NaN, strokes nothing.
    void drawPaths(DrawingContext *context, double progress, Color const &color, double penWidth) const;
};

// The picture is a stroke only, in the colour and pen width of each drawing.
// Its commands are read once and never change; each drawing fits them to
// its rectangle, each axis on its own, and keeps the fitted copy until the
// scale changes, so that animating the progress at one size scales once.
// The pen width is not scaled.
//
// Reading keeps to the path elements directly under the svg element and to
// the commands M, L, H, V, C, S, Q and Z in either case; style, transforms
// and groups are ignored. Copies share the read commands, which never
// change. Like every object of the library it belongs to one thread at a
// time: drawing writes the fitted copy.
//
// A picture of length 0 (no path, only moves, or a lone point) draws
// nothing at any progress.
//
// Input outside the contract, in drawProgressIntoContext: a progress that is
// NaN, 0 or below draws nothing, and one above 1 (infinity included) draws
// the whole picture. Nothing is drawn into a rect with a coordinate that is
// not finite, or smaller than the pen on either axis (no stroke would fit
// inside it), nor with a pen width that is not a finite number of at least
// 0. A picture flat in one direction (a straight line) keeps its scale in
// that direction and stands in the middle of the rect; a rect exactly as
// wide as the pen collapses the picture to its centre line.
class VANTREL_EXPORT SketchMotionCallout {
public:
    // svgText is the document itself, not a file name. Throws, with what
    // was read lost:
    //  - std::runtime_error "Invalid SVG command" for a letter other than
    //    C, H, L, M, Q, S, V, Z in either case; "SVG command X has no
    //    parameters" for a letter X other than Z without numbers; "error
    //    reading SVG" when a command's numbers run out, or a number is beyond
    //    the range of a double;
    //  - boost::property_tree::ptree_bad_path "No such node (...)" without
    //    an svg element or for a path element without d;
    //  - boost::property_tree::xml_parser::xml_parser_error for text that is
    //    no XML, and for elements nested more than 256 levels deep.
    // Numbers are read in the classic locale whatever the process's, which
    // is restored on every exit; reading is serialised across threads, and
    // while a document is read every thread sees the classic locale. Numbers
    // right behind a Z are ignored. See the reader's tokeniser for the
    // number forms ("1.5.5", "inf" and "0x1" among them).
    explicit SketchMotionCallout(std::string const &svgText);
    virtual ~SketchMotionCallout();

    // Draws the picture up to progress (0 to 1) fitted into rect: the
    // stroke's outer edge stays inside it.
    virtual void drawProgressIntoContext(DrawingContext *context, double progress, Color const &color, double penWidth,
                                         Rect const &rect);

    // The whole length of the unscaled picture, pen-up moves included.
    double totalPathLength() const;
    // What the picture holds, for hosts and tools that show a document: the
    // path elements read, the pen commands of one of them (0 for an index
    // outside 0 .. pathCount() - 1), and the bounds of its ink at pen width
    // 0, unscaled. The commands themselves are the library's own.
    int pathCount() const;
    int commandCount(int path) const;
    Rect pictureBounds() const;

private:
    friend struct SketchMotionAccess; // the library's own tests read the commands
    SketchMotionPaths paths;
    boost::shared_ptr<SketchMotionPaths> scaledPaths; // fitted to the last drawing's rect
    Point scaledFactor;

public:
    // Mirror the picture about the centre of its rect; the host sets them
    // directly, nothing in the library writes them.
    bool flipX = false;
    bool flipY = false;
};

} // namespace Vantrel
