// A layout that an object keeps between calls (a caption, an editing
// session) while the object may be handed from thread to thread.
//
// Each thread lays text out with a font map of its own, and a layout's fonts
// live in the map of the thread that built it, which pango does not let two
// threads use at once. So a kept layout is used only on the thread that
// built it: its keeper asks isHome() before each use and, on another
// thread, builds the layout again there from the same inputs. The old one
// is then not released on the new thread while its own thread may still be
// laying text out; it is sent home and released at that thread's next text
// work, or when that thread ends. Layouts whose thread has ended are
// released at once, one at a time, since they may still share its map.
#pragma once

#include <memory>
#include <pango/pango.h>

namespace Vantrel {

class LayoutHome;

class KeptLayout {
public:
    KeptLayout() = default;
    // Sends the layout home to be released.
    ~KeptLayout();
    KeptLayout(KeptLayout const &) = delete;
    KeptLayout &operator=(KeptLayout const &) = delete;

    // Takes ownership of a layout built on the calling thread, sending the
    // one held before home.
    void reset(PangoLayout *layout);
    PangoLayout *get() const { return mLayout; }
    // Whether the layout may be used on the calling thread: the thread built
    // it, or there is none.
    bool isHome() const;

private:
    PangoLayout *mLayout = nullptr;
    std::shared_ptr<LayoutHome> mHome;
};

// Releases the layouts that other threads sent home to the calling thread.
// buildTextLayout calls it; cheap when there are none.
void releaseLayoutsSentHome();

} // namespace Vantrel
