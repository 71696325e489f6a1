// The caption keeps its layout in a KeptLayout: a caption handed to another
// thread builds it again there from the same inputs before its first use.
#include <vantrel/captions/Caption.h>

#include "drawing/SavedContextState.h"
#include "text/KeptLayout.h"
#include "text/TextLayout.h"
#include "values/Pi.h"

#include <vantrel/drawing/DrawingContext.h>
#include <vantrel/geometry/Path.h>
#include <vantrel/text/UTF8StringUtil.h>

#include <algorithm>
#include <cfloat>
#include <climits>
#include <cmath>
#include <cstdint>

namespace Vantrel {

ICaptionExportObserver::~ICaptionExportObserver() = default;

namespace {

int byteSize(std::string const &text) { return int(std::min(text.size(), size_t(INT_MAX))); }

Rect logicalRect(PangoLayoutIter *it) {
    PangoRectangle logical;
    pango_layout_iter_get_line_extents(it, nullptr, &logical);
    // Sums in double: a far line plus its height may pass the int range.
    double const x = pango_units_to_double(logical.x), y = pango_units_to_double(logical.y);
    return Rect(x, y, x + pango_units_to_double(logical.width), y + pango_units_to_double(logical.height));
}

struct ShownLine {
    PangoLayoutLine *line;
    Rect logical;
    double baseline;
};

// The first count lines of the layout.
std::vector<ShownLine> firstLines(PangoLayout *layout, int count) {
    std::vector<ShownLine> lines;
    if (count < 1)
        return lines;
    PangoLayoutIter *it = pango_layout_get_iter(layout);
    do {
        lines.push_back({pango_layout_iter_get_line_readonly(it), logicalRect(it),
                         pango_units_to_double(pango_layout_iter_get_baseline(it))});
    } while (int(lines.size()) < count && pango_layout_iter_next_line(it));
    pango_layout_iter_free(it);
    return lines;
}

} // namespace

Caption::Caption(CaptionProperties const &properties, TextAttributeList const &attributes, double margin)
    : mAttributes(attributes), mProperties(properties), mTextBox(properties.rect.Expanded(-margin)), mMargin(margin) {
    Range const all(0, byteSize(properties.text));
    mAttributes.addFontNameAttribute(all, properties.fontName);
    mAttributes.addFontSizeAttribute(
        all, double(std::max(1, std::min(properties.fontSize, CaptionProperties::kMaxFontSize))));
    mAttributes.addFGColorAttribute(all, properties.textColor);
    mAttributes.addFontFallbackAttribute(all, true);
    // Word wrap by words, then characters; top aligned; no caps, flips or extra line space.
    mTextProperties.text = properties.text;
    mTextProperties.textRect = properties.rect;
    mTextProperties.isRightToLeft = UTF8StringUtil::isRightToLeftLanguage(properties.text);
    mTextProperties.horizontalAlignment = properties.alignment;
    mTextProperties.verticalAlignment = Top;
    mTextProperties.wrapMode = WrapWordChar;
    mLayout.reset(new KeptLayout());
    mLineCount = lineCountOfLayout();
}

Caption::~Caption() = default;

// The layout, built on the calling thread: at the first use, and again
// whenever the caption is used on another thread than the last build's.
PangoLayout *Caption::layout() const {
    if (!mLayout->get() || !mLayout->isHome())
        mLayout->reset(buildTextLayout(mTextProperties, mAttributes,
                                       LayoutOptions().withMargin(mMargin).ofBoxHeight(mProperties.maxLines >= 0)));
    return mLayout->get();
}

// Lines up to maxLines, while each one's logical bottom lies within the box.
int Caption::lineCountOfLayout() const {
    PangoLayoutIter *it = pango_layout_get_iter(layout());
    int index = 0;
    do {
        if (mProperties.maxLines >= 0 && index >= mProperties.maxLines)
            break;
        if (logicalRect(it).Bottom() > mTextBox.Height())
            break;
        ++index;
    } while (pango_layout_iter_next_line(it));
    pango_layout_iter_free(it);
    return index;
}

void Caption::DrawIntoContext(DrawingContext *context) const {
    if (!context)
        return;
    std::vector<ShownLine> const lines = firstLines(layout(), mLineCount);
    if (lines.empty())
        return;
    Rect bounds = lines.front().logical;
    for (ShownLine const &l : lines)
        bounds = bounds.UnionRect(l.logical);
    if (!(bounds.Width() > 0))
        return;
    Point const standing(0, mTextBox.Height() - bounds.Height());
    Point const centring((mTextBox.Width() - bounds.Left() - bounds.Right()) * 0.5, 0);
    Point const block = mTextBox.topLeft + standing + (mProperties.centered ? centring : Point());
    if (!(std::fabs(block.x) <= kMaxBlockOffset && std::fabs(block.y) <= kMaxBlockOffset))
        return;

    SavedContextState saved(context);
    context->Translate(mTextBox.topLeft);
    context->Translate(standing);
    if (mProperties.centered)
        context->Translate(centring);
    float const radius = float(mMargin);
    if (mProperties.backgroundColor.alpha > 0 && std::isfinite(radius) && radius >= 0) {
        double const threeHalves = 4.71238898038469;
        Path background;
        background.AddArc(bounds.topLeft, radius, radius, kPi, threeHalves);
        background.AddArc(Point(bounds.Right(), bounds.Top()), radius, radius, threeHalves, 0);
        background.AddArc(bounds.bottomRight, radius, radius, 0, kPi / 2);
        background.AddArc(Point(bounds.Left(), bounds.Bottom()), radius, radius, kPi / 2, kPi);
        context->FillPath(mProperties.backgroundColor, background);
    }
    context->StartPath();
    auto eachLine = [&](void (DrawingContext::*draw)(PangoLayoutLine *)) {
        for (ShownLine const &l : lines) {
            Point const p(l.logical.Left(), l.baseline);
            context->Translate(p);
            (context->*draw)(l.line);
            context->Translate(-p);
        }
    };
    // The glyphs come after the outline and cover its inner half.
    if (mProperties.outlineColor.alpha > 0 && mProperties.outlineWidth > 0) {
        context->SetLineSettings(mProperties.outlineColor, mProperties.outlineWidth, LineJoinRound, LineCapRound);
        eachLine(&DrawingContext::DrawPangoLayoutLineOutline);
    }
    eachLine(&DrawingContext::DrawPangoLayoutLine);
}

std::vector<int> Caption::GetWordWrapUTF8Indexes() const {
    std::vector<int> indexes;
    PangoLayoutIter *it = pango_layout_get_iter(layout());
    size_t const shown = size_t(std::max(0, mLineCount));
    do {
        if (indexes.size() > shown)
            break;
        PangoLayoutLine *line = pango_layout_iter_get_line_readonly(it);
        indexes.push_back(line->start_index);
        if (pango_layout_iter_at_last_line(it) && indexes.size() <= shown)
            indexes.push_back(int(std::min<int64_t>(INT_MAX, int64_t(line->start_index) + line->length)));
    } while (pango_layout_iter_next_line(it));
    pango_layout_iter_free(it);
    return indexes;
}

std::vector<int> Caption::GetWordWrapCharacterIndexes() const {
    std::vector<int> indexes = GetWordWrapUTF8Indexes();
    for (int &i : indexes)
        i = CharacterIndexFromUTF8Index(mProperties.text, i);
    return indexes;
}

int Caption::SplitUTF8Index() const {
    std::vector<int> const indexes = GetWordWrapUTF8Indexes();
    return !indexes.empty() && indexes.back() < byteSize(mProperties.text) ? indexes.back() : -1;
}

int Caption::SplitCharacterIndex() const { return CharacterIndexFromUTF8Index(mProperties.text, SplitUTF8Index()); }

std::shared_ptr<Caption> Caption::MakeInfiniteHeightCaption() const {
    CaptionProperties unlimited = mProperties;
    unlimited.maxLines = -1;
    unlimited.rect.bottomRight.y = DBL_MAX;
    return std::make_shared<Caption>(unlimited, mAttributes, mMargin);
}

int Caption::CharacterIndexFromUTF8Index(std::string const &text, int index) {
    return index < 0 ? index : UTF8StringUtil::characterOffsetFromByteOffset(text, index);
}

int Caption::UTF8IndexFromCharacterIndex(std::string const &text, int index) {
    return index < 0 ? index : UTF8StringUtil::byteOffsetFromCharacterOffset(text, index);
}

void Caption::ExportText(ICaptionExportObserver &observer, std::string const &text, TextAttributeList const &attributes,
                         std::vector<int> const &indexes) {
    size_t next = !indexes.empty() && indexes.front() == 0 ? 1 : 0;
    if (next >= indexes.size())
        return;
    int const size = byteSize(text);
    // The text from position up to end, none where end is not beyond it.
    auto part = [&](int position, int end) {
        return end > position ? text.substr(size_t(position), size_t(end - position)) : std::string();
    };
    bool bold = false, italic = false, walking = true;
    PangoAttrIterator *it = pango_attr_list_get_iterator(attributes.pangoAttrList());
    do {
        int segmentStart = 0, segmentEnd = 0;
        pango_attr_iterator_range(it, &segmentStart, &segmentEnd);
        if (segmentStart >= size)
            break;
        int position = segmentStart;
        int const limit = std::min(size, segmentEnd);
        PangoAttribute *weight = pango_attr_iterator_get(it, PANGO_ATTR_WEIGHT);
        bool const newBold = weight && reinterpret_cast<PangoAttrInt *>(weight)->value >= 700;
        if (newBold != bold)
            observer.exportBold(segmentStart, newBold);
        bold = newBold;
        PangoAttribute *style = pango_attr_iterator_get(it, PANGO_ATTR_STYLE);
        bool const newItalic = style && reinterpret_cast<PangoAttrInt *>(style)->value > 0;
        if (newItalic != italic)
            observer.exportItalic(segmentStart, newItalic);
        italic = newItalic;
        if (limit <= position)
            continue;
        // The walk's position never goes back: a lower index counts as it.
        while (walking && std::max(indexes[next], position) <= limit) {
            int const w = std::max(indexes[next], position);
            bool const lf = w > position && text[size_t(w - 1)] == '\n';
            bool const cr = w - 2 >= position && text[size_t(w - 2)] == '\r';
            int const trim = lf ? 1 + (cr ? 1 : 0) : 0;
            observer.exportText(position, part(position, w - trim));
            position = w;
            if (++next >= indexes.size())
                walking = false;
            else
                observer.exportLineBreak(position, lf || cr);
        }
        if (!walking)
            break;
        if (indexes[next] > position)
            observer.exportText(position, part(position, limit));
    } while (pango_attr_iterator_next(it));
    pango_attr_iterator_destroy(it);
    if (bold)
        observer.exportBold(size, false);
    if (italic)
        observer.exportItalic(size, false);
}

} // namespace Vantrel
