#include <vantrel/sketch/SketchMotionCallout.h>

#include "drawing/BoundsFinder.h"
#include "drawing/SavedContextState.h"
#include "sketch/SVGPathReader.h"

#include <vantrel/drawing/LineStyles.h>

#include <boost/make_shared.hpp>

#include <cmath>

namespace Vantrel {

namespace {

double listLength(SVGCommandList const &list) {
    double sum = 0.0;
    for (auto const &command : list)
        sum += command->length();
    return sum;
}

bool finiteRect(Rect const &r) {
    return std::isfinite(r.topLeft.x) && std::isfinite(r.topLeft.y) && std::isfinite(r.bottomRight.x) &&
           std::isfinite(r.bottomRight.y) && std::isfinite(r.Width()) && std::isfinite(r.Height());
}

// The scale that fits the picture's extent into the room on one axis. A
// picture flat on this axis (or with no ink at all) keeps its scale.
double fitAxis(double room, double extent) {
    if (!(extent > 0.0))
        return 1.0;
    double factor = room / extent;
    return std::isfinite(factor) ? factor : 1.0;
}

// The pen width a measurement strokes with; half of it is taken off again.
double const kMeasuringPenWidth = 20.0;

} // namespace

double SketchMotionPaths::totalLength() const {
    double sum = 0.0;
    for (auto const &list : commandLists)
        sum += listLength(list);
    return sum;
}

void SketchMotionPaths::drawPaths(DrawingContext *context, double progress, Color const &color, double penWidth) const {
    SavedContextState saved(context);
    double remaining = progress * totalLength();
    for (auto const &list : commandLists) {
        if (!(remaining > 0.0))
            break;
        context->StartPath();
        // The command in which r runs out is the one cut short.
        double r = remaining;
        for (auto const &command : list) {
            if (!(r > 0.0))
                break;
            command->addToContext(context, r);
            r -= command->length();
        }
        remaining -= listLength(list);
        context->StrokeCurrentPath(color, penWidth, "", LineCapRound, LineJoinRound, false);
    }
}

SketchMotionCallout::SketchMotionCallout(std::string const &svgText) {
    PathCommandState state(paths);
    readSVGPaths(svgText, [&state](bool firstOfPath, char letter, std::vector<double> const &params) {
        appendPathCommand(state, firstOfPath, letter, params);
    });
    BoundsFinder finder;
    paths.drawPaths(&finder, 1.0, Color(1, 1, 1), kMeasuringPenWidth);
    paths.bounds = finder.InkExtents().Expanded(-kMeasuringPenWidth / 2);
}

SketchMotionCallout::~SketchMotionCallout() = default;

double SketchMotionCallout::totalPathLength() const { return paths.totalLength(); }

int SketchMotionCallout::pathCount() const { return int(paths.commandLists.size()); }

int SketchMotionCallout::commandCount(int path) const {
    return path >= 0 && path < pathCount() ? int(paths.commandLists[size_t(path)].size()) : 0;
}

Rect SketchMotionCallout::pictureBounds() const { return paths.bounds; }

void SketchMotionCallout::drawProgressIntoContext(DrawingContext *context, double progress, Color const &color,
                                                  double penWidth, Rect const &rect) {
    if (!finiteRect(rect) || !(penWidth >= 0.0) || !std::isfinite(penWidth) || rect.Width() < penWidth ||
        rect.Height() < penWidth)
        return;
    Rect inner = rect.Expanded(Point(-penWidth / 2, -penWidth / 2));
    Point factor(fitAxis(inner.Width(), paths.bounds.Width()), fitAxis(inner.Height(), paths.bounds.Height()));
    if (!scaledPaths || factor != scaledFactor) {
        auto scaled = boost::make_shared<SketchMotionPaths>();
        scaled->commandLists.reserve(paths.commandLists.size());
        for (auto const &list : paths.commandLists) {
            scaled->commandLists.emplace_back();
            scaled->commandLists.back().reserve(list.size());
            for (auto const &command : list)
                scaled->commandLists.back().push_back(command->scaled(factor));
        }
        scaled->bounds = paths.bounds.Scaled(factor);
        scaledPaths = scaled;
        scaledFactor = factor;
    }

    SavedContextState saved(context);
    context->Translate(Point(0.5, 0.5));
    context->Translate(inner.Center());
    context->Scale(Point(flipX ? -1.0 : 1.0, flipY ? -1.0 : 1.0));
    context->Translate(-scaledPaths->bounds.Center());
    scaledPaths->drawPaths(context, progress, color, penWidth);
}

} // namespace Vantrel
