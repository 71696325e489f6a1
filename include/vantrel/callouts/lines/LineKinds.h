// The named values of LineEnd::kind and ShaftSpec::kind. The fields stay
// plain ints, so that a host may store any number: a kind these tables do
// not name draws nothing (a cap) or a tapered bar (a shaft).
#pragma once

namespace Vantrel {

// What each end cap kind draws; the themes' cap designs pick from these.
namespace EndCapKind {
enum EndCapKind : int {
    None = 0,          // nothing: the shaft reaches the very end
    Dot = 1,           // a small round dot, the line's own width
    Circle = 2,        // a round dot twice the line's width
    BasicDiamond = 3,  // a diamond with slightly rounded corners
    BasicArrow = 4,    // an arrow head with a notched back
    BoldArrow = 5,     // a plain triangular arrow head
    BoldDiamond = 6,   // half a diamond: a trapezium, wide at the tip end
    ModernArrow = 7,   // a triangle with rounded corners
    ModernDiamond = 8, // the Basic diamond, in Modern's table
    AbstractArrow = 9, // a triangle with more rounded corners
    AbstractTail = 10, // a swallow tail running back along the line
    Square = 11,       // a square across the line
    UrbanArrow = 12,   // a short, blunt triangle
    UrbanDiamond = 13, // a diamond with sharp corners
};
} // namespace EndCapKind

// What each shaft kind draws between the caps. Dash patterns are dash, gap,
// dash... as multiples of the shaft's width.
namespace ShaftKind {
enum ShaftKind : int {
    Tapered = 0,            // a bar from its width at the start to its end width
    BasicDots = 1,          // round dots, gaps of half a dot
    BasicDashes = 2,        // dashes of 3.2, gaps of 1
    BoldShortDashes = 3,    // square dashes of 1, gaps of 0.4
    BoldDashDot = 4,        // 2, 0.4, 1, 0.4
    ModernDashes = 5,       // 1.7, 0.75
    ModernDots = 6,         // round dots, gaps of half a dot
    Bar = 7,                // one solid bar, its free ends optionally rounded
    AbstractDashDotDot = 8, // 2, 1, 1, 1, 1, 1, its free ends optionally rounded
    AbstractDots = 9,       // round dots, gaps of 0.4 of a dot
    UrbanLongDashes = 10,   // 5, 0.5
    UrbanShortDashes = 11,  // 1, 1.5
};
} // namespace ShaftKind

} // namespace Vantrel
