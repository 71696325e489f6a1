// `vantrel draw caption`: a Caption, which is no callout, drawn from the
// draw verb's text settings and options of its own.
#pragma once

#include "Catalogue.h"

#include <string>

namespace VantrelTool {

struct CaptionRequest {
    int maxLines = -1;
    bool centered = false;
    Vantrel::Color background = Vantrel::Color(0, 0, 0, 0);
    Vantrel::Color outline = Vantrel::Color(0, 0, 0, 0);
    double outlineWidth = 0;
    double margin = 0; // the caption's own margin, not the picture's
    bool exportCalls = false;
    bool infinite = false;
};

// The settings' text, box, font, size, colour and alignment with the request's caption options.
Vantrel::CaptionProperties captionProperties(Settings const &settings, CaptionRequest const &caption);

// Prints the caption's wrap and split indexes (and, when asked, what
// ExportText tells an observer), and writes its rect plus pictureMargin as a
// PNG: 0 when written, 1 when not.
int writeCaption(Settings const &settings, CaptionRequest const &caption, double pictureMargin,
                 std::string const &path);

} // namespace VantrelTool
