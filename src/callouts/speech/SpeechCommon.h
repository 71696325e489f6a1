// What the speech bubbles of every theme share: the one tail of the
// one-tail designs, and the bound on the tails a draw unites.
#pragma once

#include <vantrel/callouts/speech/SpeechBubbles.h>

#include <algorithm>

namespace Vantrel {

// The tail a one-tail design reads: the first, or for an empty list the
// box's centre, which lies within the body and so gives no tail.
inline Point firstTail(std::vector<Point> const &tails, Rect const &box) {
    return tails.empty() ? box.Center() : tails.front();
}

// How many of the tails a draw takes.
inline size_t drawnTails(std::vector<Point> const &tails) {
    return std::min(tails.size(), size_t(kMaxSpeechBubbleTails));
}

} // namespace Vantrel
