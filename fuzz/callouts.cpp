// The callouts themselves: every Presets kind in every theme (and themes
// outside the table), made from random style values, boxes, tails, texts
// and progress, drawn with random options, reference rects and tail
// indexes, measured and outlined. For modest finite input the outlines and
// bounds are finite and the ink of a full drawing lies inside boundingRect
// grown by 2 pixels.
#include "FuzzCheck.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <cmath>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>

using namespace Vantrel;

namespace {

// A double that is modest most of the time and anything else now and then.
double number(FuzzedDataProvider &in, double limit) {
    if (in.ConsumeIntegralInRange<int>(0, 15) == 0)
        return in.ConsumeFloatingPoint<double>();
    return in.ConsumeFloatingPointInRange<double>(-limit, limit);
}

bool modest(double v, double limit) { return std::isfinite(v) && std::fabs(v) <= limit; }
bool modest(Point const &p, double limit) { return modest(p.x, limit) && modest(p.y, limit); }

bool finiteOutline(Polygons const &polygons) {
    for (auto const &polygon : polygons.polygons)
        if (polygon)
            for (Point const &p : polygon->points)
                if (!std::isfinite(p.x) || !std::isfinite(p.y))
                    return false;
    return true;
}

// The canvas of the ink check: the callout's origin at its centre.
int const kCanvas = 128;

bool inkInside(Bitmap const &bitmap, Rect const &bounds) {
    double const half = kCanvas / 2.0;
    for (int y = 0; y < kCanvas; ++y)
        for (int x = 0; x < kCanvas; ++x)
            if (bitmap.bufAt(x, y)[3] != 0) {
                double const px = x - half, py = y - half; // the pixel spans px .. px + 1
                if (px + 1 < bounds.Left() - 2 || px > bounds.Right() + 2 || py + 1 < bounds.Top() - 2 ||
                    py > bounds.Bottom() + 2)
                    return false;
            }
    return true;
}

struct Style {
    Color fill, stroke;
    std::string fillStyle, strokeStyle;
    Point direction;
    double width;
};

using Maker = std::function<BaseCallout *(Presets::Theme, Style const &, Rect const &, Point const &, double,
                                          TextCalloutProperties const &, TextAttributeList const &)>;

// One maker per Presets function.
Maker const kMakers[] = {
    [](Presets::Theme t, Style const &s, Rect const &r, Point const &, double, TextCalloutProperties const &,
       TextAttributeList const &) {
        return Presets::createShapeOval(t, s.fill, s.fillStyle, s.direction, s.stroke, s.width, s.strokeStyle, r);
    },
    [](Presets::Theme t, Style const &s, Rect const &r, Point const &, double, TextCalloutProperties const &,
       TextAttributeList const &) {
        return Presets::createShapeRectangle(t, s.fill, s.fillStyle, s.direction, s.stroke, s.width, s.strokeStyle, r);
    },
    [](Presets::Theme t, Style const &s, Rect const &r, Point const &, double, TextCalloutProperties const &,
       TextAttributeList const &) {
        return Presets::createShapeOctagon(t, s.fill, s.fillStyle, s.direction, s.stroke, s.width, s.strokeStyle, r);
    },
    [](Presets::Theme t, Style const &s, Rect const &r, Point const &, double, TextCalloutProperties const &,
       TextAttributeList const &) {
        return Presets::createShapeTriangle(t, s.fill, s.fillStyle, s.direction, s.stroke, s.width, s.strokeStyle, r);
    },
    [](Presets::Theme t, Style const &s, Rect const &r, Point const &, double, TextCalloutProperties const &,
       TextAttributeList const &) {
        return Presets::createShapeStar(t, s.fill, s.fillStyle, s.direction, s.stroke, s.width, s.strokeStyle, r);
    },
    [](Presets::Theme t, Style const &s, Rect const &r, Point const &, double, TextCalloutProperties const &,
       TextAttributeList const &) { return Presets::createLine(t, s.stroke, r.topLeft, r.bottomRight); },
    [](Presets::Theme t, Style const &s, Rect const &r, Point const &, double, TextCalloutProperties const &,
       TextAttributeList const &) {
        return Presets::createArrow(t, s.stroke, s.width, s.strokeStyle, r.topLeft, "", r.bottomRight, "");
    },
    [](Presets::Theme t, Style const &s, Rect const &r, Point const &tail, double, TextCalloutProperties const &,
       TextAttributeList const &) -> BaseCallout * {
        // The shaft and cap designs ride on the tail's coordinates.
        auto design = [](double v, int count) { return int(std::fmod(std::fabs(v), double(count))); };
        return Presets::createLine(t, s.stroke, s.width, r.topLeft, r.bottomRight,
                                   Presets::LineShaftType(design(tail.x, 4)),
                                   Presets::LineEndCapType(design(tail.y, 9)),
                                   Presets::LineEndCapType((design(tail.x, 9) + design(tail.y, 7)) % 9));
    },
    [](Presets::Theme t, Style const &s, Rect const &r, Point const &tail, double, TextCalloutProperties const &p,
       TextAttributeList const &a) {
        return Presets::createSpeechBubble(t, s.fill, s.fillStyle, s.direction, s.stroke, s.width, s.strokeStyle, r,
                                           tail, p, a);
    },
    [](Presets::Theme t, Style const &s, Rect const &r, Point const &tail, double, TextCalloutProperties const &p,
       TextAttributeList const &a) {
        return Presets::createSpeechBubbleTwo(t, s.fill, s.fillStyle, s.direction, s.stroke, s.width, s.strokeStyle, r,
                                              tail, p, a);
    },
    [](Presets::Theme t, Style const &s, Rect const &r, Point const &tail, double, TextCalloutProperties const &p,
       TextAttributeList const &a) {
        return Presets::createThoughtBubble(t, s.fill, s.fillStyle, s.direction, s.stroke, s.width, s.strokeStyle, r,
                                            tail, p, a);
    },
    [](Presets::Theme t, Style const &s, Rect const &r, Point const &tail, double, TextCalloutProperties const &p,
       TextAttributeList const &a) {
        return Presets::createThoughtBubbleTwo(t, s.fill, s.fillStyle, s.direction, s.stroke, s.width, s.strokeStyle, r,
                                               tail, p, a);
    },
    [](Presets::Theme t, Style const &s, Rect const &r, Point const &, double progress, TextCalloutProperties const &p,
       TextAttributeList const &a) {
        return Presets::createTextArrow(t, s.fill, s.fillStyle, s.direction, s.stroke, s.width, s.strokeStyle, r,
                                        progress, p, a);
    },
    [](Presets::Theme t, Style const &s, Rect const &r, Point const &, double progress, TextCalloutProperties const &p,
       TextAttributeList const &a) {
        return Presets::createTextArrowTwo(t, s.fill, s.fillStyle, s.direction, s.stroke, s.width, s.strokeStyle, r,
                                           progress, p, a);
    },
    [](Presets::Theme t, Style const &s, Rect const &r, Point const &, double, TextCalloutProperties const &p,
       TextAttributeList const &a) {
        return Presets::createTextRectangle(t, s.fill, s.fillStyle, s.direction, s.stroke, s.width, s.strokeStyle, r, p,
                                            a);
    },
};

// The makers of createTextArrow and createTextArrowTwo.
int const kUrbanArrowKinds[] = {12, 13};

Color colour(FuzzedDataProvider &in) {
    return Color(in.ConsumeProbability<float>(), in.ConsumeProbability<float>(), in.ConsumeProbability<float>(),
                 in.ConsumeProbability<float>());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(uint8_t const *data, size_t size) {
    PangoFonts::setLoadFallbackFonts(false);
    FuzzedDataProvider in(data, size);
    int const kind = in.ConsumeIntegralInRange<int>(0, int(sizeof kMakers / sizeof *kMakers) - 1);
    int const theme =
        in.ConsumeIntegralInRange<int>(0, 7) == 0 ? in.ConsumeIntegral<int>() : in.ConsumeIntegralInRange<int>(0, 4);
    char const *const fills[] = {"solid", "gradient", "", "Gradient"};
    char const *const strokes[] = {"solid", "dash", "dot", "dashdot", "dashdotdot", "", "wavy"};
    Style style;
    style.fill = colour(in);
    style.stroke = colour(in);
    style.fillStyle = fills[in.ConsumeIntegralInRange<int>(0, 3)];
    style.strokeStyle = strokes[in.ConsumeIntegralInRange<int>(0, 6)];
    style.direction = Point(number(in, 2), number(in, 2));
    style.width = number(in, 12);
    Rect const box(number(in, 60), number(in, 60), number(in, 60), number(in, 60));
    Point const tail(number(in, 80), number(in, 80));
    double const progress = number(in, 1.5);

    TextCalloutProperties text;
    text.text = in.ConsumeRandomLengthString(48);
    text.textRect = box;
    text.allCaps = in.ConsumeBool();
    text.wordWrap = in.ConsumeBool();
    text.flipHorizontally = in.ConsumeBool();
    // 3 lies beyond the enumerators but within the enumeration's range, as a host may pass it.
    text.horizontalAlignment = TextHorizontalAlignment(in.ConsumeIntegralInRange<int>(0, 3));
    text.verticalAlignment = TextVerticalAlignment(in.ConsumeIntegralInRange<int>(0, 3));
    text.resizeBehavior = in.ConsumeBool() ? "resizeText" : "none";
    TextAttributeList attributes;
    int const n = int(text.text.size());
    attributes.addFontNameAttribute(Range(0, n), "DejaVu Sans");
    attributes.addFontSizeAttribute(Range(0, n), in.ConsumeFloatingPointInRange<double>(1, 40));
    attributes.addFontWeightAttribute(Range(VantrelFuzz::offset(in, n), VantrelFuzz::offset(in, n)), 700);

    std::unique_ptr<BaseCallout> callout(
        kMakers[kind](Presets::Theme(theme), style, box, tail, progress, text, attributes));
    if (!callout)
        return 0; // a theme without this kind

    bool const sensible = modest(box.topLeft, 60) && modest(box.bottomRight, 60) && modest(tail, 80) &&
                          modest(style.width, 12) && modest(style.direction, 2) && modest(progress, 1.5);
    // cairo's dasher caps the pieces of an outline thinner than its
    // fixed-point step in directions of their own, which its measure of the
    // stroke leaves out: the ink check wants boxes of at least a pixel.
    bool const drawable = std::fabs(box.Width()) >= 1 && std::fabs(box.Height()) >= 1;

    // Outlines of every piece, and the bounds.
    Rect const reference(number(in, 80), number(in, 80), number(in, 80), number(in, 80));
    int const tailIndex = in.ConsumeIntegralInRange<int>(-2, 4);
    Polygons const all = callout->pathAsPolygons(reference);
    Polygons const body = callout->bodyPathAsPolygons(reference);
    Polygons const tailPiece = callout->tailPathAsPolygons(tailIndex, reference);
    Rect const bounds = callout->boundingRect();
    (void)callout->trackingRect();
    bool const modestReference = modest(reference.topLeft, 80) && modest(reference.bottomRight, 80);
    if (sensible && modestReference)
        VantrelFuzz::check(finiteOutline(all) && finiteOutline(body) && finiteOutline(tailPiece),
                           "outlines of modest callouts are finite");
    if (sensible) {
        VantrelFuzz::check(modest(bounds.topLeft, 1e300) && modest(bounds.bottomRight, 1e300),
                           "bounds of modest callouts are finite");
    }

    // The full drawing, whose ink the bounds hold.
    Bitmap full(kCanvas, kCanvas);
    full.clear();
    {
        CrossPlatformDrawingContext context(&full);
        context.Translate(Point(kCanvas / 2.0, kCanvas / 2.0));
        callout->drawIntoContext(&context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
    }
    // The Urban text arrows are measured finished, whatever their progress,
    // and their ink can stand out of that during the reveal.
    bool const revealing = (kind == kUrbanArrowKinds[0] || kind == kUrbanArrowKinds[1]) &&
                           theme == Presets::ThemeUrban && !(progress == 1.0);
    if (sensible && drawable && !revealing)
        VantrelFuzz::check(inkInside(full, bounds), "the ink stays inside boundingRect grown by 2 pixels");

    // Any options, reference rect and tail index, with metadata.
    VantrelFuzz::Canvas canvas;
    canvas.context.Translate(Point(number(in, 64), number(in, 64)));
    canvas.context.Scale(Point(number(in, 3), number(in, 3)));
    DrawOutputMetaData metadata;
    callout->drawIntoContext(&canvas.context, BaseCallout::DrawOptions(in.ConsumeIntegral<uint8_t>()), reference,
                             tailIndex, in.ConsumeBool() ? &metadata : nullptr);
    return 0;
}
