#include "text/KeptLayout.h"

#include <mutex>
#include <utility>
#include <vector>

namespace Vantrel {

// One thread's record: the layouts sent to it for release, and whether it has ended.
class LayoutHome {
public:
    std::mutex mutex;
    bool ended = false;
    std::vector<PangoLayout *> sent;
};

namespace {

void release(std::vector<PangoLayout *> const &layouts) {
    for (PangoLayout *layout : layouts)
        g_object_unref(layout);
}

// The calling thread's record while it lives, and whether it has ended:
// trivially destructible, so that they still read right when a kept layout
// goes after the record (a host's static object, at the end of the process).
thread_local LayoutHome *tLiveHome = nullptr;
thread_local bool tHomeEnded = false;

// The calling thread's record; on the thread's end it releases what was sent
// to it and marks itself ended, so that later layouts are released at once.
struct ThreadHome {
    std::shared_ptr<LayoutHome> home = std::make_shared<LayoutHome>();
    ThreadHome() { tLiveHome = home.get(); }
    ~ThreadHome() {
        tLiveHome = nullptr;
        tHomeEnded = true;
        std::lock_guard<std::mutex> guard(home->mutex);
        home->ended = true;
        release(home->sent);
        home->sent.clear();
    }
};
thread_local ThreadHome tHome;

// The calling thread's record, made at its first use; null once it ended.
std::shared_ptr<LayoutHome> currentHome() { return tHomeEnded ? nullptr : tHome.home; }

void sendHome(PangoLayout *layout, std::shared_ptr<LayoutHome> const &home) {
    if (!layout)
        return;
    if (!home || home.get() == tLiveHome) {
        g_object_unref(layout);
        return;
    }
    std::lock_guard<std::mutex> guard(home->mutex);
    if (home->ended) {
        // Released here, under the record's lock: others may release
        // layouts of the same ended thread's map at the same time.
        g_object_unref(layout);
        return;
    }
    home->sent.push_back(layout);
}

} // namespace

KeptLayout::~KeptLayout() { sendHome(mLayout, mHome); }

void KeptLayout::reset(PangoLayout *layout) {
    sendHome(mLayout, mHome);
    mLayout = layout;
    mHome = currentHome();
}

// A layout built after its thread's record ended has no home but this thread.
bool KeptLayout::isHome() const { return !mLayout || (mHome ? mHome.get() == currentHome().get() : tHomeEnded); }

void releaseLayoutsSentHome() {
    if (tHomeEnded)
        return;
    LayoutHome &home = *tHome.home;
    std::vector<PangoLayout *> sent;
    {
        std::lock_guard<std::mutex> guard(home.mutex);
        if (home.sent.empty())
            return;
        sent.swap(home.sent);
    }
    release(sent);
}

} // namespace Vantrel
