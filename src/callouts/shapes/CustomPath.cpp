#include <vantrel/callouts/shapes/CustomPath.h>

#include <cstdlib>

namespace Vantrel {

std::vector<Point> CustomPath::parsePoints(std::string const &path) {
    std::vector<std::string> tokens;
    std::string token;
    for (char c : path) {
        if (c == ',' || c == ' ') {
            if (!token.empty())
                tokens.push_back(token);
            token.clear();
        } else {
            token += c;
        }
    }
    if (!token.empty())
        tokens.push_back(token);
    std::vector<Point> points;
    points.reserve(tokens.size() / 2);
    for (size_t i = 0; i + 1 < tokens.size(); i += 2)
        points.emplace_back(std::atof(tokens[i].c_str()), std::atof(tokens[i + 1].c_str()));
    return points;
}

CustomPath::CustomPath(std::string const &path, Point const &size_, Color const &color_, double strokeWidth_,
                       std::string const &strokeStyle_)
    : points(parsePoints(path)), size(size_), color(color_), strokeWidth(strokeWidth_), strokeStyle(strokeStyle_) {}

void CustomPath::setPath(std::vector<Point> const &newPoints) { points = newPoints; }

void CustomPath::drawIntoContext(DrawingContext *context, DrawOptions, Rect, int, DrawOutputMetaData *) const {
    context->StartPath();
    if (!points.empty()) {
        context->MoveToPointInCurrentPath(points.front().MultipliedBy(size));
        for (size_t i = 1; i < points.size(); ++i)
            context->AddLineToCurrentPath(points[i].MultipliedBy(size));
    }
    context->StrokeCurrentPath(color, strokeWidth, strokeStyle, LineCapRound, LineJoinRound, false);
}

Rect CustomPath::trackingRect() const {
    Point t = size + Point(strokeWidth + 1, strokeWidth + 1);
    return Rect(t * -0.5, t * 0.5);
}

} // namespace Vantrel
