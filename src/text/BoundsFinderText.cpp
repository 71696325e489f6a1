// The measuring context's text operation. Until the text engine stands it
// measures nothing.
#include "../drawing/BoundsFinder.h"

namespace Vantrel {

void BoundsFinder::DrawTextW(TextCalloutProperties const &, TextAttributeList const &, DrawOutputMetaData *) {}

} // namespace Vantrel
