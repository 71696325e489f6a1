// An outside program: it sees only the installed headers and library.
#include <vantrel/Vantrel.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

static uint32_t at(std::vector<uint32_t> const &buffer, int width, int x, int row) { return buffer[row * width + x]; }

// Reaches across the public interface, so that a class or function the
// library failed to export fails this program's link: the factories of each
// family, the classes hosts name and cast to, text, paths and outlines.
// Every Presets function in every theme, drawn into this program's own
// buffer: null only for ThemeModern, which has the oval and the line with
// caps alone.
static int everyPreset() {
    using namespace Vantrel;
    int failures = 0;
    std::vector<uint32_t> pixels(160 * 100);
    Bitmap bitmap(pixels.data(), 160, 100, 160 * 4);
    CrossPlatformDrawingContext context(&bitmap);
    context.Translate(Point(80, 50));
    Color const fill(0.9f, 0.6f, 0.2f), ink(0.1f, 0.1f, 0.2f);
    Rect const box(-40, -12, 40, 12);
    std::string const words = "Presets";
    TextCalloutProperties text;
    text.text = words;
    text.textRect = box;
    TextAttributeList attributes;
    attributes.addFontSizeAttribute(Range(0, int(words.size())), 11);
    Point const from(-50, 20), to(50, -20), tail(60, 40);
    for (int t = Presets::ThemeBasic; t <= Presets::ThemeAbstract; ++t) {
        Presets::Theme const theme = Presets::Theme(t);
        struct Made {
            BaseCallout *callout;
            bool always; // made in every theme
        } const made[] = {
            {Presets::createShapeOval(theme, fill, "gradient", Point(0, 1), ink, 2, "solid", box), true},
            {Presets::createShapeOval(theme, fill, ink, 2, "solid", box), true},
            {Presets::createShapeRectangle(theme, fill, "solid", Point(0, 1), ink, 2, "dash", box), false},
            {Presets::createShapeRectangle(theme, fill, ink, 2, "solid", box), false},
            {Presets::createShapeOctagon(theme, fill, "solid", Point(0, 1), ink, 2, "solid", box), false},
            {Presets::createShapeOctagon(theme, fill, ink, 2, "solid", box), false},
            {Presets::createShapeTriangle(theme, fill, "solid", Point(0, 1), ink, 2, "solid", box), false},
            {Presets::createShapeTriangle(theme, fill, ink, 2, "solid", box), false},
            {Presets::createShapeStar(theme, fill, "solid", Point(0, 1), ink, 2, "solid", box), false},
            {Presets::createShapeStar(theme, fill, ink, 2, "solid", box), false},
            {Presets::createLine(theme, fill, from, to), false},
            {Presets::createArrow(theme, fill, 5, "solid", from, "", to, ""), false},
            {Presets::createLine(theme, fill, 5, from, to, Presets::LineShaftDashed, Presets::LineEndCapCircle,
                                 Presets::LineEndCapArrow),
             true},
            {Presets::createSpeechBubble(theme, fill, "solid", Point(0, 1), ink, 2, "solid", box, tail, text,
                                         attributes),
             false},
            {Presets::createSpeechBubbleTwo(theme, fill, "solid", Point(0, 1), ink, 2, "solid", box, tail, text,
                                            attributes),
             false},
            {Presets::createThoughtBubble(theme, fill, "solid", Point(0, 1), ink, 2, "solid", box, tail, text,
                                          attributes),
             false},
            {Presets::createThoughtBubbleTwo(theme, fill, "solid", Point(0, 1), ink, 2, "solid", box, tail, text,
                                             attributes),
             false},
            {Presets::createTextArrow(theme, fill, "solid", Point(0, 1), ink, 2, "solid", box, 0.5, text, attributes),
             false},
            {Presets::createTextArrowTwo(theme, fill, "solid", Point(0, 1), ink, 2, "solid", box, 0.5, text,
                                         attributes),
             false},
            {Presets::createTextRectangle(theme, fill, "solid", Point(0, 1), ink, 2, "solid", box, text, attributes),
             false},
        };
        for (Made const &m : made) {
            bool const expected = m.always || theme != Presets::ThemeModern;
            if ((m.callout != nullptr) != expected) {
                ++failures;
            } else if (m.callout) {
                std::fill(pixels.begin(), pixels.end(), 0u);
                m.callout->drawIntoContext(&context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
                failures += std::any_of(pixels.begin(), pixels.end(), [](uint32_t p) { return p != 0; }) ? 0 : 1;
            }
            delete m.callout;
        }
    }
    if (failures)
        std::printf("every preset: %d failures\n", failures);
    return failures;
}

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

    // The classes hosts name and cast to, made directly.
    BasicThoughtBubble cloud(properties.textRect, CalloutProperties(ink, "solid", Point(0, 1), ink, 1, "solid"),
                             {Point(-80, 50), Point(80, 50)}, false);
    UrbanTextRectangle panel(ink, "solid", Point(0, 1), ink, 1, "solid", properties.textRect, properties, attributes);
    for (BaseCallout const *b : {static_cast<BaseCallout const *>(&cloud), static_cast<BaseCallout const *>(&panel)}) {
        b->drawIntoContext(&context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
        failures += b->boundingRect().Width() > 0 ? 0 : 1;
    }

    // An editing session with a deferred observer around a batch.
    struct Counter : TextEditingSessionObserver {
        int calls = 0;
        void textChanged() override { ++calls; }
        void selectionChanged() override { ++calls; }
        bool isRightToLeftLanguage(std::string const &t) override { return UTF8StringUtil::isRightToLeftLanguage(t); }
    } counter;
    TextEditingSession session(&callout, &counter);
    {
        ScopedDeferredTextEditingSessionObserver deferred(&counter);
        session.setObserver(&deferred);
        session.selectAll();
        session.moveSelectionWordLeftAndModifySelection();
        session.updateTextAndAttributes(text + "!", attributes, false);
        session.setObserver(&counter);
    }
    failures += counter.calls == 2 && session.selection() == Range(0, 7) ? 0 : 1;
    callout.drawSelectionIntoContext(&context, session.selection(), Color(0, 0, 1, 0.3f), Color(1, 0, 0));

    // A caption, which is drawn by itself and streams its lines.
    CaptionProperties captionProperties;
    captionProperties.text = "A caption on two lines\nof text";
    captionProperties.rect = Rect(-90, -50, 90, 50);
    captionProperties.fontName = "DejaVu Sans";
    captionProperties.fontSize = 14;
    captionProperties.backgroundColor = Color(0, 0, 0, 0.5f);
    Caption caption(captionProperties, TextAttributeList(), 6);
    caption.DrawIntoContext(&context);
    struct Lines : ICaptionExportObserver {
        int texts = 0, breaks = 0;
        void exportText(int, std::string const &) override { ++texts; }
        void exportLineBreak(int, bool) override { ++breaks; }
        void exportBold(int, bool) override {}
        void exportItalic(int, bool) override {}
    } lines;
    Caption::ExportText(lines, captionProperties.text, TextAttributeList(), caption.GetWordWrapUTF8Indexes());
    failures += caption.SplitUTF8Index() == -1 && lines.texts == 2 && lines.breaks == 1 ? 0 : 1;
    failures += caption.MakeInfiniteHeightCaption()->GetWordWrapUTF8Indexes().size() == 3 ? 0 : 1;

    // A sprite sheet: like letters share a cell.
    std::shared_ptr<SpriteSheet> sheet = SpriteSheet::FromText(properties, attributes, Point(1, 1), true, 0, true);
    Bitmap cells = sheet->TheBitmap();
    failures += sheet->NumItems() > 0 && cells.width() > 0 && sheet->LineItems().size() == 1 ? 0 : 1;
    failures += sheet->LayoutItem(2).bitmapRect == sheet->LayoutItem(3).bitmapRect ? 0 : 1; // "ll"

    SketchMotionCallout sketch("<svg><path d=\"M0 0 L100 0 Q150 50 100 100\"/></svg>");
    sketch.flipX = true;
    sketch.drawProgressIntoContext(&context, 0.5, Color(0, 0, 0), 3, Rect(0, 0, 100, 60));
    failures += sketch.totalPathLength() > 200 && sketch.pathCount() == 1 && sketch.commandCount(0) == 3 ? 0 : 1;
    try {
        SketchMotionCallout bad("<svg><path d=\"M0 0 X\"/></svg>");
        failures += 1;
    } catch (std::runtime_error const &e) {
        failures += std::string(e.what()) == "Invalid SVG command" ? 0 : 1;
    }

    Path path;
    path.AddArc(Point(0, 0), 20, 0, 3.141592653589793);
    failures += path.Flattened(&context).points.size() > 2 ? 0 : 1;
    Polygons united = Polygon(Rect(0, 0, 10, 10)).UnionWith(Polygon(Rect(5, 5, 15, 15)));
    failures += united.polygons.size() == 1 ? 0 : 1;
    failures += (Matrix3x3::Translation(Point(1, 2)) * Point(0, 0)) == Point(1, 2) ? 0 : 1;
    if (failures)
        std::printf("every family: %d failures\n", failures);
    return failures;
}

// Every free function that a public header declares, called once, so that
// one declared without being exported fails this program's link
// (free-functions.sh checks that none is left out here).
static int everyFreeFunction() {
    using namespace Vantrel;
    int failures = 0;
    std::vector<uint32_t> pixels(20 * 20);
    Bitmap bitmap(pixels.data(), 20, 20, 20 * 4);
    CrossPlatformDrawingContext context(&bitmap);
    GradientPattern const pattern = makeGradientPattern(Color(1, 0, 0), Rect(0, 0, 20, 20), Point(0, 1));
    failures += pattern.stops.size() == 3 ? 0 : 1;
    fillPolygonWithStyle(&context, Polygon(Rect(0, 0, 20, 20)), Color(0, 0, 1), "gradient", Rect(0, 0, 20, 20),
                         Point(0, 1));
    failures += pixels[10 * 20 + 10] >> 24 == 0xFF ? 0 : 1;
    std::ostringstream out;
    out << Point(1, 2) << ' ' << Rect(0, 0, 1, 1) << ' ' << Range(3, 4);
    failures += out.str().empty() ? 1 : 0;
    failures += (BaseCallout::DrawOptionText | BaseCallout::DrawOptionBody) == 3 ? 0 : 1;
    if (failures)
        std::printf("free functions: %d failures\n", failures);
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
    failures += everyFreeFunction();
    failures += everyPreset();
    std::printf(failures ? "consumer: FAILED\n" : "consumer: ok\n");
    return failures ? 1 : 0;
}
