// The pictures the verbs write: a transparent bitmap over a rectangle, and
// its PNG file.
#pragma once

#include <vantrel/Vantrel.h>

#include <memory>
#include <string>

namespace VantrelTool {

// A cleared picture of the whole pixels around r, translated so that r's
// coordinates draw in place. A UsageError, naming what r is, when a side is
// not 1 to 16000 pixels.
std::unique_ptr<Vantrel::CrossPlatformDrawingContextWithBuiltInBitmap> pictureOver(Vantrel::Rect const &r,
                                                                                   std::string const &what);

// 0 when written, 1 (with a message) when not.
int writePng(Vantrel::CrossPlatformDrawingContext &picture, std::string const &path);

} // namespace VantrelTool
