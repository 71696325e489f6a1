// A 32-bit premultiplied pixel buffer (cairo's ARGB32), owned or a view of
// someone else's memory.
#pragma once

#include <vantrel/VantrelExport.h>
#include <vantrel/values/Color.h>
#include <vantrel/values/Rect.h>

#include <boost/shared_ptr.hpp>
#include <cstdint>

namespace Vantrel {

// Pixel (x, y) starts at bitmapData() + y * bytesPerRow() + x * 4; each pixel
// is the native word 0xAARRGGBB, premultiplied. Row 0 is always the visual
// top: a bottom-up buffer is described by a negative bytesPerRow.
//
// Ownership: a Bitmap built with a size owns a malloc'ed buffer and frees it;
// one built over a caller's buffer, a subRect() and a shallowCopy() never own,
// and the buffer must outlive them.
//
// Copying: copying an owning Bitmap (construction or assignment) makes a deep
// copy with a buffer of its own, like clone(); copying a view makes another
// view of the same memory, like shallowCopy(). Moving hands the buffer over
// and leaves the source an empty view.
//
// Guards: sizes that are negative count as 0 (except a negative height over a
// caller's buffer, which means bottom-up), and an owning Bitmap whose byte
// count would not fit in an int is treated like a failed allocation: it ends
// up with no data and a size of 0 by 0. Every operation here but bufAt()
// tolerates a Bitmap without data.
class VANTREL_EXPORT Bitmap {
public:
    // Owning, contents uninitialised.
    Bitmap(int width, int height);
    explicit Bitmap(PointInt size);
    // A view of the caller's buffer. A negative height means the buffer is
    // bottom-up: the view starts at its last row and steps backwards.
    Bitmap(void *data, int width, int height, int bytesPerRow);
    ~Bitmap();

    Bitmap(Bitmap const &other);
    Bitmap &operator=(Bitmap const &other);
    Bitmap(Bitmap &&other) noexcept;
    Bitmap &operator=(Bitmap &&other) noexcept;

    int width() const { return mWidth; }
    int height() const { return mHeight; }
    int bytesPerRow() const { return mBytesPerRow; }
    void *bitmapData() const { return mData; }
    bool ownsData() const { return mOwnsData; }
    PointInt size() const { return PointInt(mWidth, mHeight); }
    RectInt rect() const { return RectInt(0, 0, mWidth, mHeight); }

    // Unchecked, like operator[]: the caller keeps (x, y) inside the Bitmap.
    uint8_t *bufAt(int x, int y) { return static_cast<uint8_t *>(mData) + (y * mBytesPerRow + x * 4); }
    uint8_t const *bufAt(int x, int y) const {
        return static_cast<uint8_t const *>(mData) + (y * mBytesPerRow + x * 4);
    }

    // Zeroes the pixels, row by row (width * 4 bytes of each row), so that it
    // is equally right on a view, bottom-up or narrower than its rows, and
    // never touches the bytes between rows.
    void clear();
    // A new owning Bitmap of the same size and pixels, tightly packed. A
    // Bitmap without data clones to an empty one.
    boost::shared_ptr<Bitmap> clone() const;
    // A view of the pixels inside r, clipped to this Bitmap: a rect reaching
    // outside gives the view of the part that exists, one entirely outside an
    // empty view. A negative height in r means a bottom-up view of the rows
    // r.top to r.top - height - 1, whose first row is r.top's.
    Bitmap subRect(RectInt const &r) const;
    // Copies all of src with its top-left pixel at (x, y). Does nothing unless
    // src fits entirely and both have data.
    void copyFrom(Bitmap const &src, int x, int y);
    Bitmap shallowCopy() const;
    // Bilinear sample with 8-bit weights; samples outside count as zero
    // pixels and the alpha of the result is always 255 within one pixel of the
    // Bitmap, zero beyond.
    Color32 lerpPixelAt(double x, double y) const;

private:
    Bitmap() = default;
    void allocate(int width, int height);
    void copyPixelsFrom(Bitmap const &src);
    void release();

    void *mData = nullptr;
    bool mOwnsData = false;
    int mWidth = 0;
    int mHeight = 0;
    int mBytesPerRow = 0;
};

} // namespace Vantrel
