// Vantrel: annotation callouts drawn into a host's pixel buffers.
// Every public type of the library, and nothing else.
#pragma once

#include <vantrel/values/Bitmap.h>
#include <vantrel/values/Color.h>
#include <vantrel/values/Matrix3x3.h>
#include <vantrel/values/Point.h>
#include <vantrel/values/Polygon.h>
#include <vantrel/values/Range.h>
#include <vantrel/values/Rect.h>

#include <vantrel/drawing/CrossPlatformDrawingContext.h>
#include <vantrel/drawing/DrawingContext.h>
#include <vantrel/drawing/LineStyles.h>

#include <vantrel/geometry/Path.h>

#include <vantrel/text/DrawOutputMetaData.h>
#include <vantrel/text/PangoFonts.h>
#include <vantrel/text/TextAttributeList.h>
#include <vantrel/text/TextCalloutProperties.h>
#include <vantrel/text/UTF8StringUtil.h>

#include <vantrel/callouts/Presets.h>
#include <vantrel/callouts/arrows/TextArrows.h>
#include <vantrel/callouts/frame/BaseCallout.h>
#include <vantrel/callouts/frame/TextCallout.h>
#include <vantrel/callouts/lines/LineWithCaps.h>
#include <vantrel/callouts/lines/Lines.h>
#include <vantrel/callouts/rectangles/TextRectangles.h>
#include <vantrel/callouts/shapes/CustomPath.h>
#include <vantrel/callouts/shapes/Shapes.h>
#include <vantrel/callouts/speech/SpeechBubbles.h>
#include <vantrel/callouts/thought/ThoughtBubbles.h>

#include <vantrel/editing/TextEditingSession.h>

#include <vantrel/captions/Caption.h>

#include <vantrel/sprites/SpriteSheet.h>

#include <vantrel/sketch/SketchMotionCallout.h>
