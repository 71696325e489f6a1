#include <vantrel/values/Range.h>

#include <algorithm>
#include <ostream>

namespace Vantrel {

Range Range::intersection(Range const &o) const {
    int32_t s = std::max(mStart, o.mStart);
    int32_t e = std::min(mEnd, o.mEnd);
    return s <= e ? Range(s, e) : Range(0, 0);
}

std::ostream &operator<<(std::ostream &os, Range const &r) { return os << '(' << r.start() << ',' << r.end() << ')'; }

} // namespace Vantrel
