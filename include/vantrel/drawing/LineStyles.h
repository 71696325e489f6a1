// How a stroke ends and turns: the values of cairo's cairo_line_cap_t and
// cairo_line_join_t, which are handed over as they are.
#pragma once

namespace Vantrel {

enum LineCapTypes { LineCapButt = 0, LineCapRound = 1, LineCapSquare = 2 };
enum LineJoinTypes { LineJoinMiter = 0, LineJoinRound = 1, LineJoinBevel = 2 };

} // namespace Vantrel
