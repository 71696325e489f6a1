// The text geometry that drawing text reports to a host that asks for it.
#pragma once

#include <vantrel/values/Rect.h>

#include <vector>

namespace Vantrel {

// Filled by DrawTextW: the ink of each cluster and its baseline, in the
// drawing's coordinates, and the layout's size in whole pixels.
struct DrawOutputMetaData {
    std::vector<Rect> clusterRects;    // one per cluster, in layout order
    std::vector<int> clusterBaselines; // one per cluster, in pixels
    int layoutWidth = 0;
    int layoutHeight = 0;
};

} // namespace Vantrel
