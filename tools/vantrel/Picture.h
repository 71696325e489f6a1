// The pictures the verbs write: a transparent bitmap over a rectangle, and
// its PNG file.
#pragma once

#include <vantrel/Vantrel.h>

#include <functional>
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

// The value of a --frames option: a whole number from 1 to 1000.
int frameCount(std::string const &option, std::string const &value);
// A reveal of frames pictures from progress 0 to 1 (a single frame at 1),
// each written by write to the name the pattern (with one %d) gives it; a
// UsageError for another pattern. The first status that is not 0, or 0.
int writeFrames(std::string const &pattern, int frames,
                std::function<int(double progress, std::string const &path)> const &write);

} // namespace VantrelTool
