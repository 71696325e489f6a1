#include <vantrel/Vantrel.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <vector>

using namespace Vantrel;

namespace {

uint32_t pixel(Bitmap const &b, int x, int y) {
    uint32_t v;
    std::memcpy(&v, b.bufAt(x, y), 4);
    return v;
}

void setPixel(Bitmap &b, int x, int y, uint32_t v) { std::memcpy(b.bufAt(x, y), &v, 4); }

// A buffer whose pixel word is its index, so that views can be checked.
std::vector<uint32_t> numbered(int count) {
    std::vector<uint32_t> v(count);
    for (int i = 0; i < count; ++i)
        v[i] = uint32_t(i);
    return v;
}

} // namespace

TEST(Bitmap, BottomUpBufferStartsAtTheLastRow) {
    std::vector<uint32_t> buffer = numbered(12);
    Bitmap b(buffer.data(), 4, -3, 16);
    EXPECT_EQ(b.height(), 3);
    EXPECT_EQ(b.bytesPerRow(), -16);
    EXPECT_FALSE(b.ownsData());
    EXPECT_EQ(pixel(b, 0, 0), 8u);
    EXPECT_EQ(pixel(b, 3, 2), 3u);
    EXPECT_EQ(b.rect(), RectInt(0, 0, 4, 3));
}

TEST(Bitmap, SubRectViewsAndClipping) {
    std::vector<uint32_t> buffer = numbered(20); // 5 by 4
    Bitmap b(buffer.data(), 5, 4, 20);
    Bitmap view = b.subRect(RectInt(1, 1, 4, 3));
    EXPECT_EQ(view.size(), PointInt(3, 2));
    EXPECT_EQ(pixel(view, 0, 0), 6u);
    EXPECT_EQ(pixel(view, 2, 1), 13u);
    EXPECT_FALSE(view.ownsData());

    // Reaching outside gives the part that exists.
    Bitmap clipped = b.subRect(RectInt(-2, 2, 3, 10));
    EXPECT_EQ(clipped.size(), PointInt(3, 2));
    EXPECT_EQ(pixel(clipped, 0, 0), 10u);
    EXPECT_EQ(b.subRect(RectInt(7, 0, 9, 2)).size(), PointInt(0, 0));

    // A negative height is a bottom-up view whose buffer starts at r.top.
    Bitmap flipped = b.subRect(RectInt(0, 1, 2, -1));
    EXPECT_EQ(flipped.size(), PointInt(2, 2));
    EXPECT_EQ(pixel(flipped, 0, 0), 10u);
    EXPECT_EQ(pixel(flipped, 1, 1), 6u);

    // Clearing a view touches only its pixels.
    view.clear();
    EXPECT_EQ(buffer[6], 0u);
    EXPECT_EQ(buffer[13], 0u);
    EXPECT_EQ(buffer[5], 5u);
    EXPECT_EQ(buffer[9], 9u);
    flipped.clear();
    EXPECT_EQ(buffer[5], 0u);
    EXPECT_EQ(buffer[10], 0u);
    EXPECT_EQ(buffer[14], 14u); // in the view's rows, outside its columns
    EXPECT_EQ(buffer[4], 4u);   // rows outside the view
    EXPECT_EQ(buffer[15], 15u);
}

TEST(Bitmap, CopyFromOnlyWhenTheSourceFits) {
    Bitmap dst(4, 4);
    dst.clear();
    Bitmap src(2, 2);
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 2; ++x)
            setPixel(src, x, y, 0xFF000000u | uint32_t(y * 2 + x + 1));
    dst.copyFrom(src, 2, 2);
    EXPECT_EQ(pixel(dst, 2, 2), 0xFF000001u);
    EXPECT_EQ(pixel(dst, 3, 3), 0xFF000004u);
    EXPECT_EQ(pixel(dst, 1, 1), 0u);
    Bitmap before = dst;
    for (auto at : {PointInt(3, 0), PointInt(0, 3), PointInt(-1, 0), PointInt(0, -1), PointInt(INT32_MAX, 0)})
        dst.copyFrom(src, at.x, at.y);
    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 4; ++x)
            EXPECT_EQ(pixel(dst, x, y), pixel(before, x, y));
}

TEST(Bitmap, CloneAndCopiesOwnTheirPixels) {
    std::vector<uint32_t> buffer = numbered(6);
    Bitmap view(buffer.data(), 3, -2, 12);
    boost::shared_ptr<Bitmap> clone = view.clone();
    EXPECT_TRUE(clone->ownsData());
    EXPECT_EQ(clone->bytesPerRow(), 12);
    EXPECT_EQ(pixel(*clone, 0, 0), 3u);
    EXPECT_EQ(pixel(*clone, 2, 1), 2u);

    Bitmap owning = *clone;
    EXPECT_TRUE(owning.ownsData());
    EXPECT_NE(owning.bitmapData(), clone->bitmapData());
    setPixel(owning, 0, 0, 99);
    EXPECT_EQ(pixel(*clone, 0, 0), 3u);

    Bitmap viewCopy = view; // a view stays a view
    EXPECT_FALSE(viewCopy.ownsData());
    EXPECT_EQ(viewCopy.bitmapData(), view.bitmapData());
    Bitmap shallow = owning.shallowCopy();
    EXPECT_FALSE(shallow.ownsData());
    EXPECT_EQ(shallow.bitmapData(), owning.bitmapData());

    Bitmap moved = std::move(owning);
    EXPECT_TRUE(moved.ownsData());
    EXPECT_EQ(owning.bitmapData(), nullptr);
    owning = moved; // assigning into a moved-from Bitmap
    EXPECT_EQ(pixel(owning, 0, 0), 99u);
}

TEST(Bitmap, UnusableSizesGiveAnEmptyBitmap) {
    Bitmap huge(70000, 70000); // more bytes than an int can address
    EXPECT_EQ(huge.bitmapData(), nullptr);
    EXPECT_EQ(huge.size(), PointInt(0, 0));
    huge.clear();
    EXPECT_EQ(huge.clone()->size(), PointInt(0, 0));
    Bitmap negative(-5, 3);
    EXPECT_EQ(negative.width(), 0);
    Bitmap src(1, 1);
    huge.copyFrom(src, 0, 0);
    EXPECT_EQ(huge.lerpPixelAt(0, 0), Color32());
}

TEST(Bitmap, LerpPixelAtEdges) {
    Bitmap one(1, 1);
    setPixel(one, 0, 0, 0xFFFFFFFFu);
    EXPECT_EQ(one.lerpPixelAt(0, 0), Color32(255, 255, 255, 255));
    Color32 half = one.lerpPixelAt(-0.5, 0);
    EXPECT_EQ(half.a, 255); // alpha is never sampled
    EXPECT_EQ(half.r, 128);
    EXPECT_EQ(one.lerpPixelAt(-1.5, 0), Color32());
    EXPECT_EQ(one.lerpPixelAt(1.0, 0), Color32());
    EXPECT_EQ(one.lerpPixelAt(std::nan(""), 0), Color32());
    EXPECT_EQ(one.lerpPixelAt(1e300, -1e300), Color32());

    Bitmap two(2, 1);
    setPixel(two, 0, 0, 0xFF000000u); // black
    setPixel(two, 1, 0, 0x80FF0000u); // red, half alpha
    Color32 mid = two.lerpPixelAt(0.25, 0);
    EXPECT_EQ(mid.r, 64); // (255 * 64 + 32768) >> 16
    EXPECT_EQ(mid.g, 0);
    EXPECT_EQ(mid.a, 255);
}
