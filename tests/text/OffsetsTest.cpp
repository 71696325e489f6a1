#include <vantrel/Vantrel.h>

#include <gtest/gtest.h>

#include <stdexcept>

using namespace Vantrel;
using U = UTF8StringUtil;

TEST(UTF8StringUtil, MultiByteOffsets) {
    std::string text = "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80z"; // a é € 😀 z: 1, 2, 3, 4, 1 bytes
    EXPECT_EQ(U::length(text), 5);
    EXPECT_EQ(U::byteOffsetFromCharacterOffset(text, 0), 0);
    EXPECT_EQ(U::byteOffsetFromCharacterOffset(text, 2), 3);
    EXPECT_EQ(U::byteOffsetFromCharacterOffset(text, 4), 10);
    EXPECT_EQ(U::characterOffsetFromByteOffset(text, 6), 3);
    EXPECT_EQ(U::characterOffsetFromByteOffset(text, 11), 5);
    EXPECT_EQ(U::characterOffsetFromByteOffset(text, 4), 3); // inside the euro sign: it began before
    EXPECT_EQ(U::byteOffsetRangeFromCharacterOffsetRange(text, Range(1, 3)), Range(1, 6));
    EXPECT_EQ(U::byteOffsetRangeOfText(text), Range(0, 11));

    std::string edited = text;
    U::removeCharacterRange(edited, Range(1, 3));
    EXPECT_EQ(edited, "a\xF0\x9F\x98\x80z");
    U::removeCharacterRange(edited, Range(1, 50)); // cut to what the text holds
    EXPECT_EQ(edited, "a");
    EXPECT_THROW(U::removeCharacterRange(edited, Range(3, 4)), std::out_of_range);
    EXPECT_THROW(U::removeCharacterRange(edited, Range(-1, 0)), std::out_of_range);

    EXPECT_EQ(U::length(""), 0);
    EXPECT_EQ(U::byteOffsetRangeOfText(""), Range(0, 0));
    EXPECT_FALSE(U::isRightToLeftLanguage(""));
    EXPECT_FALSE(U::isRightToLeftLanguage(nullptr));
}

TEST(UTF8StringUtil, RightToLeftLooksAtTheFirstCharacterOnly) {
    EXPECT_TRUE(U::isRightToLeftLanguage("\xD8\xB3\xD9\x84\xD8\xA7\xD9\x85"));   // Arabic
    EXPECT_TRUE(U::isRightToLeftLanguage("\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D"));   // Hebrew
    EXPECT_FALSE(U::isRightToLeftLanguage(" \xD8\xB3\xD9\x84\xD8\xA7\xD9\x85")); // a blank first
    EXPECT_FALSE(U::isRightToLeftLanguage("1\xD8\xB3"));
    EXPECT_FALSE(U::isRightToLeftLanguage("abc \xD8\xB3"));
}

TEST(UTF8StringUtil, NeverReadsPastTheText) {
    // Lead bytes that promise more bytes than the text has, and offsets out of range.
    for (std::string bad :
         {std::string("\xF0"), std::string("ab\xE2\x82"), std::string("\xFF\xFE\x80"), std::string("a\0b", 3)}) {
        int size = int(bad.size());
        EXPECT_LE(U::byteOffsetFromCharacterOffset(bad, 100), size);
        EXPECT_GE(U::byteOffsetFromCharacterOffset(bad, -5), 0);
        EXPECT_LE(U::characterOffsetFromByteOffset(bad, 100), size);
        EXPECT_EQ(U::characterOffsetFromByteOffset(bad, -3), 0);
        Range r = U::byteOffsetRangeFromCharacterOffsetRange(bad, Range(-2, 99));
        EXPECT_LE(r.end(), size);
        EXPECT_LE(U::byteOffsetRangeOfText(bad).end(), size);
        U::isRightToLeftLanguage(bad);
        std::string copy = bad;
        U::removeCharacterRange(copy, Range(0, 99));
    }
}
