// Measures ink: a cairo recording context whose extents are what the same
// drawing would have put on pixels, strokes, caps and miters included.
#pragma once

#include <vantrel/drawing/CrossPlatformDrawingContext.h>

namespace Vantrel {

class BoundsFinder : public CrossPlatformDrawingContext {
public:
    BoundsFinder() : CrossPlatformDrawingContext(nullptr) {}
    ~BoundsFinder() override = default;

    // Lays out no text: the text box counts as ink.
    void DrawTextW(TextCalloutProperties const &properties, TextAttributeList const &attributes,
                   DrawOutputMetaData *metadata) override;
    Rect InkExtents() override { return CrossPlatformDrawingContext::InkExtents(); }
};

} // namespace Vantrel
