// CustomPath text: the bytes as the constructor's list of numbers, drawn,
// measured and outlined; then points from the rest of the input. For a
// picture of modest finite numbers the ink stays inside boundingRect().
#include "FuzzCheck.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <cmath>
#include <cstdint>
#include <string>

using namespace Vantrel;

namespace {

bool modest(double v, double limit) { return std::isfinite(v) && std::fabs(v) <= limit; }

// Ink of the canvas, in the coordinates of a picture translated by (32, 32).
bool inkInside(VantrelFuzz::Canvas const &canvas, Rect const &bounds) {
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x)
            if (canvas.bitmap.bufAt(x, y)[3] != 0) {
                double const px = x - 32.0, py = y - 32.0;
                if (px + 1 < bounds.Left() - 1 || px > bounds.Right() + 1 || py + 1 < bounds.Top() - 1 ||
                    py > bounds.Bottom() + 1)
                    return false;
            }
    return true;
}

void draw(CustomPath const &path, VantrelFuzz::Canvas &canvas) {
    canvas.context.Translate(Point(32, 32));
    path.drawIntoContext(&canvas.context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(uint8_t const *data, size_t size) {
    FuzzedDataProvider in(data, size);
    char const *const styles[] = {"", "solid", "dash", "dot", "dashdot", "dashdotdot", "wavy"};
    std::string const style = styles[in.ConsumeIntegralInRange<int>(0, 6)];
    Point const scale(in.ConsumeFloatingPoint<double>(), in.ConsumeFloatingPoint<double>());
    double const width = in.ConsumeFloatingPoint<double>();
    std::string const text = in.ConsumeRandomLengthString(4096);

    CustomPath path(text, scale, Color(0, 0, 0), width, style);
    bool sensible = modest(scale.x, 60) && modest(scale.y, 60) && modest(width, 16) && width >= 0;
    for (Point const &p : path.pathPoints())
        sensible = sensible && modest(p.x, 1) && modest(p.y, 1);

    VantrelFuzz::Canvas canvas;
    draw(path, canvas);
    Rect const bounds = path.boundingRect();
    if (sensible)
        VantrelFuzz::check(inkInside(canvas, bounds), "the ink stays inside boundingRect");
    Polygons const outline = path.pathAsPolygons(Rect());
    (void)path.trackingRect();

    std::vector<Point> points;
    while (in.remaining_bytes() > 0 && points.size() < 512)
        points.emplace_back(in.ConsumeFloatingPoint<double>(), in.ConsumeFloatingPoint<double>());
    path.setPath(points);
    VantrelFuzz::Canvas again;
    draw(path, again);
    VantrelFuzz::check(path.boundingRect() == bounds, "bounds measured before stay");
    return 0;
}
