// A pair of text offsets: bytes or characters, as the caller says.
#pragma once

#include <vantrel/VantrelExport.h>

#include <cstdint>
#include <iosfwd>

namespace Vantrel {

// start and end are stored as given; a reversed range has a negative length.
// A default Range is (-1, -1), which callers read as "no range".
class VANTREL_EXPORT Range {
public:
    Range() = default;
    Range(int32_t start, int32_t end) : mStart(start), mEnd(end) {}

    int32_t start() const { return mStart; }
    int32_t end() const { return mEnd; }
    void setStart(int32_t s) { mStart = s; }
    void setEnd(int32_t e) { mEnd = e; }

    // Wraps like unsigned arithmetic for ranges spanning more than the int range.
    int32_t length() const { return int32_t(uint32_t(mEnd) - uint32_t(mStart)); }
    Range normalized() const { return mStart <= mEnd ? *this : Range(mEnd, mStart); }
    // Overlap of two ranges; ranges that only touch give the empty range at the
    // point of contact, disjoint ones (0, 0).
    Range intersection(Range const &o) const;

private:
    int32_t mStart = -1;
    int32_t mEnd = -1;
};

inline bool operator==(Range const &a, Range const &b) { return a.start() == b.start() && a.end() == b.end(); }
inline bool operator!=(Range const &a, Range const &b) { return !(a == b); }

// Writes "(start,end)".
VANTREL_EXPORT std::ostream &operator<<(std::ostream &os, Range const &r);

} // namespace Vantrel
