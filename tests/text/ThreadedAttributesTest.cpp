// The spin lock of a TextAttributeList under two threads.
#include "support/ThreadSupport.h"

#include <gtest/gtest.h>

#include <thread>

using namespace Vantrel;

TEST(Threads, AttributeListLockSerialisesAddsAndCopies) {
    int const perThread = 300;
    int wrong = 0;
    // One list per round, shared by a pair of threads that add and copy.
    VantrelTest::runThreadsForAWhile(1, [&](int, int) {
        TextAttributeList list;
        auto add = [&](int parity) {
            for (int i = 0; i < perThread; ++i) {
                int at = (2 * i + parity) * 4;
                list.addFontSizeAttribute(Range(at, at + 2), 10 + (2 * i + parity) % 7);
                TextAttributeList snapshot(list); // copying locks the source
            }
        };
        std::thread a(add, 0), b(add, 1);
        a.join();
        b.join();
        int sizes = 0;
        for (PangoAttribute *attribute : list.pangoAttributes())
            sizes += TextAttributeList::typeOfPangoAttribute(attribute) == TextAttributeList::FontSize;
        wrong += sizes != 2 * perThread;
    });
    EXPECT_EQ(wrong, 0);
}
