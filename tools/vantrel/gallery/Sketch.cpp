// Sketch motion: the sample drawing as the pen reveals it, and mirrored.
#include "Sketch.h"
#include "gallery/Sheet.h"

#include <memory>

using namespace Vantrel;

namespace VantrelTool {

namespace {

Tile sketchTile(std::string const &label, std::shared_ptr<SketchMotionCallout> sketch, double progress, bool flipX,
                bool flipY) {
    return {label, [=](CrossPlatformDrawingContext &c) {
                Rect const rect(-80, -50, 80, 50);
                c.Stroke(Color(0.75f, 0.75f, 0.8f), 1, "solid", Polygon(rect.Expanded(0.5)));
                sketch->flipX = flipX;
                sketch->flipY = flipY;
                sketch->drawProgressIntoContext(&c, progress, kInk, 3, rect);
            }};
}

} // namespace

void addSketchSections(std::vector<Section> &all) {
    auto sketch = std::make_shared<SketchMotionCallout>(kSampleDrawing);
    Section reveal{"Sketch motion: an SVG drawing revealed by the pen, and mirrored", {}};
    for (double progress : {0.0, 0.25, 0.5, 0.75, 1.0})
        reveal.tiles.push_back(
            sketchTile("progress " + std::to_string(progress).substr(0, 4), sketch, progress, false, false));
    reveal.tiles.push_back(sketchTile("flipX", sketch, 1, true, false));
    reveal.tiles.push_back(sketchTile("flipY", sketch, 1, false, true));
    reveal.tiles.push_back(sketchTile("flipX and flipY at 0.6", sketch, 0.6, true, true));
    all.push_back(reveal);
}

} // namespace VantrelTool
