// An outside program: it sees only the installed headers and library.
#include <vantrel/Vantrel.h>

#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

static uint32_t at(std::vector<uint32_t> const &buffer, int width, int x, int row) { return buffer[row * width + x]; }

// Reaches across the public interface, so that a class or function the
// library failed to export fails this program's link: the factories of each
// family, the classes hosts name and cast to, text, paths and outlines.
static int everyFamily() {
    using namespace Vantrel;
    int failures = 0;
    PangoFonts::setLoadFallbackFonts(false);
    CrossPlatformDrawingContextWithBuiltInBitmap context(200, 120);
    context.Translate(Point(100, 60));
    Color const ink(0.2f, 0.3f, 0.8f);
    std::vector<BaseCallout *> callouts = {
        Presets::createShapeStar(Presets::ThemeBasic, ink, "gradient", Point(0, 1), Color(0, 0, 0), 2, "dash",
                                 Rect(-50, -40, 50, 40)),
        Presets::createShapeRectangle(Presets::ThemeBasic, ink, Color(0, 0, 0), 1, "solid", Rect(-50, -40, 50, 40)),
        Presets::createLine(Presets::ThemeUrban, ink, Point(-80, 30), Point(80, -30)),
        Presets::createArrow(Presets::ThemeAbstract, ink, 4, "", Point(-80, 30), "", Point(80, -30), ""),
        Presets::createLine(Presets::ThemeBold, ink, 6, Point(-80, 30), Point(80, -30), Presets::LineShaftDashed,
                            Presets::LineEndCapArrow, Presets::LineEndCapBoldDiamond),
        new CustomPath("-0.5,0 0.5,0.2", Point(100, 60), ink, 3, "dot"),
    };
    for (BaseCallout *c : callouts) {
        if (!c) {
            ++failures;
            continue;
        }
        c->drawIntoContext(&context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
        failures += c->boundingRect().Width() > 0 ? 0 : 1;
    }
    failures += callouts[0]->pathAsPolygons(Rect()).polygons.empty() ? 1 : 0;
    failures += dynamic_cast<StarShape *>(callouts[0]) ? 0 : 1;
    failures += dynamic_cast<LineWithCaps *>(callouts[4]) ? 0 : 1;
    if (RectangleShape *shape = dynamic_cast<RectangleShape *>(callouts[1]))
        delete shape->clone();
    else
        ++failures;
    for (BaseCallout *c : callouts)
        delete c;

    std::string const text = "Hello, outside";
    TextAttributeList attributes;
    attributes.addFontNameAttribute(Range(0, int(text.size())), "DejaVu Sans");
    attributes.addFontSizeAttribute(Range(0, int(text.size())), 12);
    attributes.addFGColorAttribute(Range(0, 5), Color(0, 0, 0));
    attributes.shiftAllAttributesByOffset(0);
    for (PangoAttribute *a : attributes.pangoAttributes())
        if (TextAttributeList::typeOfPangoAttribute(a) == TextAttributeList::FontSize)
            failures += TextAttributeList::valueOfPangoAttribute<int>(a) == 12 ? 0 : 1;
    TextCalloutProperties properties;
    properties.text = text;
    properties.textRect = Rect(-90, -20, 90, 20);
    TextCallout callout(properties.textRect, properties, attributes);
    DrawOutputMetaData metadata;
    callout.drawIntoContext(&context, BaseCallout::DrawOptionText, Rect(), -1, &metadata);
    failures += int(metadata.clusterRects.size()) == UTF8StringUtil::length(text) ? 0 : 1;
    failures += TextCalloutUtil::lineRanges(properties, attributes).empty() ? 1 : 0;

    // Bubbles through their factories and their own classes.
    BaseCallout *speech =
        Presets::createSpeechBubble(Presets::ThemeUrban, ink, "solid", Point(0, 1), Color(0, 0, 0), 2, "solid",
                                    properties.textRect, Point(80, 50), properties, attributes);
    BaseCallout *thought =
        Presets::createThoughtBubbleTwo(Presets::ThemeAbstract, ink, "gradient", Point(0, 1), Color(0, 0, 0), 2,
                                        "solid", properties.textRect, Point(80, 50), properties, attributes);
    failures += dynamic_cast<UrbanSpeechBubble *>(speech) ? 0 : 1;
    failures += dynamic_cast<AbstractThoughtBubbleTwo *>(thought) ? 0 : 1;
    BaseCallout *arrow = Presets::createTextArrow(Presets::ThemeUrban, ink, "solid", Point(0, 1), Color(0, 0, 0), 2,
                                                  "solid", properties.textRect, 0.4, properties, attributes);
    failures += dynamic_cast<UrbanTextArrow *>(arrow) ? 0 : 1;
    BasicThoughtBubble cloud(properties.textRect, CalloutProperties(ink, "solid", Point(0, 1), ink, 1, "solid"),
                             {Point(-80, 50), Point(80, 50)}, false);
    for (BaseCallout *b : {speech, thought, arrow, static_cast<BaseCallout *>(&cloud)}) {
        if (!b) {
            ++failures;
            continue;
        }
        b->drawIntoContext(&context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
        failures += b->boundingRect().Width() > 0 ? 0 : 1;
    }
    delete speech;
    delete thought;
    delete arrow;

    Path path;
    path.AddArc(Point(0, 0), 20, 0, kPi);
    failures += path.Flattened(&context).points.size() > 2 ? 0 : 1;
    Polygons united = Polygon(Rect(0, 0, 10, 10)).UnionWith(Polygon(Rect(5, 5, 15, 15)));
    failures += united.polygons.size() == 1 ? 0 : 1;
    failures += (Matrix3x3::Translation(Point(1, 2)) * Point(0, 0)) == Point(1, 2) ? 0 : 1;
    if (failures)
        std::printf("every family: %d failures\n", failures);
    return failures;
}

int main() {
    int const width = 40, height = 30;
    int failures = 0;
    for (bool bottomUp : {false, true}) {
        std::vector<uint32_t> buffer(width * height, 0);
        Vantrel::Bitmap bitmap(buffer.data(), width, bottomUp ? -height : height, width * 4);
        Vantrel::CrossPlatformDrawingContext context(&bitmap);
        // An oval in the top half of the picture.
        Vantrel::OvalShape oval(Vantrel::Color(1, 0, 0), "solid", Vantrel::Point(0, 1), Vantrel::Color(0, 0, 0), 0,
                                "solid", Vantrel::Rect(0, 0, 40, 14));
        oval.drawIntoContext(&context, Vantrel::BaseCallout::DrawOptionAll, Vantrel::Rect(), -1, nullptr);
        int top = bottomUp ? height - 1 - 7 : 7; // memory row of the visual row 7
        int bottom = bottomUp ? height - 1 - 25 : 25;
        if (at(buffer, width, 20, top) != 0xFFFF0000u || at(buffer, width, 20, bottom) != 0u) {
            std::printf("%s buffer: unexpected pixels %08x %08x\n", bottomUp ? "bottom-up" : "top-down",
                        at(buffer, width, 20, top), at(buffer, width, 20, bottom));
            ++failures;
        }
    }
    failures += everyFamily();
    std::printf(failures ? "consumer: FAILED\n" : "consumer: ok\n");
    return failures ? 1 : 0;
}
