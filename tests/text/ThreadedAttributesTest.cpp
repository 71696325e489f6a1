// The spin lock of a TextAttributeList under two threads.
#include <vantrel/Vantrel.h>

#include <gtest/gtest.h>

#include <thread>

using namespace Vantrel;

TEST(Threads, AttributeListLockSerialisesAddsAndCopies) {
    TextAttributeList list;
    int const perThread = 300;
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
    EXPECT_EQ(sizes, 2 * perThread);
}
