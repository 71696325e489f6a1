// A long session in one process: every callout kind made, measured, outlined,
// drawn, cloned and deleted round after round, with editing sessions,
// captions, sprite sheets and sketch frames at changing sizes, as an editor
// redrawing on every mouse move does for hours. Resident memory is read after
// the warm-up and at the end; growth above 1 % (at least 1 MiB, the
// allocator's noise) fails. AddressSanitizer finds leaks; this finds caches
// that grow without bound, so it runs in a plain build.
//
//   vantrel_soak ROUNDS [WARMUP]     WARMUP defaults to 1000 rounds
#include "Catalogue.h"
#include "PresetsTable.h"

#include <vantrel/Vantrel.h>

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

using namespace Vantrel;
using namespace VantrelTool;

namespace {

long long residentBytes() {
    std::ifstream statm("/proc/self/statm");
    long long size = 0, resident = 0;
    statm >> size >> resident;
    return resident * sysconf(_SC_PAGESIZE);
}

// The classes that can be copied each offer their own clone().
template <class First, class... Rest> BaseCallout *cloneOf(BaseCallout const *callout) {
    if (auto const *c = dynamic_cast<First const *>(callout))
        return c->clone();
    if constexpr (sizeof...(Rest) > 0)
        return cloneOf<Rest...>(callout);
    else
        return nullptr;
}

struct Canvas {
    Bitmap bitmap{160, 120};
    CrossPlatformDrawingContext context{(bitmap.clear(), &bitmap)};
    Canvas() { context.Translate(Point(80, 60)); }
};

// What a host does with a callout between its creation and its deletion.
void exercise(BaseCallout *callout, Canvas &canvas) {
    std::unique_ptr<BaseCallout> owned(callout);
    if (!callout)
        return;
    (void)callout->boundingRect();
    (void)callout->trackingRect();
    Rect const reference(-60, -40, 60, 40);
    (void)callout->pathAsPolygons(reference);
    (void)callout->bodyPathAsPolygons(reference);
    (void)callout->tailPathAsPolygons(0, reference);
    callout->drawIntoContext(&canvas.context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
    std::unique_ptr<BaseCallout> copy(
        cloneOf<TextCallout, OvalShape, RectangleShape, StarShape, RegularPolygonShape, BoldLine, BoldDoubleArrow,
                AbstractLine, AbstractDoubleArrow, UrbanLine, UrbanArrow>(callout));
    if (copy)
        copy->drawIntoContext(&canvas.context, BaseCallout::DrawOptionBody, reference, 0, nullptr);
}

Kind const &kindOf(std::string const &family, std::string const &variant) {
    return *findKind(*findFamily(family), variant);
}

// Every Presets function in every theme, then what the presets leave fixed:
// each shaft and cap kind of the lines, each CustomPath style, a plain text,
// Basic bubbles with several tails and Urban arrows at a moving progress.
void callouts(int round, Canvas &canvas) {
    for (ThemeName const &t : kThemes)
        for (PresetFunction const &f : presetFunctions())
            exercise(f.make(t.theme), canvas);

    Settings s;
    for (ThemeName const &t : kThemes)
        for (int cap = 0; cap < 8; ++cap) {
            s.shaftType = Presets::LineShaftType(cap % 3);
            s.startCap = Presets::LineEndCapType(cap);
            s.endCap = Presets::LineEndCapType(7 - cap);
            exercise(kindOf("line", "").make(t.theme, s), canvas);
        }
    char const *const styles[] = {"solid", "dash", "dot", "dashdot", "dashdotdot", "wavy"};
    s.strokeStyle = styles[round % 6];
    exercise(kindOf("custompath", "").make(Presets::ThemeBasic, s), canvas);
    exercise(kindOf("text", "").make(Presets::ThemeBasic, s), canvas);

    for (char const *family : {"speech", "thought"})
        for (char const *design : {"", "two"}) {
            Kind const &kind = kindOf(family, design);
            Settings bubble;
            kind.sample(bubble);
            bubble.tails = {Point(110, 70), Point(-110, 60), Point(0, -90)};
            exercise(kind.make(Presets::ThemeBasic, bubble), canvas);
        }
    for (char const *design : {"", "two"}) {
        Kind const &kind = kindOf("text-arrow", design);
        Settings arrow;
        kind.sample(arrow);
        arrow.progress = (round % 11) / 10.0;
        exercise(kind.make(Presets::ThemeUrban, arrow), canvas);
    }
}

TextAttributeList attributesOf(std::string const &text, double size) {
    TextAttributeList a;
    a.addFontNameAttribute(Range(0, int(text.size())), "DejaVu Sans");
    a.addFontSizeAttribute(Range(0, int(text.size())), size);
    a.addFontWeightAttribute(Range(0, 4), 700);
    return a;
}

void editing(int round, Canvas &canvas) {
    std::string const text = round % 2 ? "Edit me, word by word" : "Another text, longer, over two lines";
    TextCalloutProperties p;
    p.text = text;
    p.textRect = Rect(-60, -25, 60, 25);
    TextCallout callout(p.textRect, p, attributesOf(text, 14));
    TextEditingSession session(&callout, nullptr);
    session.handleMouseDown(Point(-30 + round % 40, 0));
    session.handleMouseDrag(Point(20, 10));
    session.handleMouseUp(Point(20, 10));
    session.moveSelectionWordRightAndModifySelection();
    session.moveSelectionDown();
    session.moveSelectionToEndOfLine();
    std::string const typed = text + " " + std::to_string(round % 100);
    session.updateTextAndAttributes(typed, attributesOf(typed, 14), round % 3 == 0);
    session.selectAll();
    callout.drawSelectionIntoContext(&canvas.context, session.selection(), Color(0, 0, 1, 0.3f), Color(0, 0, 0));
    callout.drawIntoContext(&canvas.context, BaseCallout::DrawOptionAll, Rect(), -1, nullptr);
}

struct CountingObserver : ICaptionExportObserver {
    int calls = 0;
    void exportText(int, std::string const &) override { ++calls; }
    void exportLineBreak(int, bool) override { ++calls; }
    void exportBold(int, bool) override { ++calls; }
    void exportItalic(int, bool) override { ++calls; }
};

void captionsAndSprites(int round, Canvas &canvas) {
    CaptionProperties c;
    c.text = "A caption over a few lines, wrapped where the box ends";
    c.rect = Rect(-70 - round % 10, -40, 70, 40);
    c.fontName = "DejaVu Sans";
    c.fontSize = 12 + round % 5;
    c.maxLines = round % 4 - 1;
    c.backgroundColor = Color(0, 0, 0, 0.5f);
    c.outlineColor = Color(1, 1, 1);
    c.outlineWidth = 2;
    Caption caption(c, attributesOf(c.text, c.fontSize), 4);
    caption.DrawIntoContext(&canvas.context);
    CountingObserver observer;
    Caption::ExportText(observer, c.text, attributesOf(c.text, c.fontSize), caption.GetWordWrapUTF8Indexes());
    (void)caption.SplitCharacterIndex();
    caption.MakeInfiniteHeightCaption()->DrawIntoContext(&canvas.context);

    TextCalloutProperties p;
    p.text = "Sprites, letter by letter";
    p.textRect = Rect(-60, -20, 60, 20);
    double const scale = 1 + round % 3 * 0.5;
    std::shared_ptr<SpriteSheet> sheet =
        SpriteSheet::FromText(p, attributesOf(p.text, 12), Point(scale, scale), round % 2 == 0, 2, round % 5 == 0);
    (void)sheet->LayoutItems();
    (void)sheet->LineItems();
}

char const *const kDrawing = "<svg><path d=\"M10 10 L90 10 C120 40 60 80 30 50 Q10 30 40 20 Z\"/>"
                             "<path d=\"m5 90 h40 v-20 s10 -10 20 0 q10 10 20 0\"/></svg>";

void sketch(int round, Canvas &canvas) {
    SketchMotionCallout picture(kDrawing);
    double const size = 20 + round % 60;
    picture.drawProgressIntoContext(&canvas.context, (round % 21) / 20.0, Color(0, 0, 0), 2,
                                    Rect(-size, -size / 2, size, size / 2));
}

void runRound(int round) {
    Canvas canvas;
    callouts(round, canvas);
    editing(round, canvas);
    captionsAndSprites(round, canvas);
    sketch(round, canvas);
}

} // namespace

int main(int argc, char **argv) {
    int const rounds = argc > 1 ? std::atoi(argv[1]) : 0;
    int const warmup = argc > 2 ? std::atoi(argv[2]) : 1000;
    if (argc < 2 || argc > 3 || warmup < 0 || rounds <= warmup) {
        std::fprintf(stderr, "usage: vantrel_soak ROUNDS [WARMUP], with more ROUNDS than WARMUP (1000)\n");
        return 2;
    }
    PangoFonts::setLoadFallbackFonts(false);

    auto const start = std::chrono::steady_clock::now();
    long long warm = residentBytes();
    for (int round = 0; round < rounds; ++round) {
        if (round == warmup)
            warm = residentBytes();
        runRound(round);
    }
    long long const end = residentBytes();
    double const seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();

    long long const allowed = std::max(warm / 100, 1LL << 20);
    std::printf("soak: %d rounds (%d warm-up) in %.0f s, %.2f ms a round\n", rounds, warmup, seconds,
                1000 * seconds / rounds);
    std::printf("soak: resident after the warm-up %.1f MiB, at the end %.1f MiB (growth %lld KiB, allowed %lld KiB)\n",
                warm / 1048576.0, end / 1048576.0, (end - warm) / 1024, allowed / 1024);
    if (end - warm > allowed) {
        std::printf("soak: FAILED, resident memory grew\n");
        return 1;
    }
    return 0;
}
