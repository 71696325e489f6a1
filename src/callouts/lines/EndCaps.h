// End caps and arrow heads: the small closed shapes at the ends of a line.
// A cap is pure geometry of one number, its size: its outline with the tip at
// the origin and the line running along positive x, and how much of the line
// it takes up.
#pragma once

#include <vantrel/callouts/lines/LineKinds.h>
#include <vantrel/values/Polygon.h>

#include <boost/shared_ptr.hpp>

namespace Vantrel {

class EndCap {
public:
    explicit EndCap(double size_) : size(size_) {}
    virtual ~EndCap() = default;
    virtual Polygon outline() const = 0;
    // Where the shaft starts, measured from the tip; joined says whether the
    // shaft runs on into the cap.
    virtual double shaftInset(bool joined) const = 0;

protected:
    double size;
};

class NullEndCap : public EndCap {
public:
    using EndCap::EndCap;
    Polygon outline() const override { return Polygon(); }
    double shaftInset(bool) const override { return 0; }
};

class CircleEndCap : public EndCap {
public:
    using EndCap::EndCap;
    Polygon outline() const override;
    double shaftInset(bool joined) const override { return joined ? size * 0.5 : size; }
};

class SquareEndCap : public EndCap {
public:
    using EndCap::EndCap;
    Polygon outline() const override;
    double shaftInset(bool) const override { return size - 0.001; }
};

class BasicDiamondEndCap : public EndCap {
public:
    BasicDiamondEndCap(double size_, double roundingRatio_) : EndCap(size_), roundingRatio(roundingRatio_) {}
    Polygon outline() const override;
    double shaftInset(bool joined) const override { return joined ? size * 0.5 : size; }

private:
    double roundingRatio;
};

// Half a diamond: a trapezium whose wide side lies at the tip end.
class BoldDiamondEndCap : public EndCap {
public:
    using EndCap::EndCap;
    Polygon outline() const override;
    double shaftInset(bool) const override { return size * 0.375 - 0.001; }
};

class BasicArrowHead : public EndCap {
public:
    using EndCap::EndCap;
    Polygon outline() const override;
    double shaftInset(bool) const override { return size * 0.39; }
};

class BoldArrowHead : public EndCap {
public:
    using EndCap::EndCap;
    Polygon outline() const override;
    double shaftInset(bool joined) const override { return joined ? size * 0.699 : size * 0.7; }
};

class ModernArrowHead : public EndCap {
public:
    using EndCap::EndCap;
    Polygon outline() const override;
    double shaftInset(bool) const override { return size * 0.57; }
};

class AbstractArrowHead : public EndCap {
public:
    using EndCap::EndCap;
    Polygon outline() const override;
    double shaftInset(bool) const override { return size * 0.65 - 0.001; }
};

class UrbanArrowHead : public EndCap {
public:
    using EndCap::EndCap;
    Polygon outline() const override;
    double shaftInset(bool) const override { return size * 0.41 - 0.001; }
};

// A swallow tail: its notch at the line's end, its point 1.6 sizes along the line.
class AbstractTail : public EndCap {
public:
    using EndCap::EndCap;
    Polygon outline() const override;
    double shaftInset(bool joined) const override { return joined ? 1.1 * size : 1.6 * size; }
};

// The cap of an EndCapKind; null for any other number.
boost::shared_ptr<EndCap> makeEndCap(int kind, double size);

} // namespace Vantrel
