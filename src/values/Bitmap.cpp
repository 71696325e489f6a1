#include <vantrel/values/Bitmap.h>

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstdlib>
#include <cstring>

namespace Vantrel {

Bitmap::Bitmap(int width, int height) { allocate(width, height); }

Bitmap::Bitmap(PointInt size) { allocate(size.x, size.y); }

Bitmap::Bitmap(void *data, int width, int height, int bytesPerRow)
    : mData(data), mWidth(std::max(width, 0)), mHeight(height), mBytesPerRow(bytesPerRow) {
    if (height < 0) {
        // Bottom-up: start at the last row and step backwards, so that row 0 is the visual top.
        if (height == INT_MIN)
            height = INT_MIN + 1;
        mHeight = -height;
        if (mData)
            mData = static_cast<uint8_t *>(mData) + int64_t(mHeight - 1) * bytesPerRow;
        mBytesPerRow = -bytesPerRow;
    }
}

Bitmap::~Bitmap() { release(); }

Bitmap::Bitmap(Bitmap const &other) {
    if (other.mOwnsData) {
        allocate(other.mWidth, other.mHeight);
        copyPixelsFrom(other);
    } else {
        mData = other.mData;
        mWidth = other.mWidth;
        mHeight = other.mHeight;
        mBytesPerRow = other.mBytesPerRow;
    }
}

Bitmap &Bitmap::operator=(Bitmap const &other) {
    if (this != &other) {
        Bitmap copy(other);
        *this = std::move(copy);
    }
    return *this;
}

Bitmap::Bitmap(Bitmap &&other) noexcept
    : mData(other.mData), mOwnsData(other.mOwnsData), mWidth(other.mWidth), mHeight(other.mHeight),
      mBytesPerRow(other.mBytesPerRow) {
    other.mData = nullptr;
    other.mOwnsData = false;
    other.mWidth = other.mHeight = other.mBytesPerRow = 0;
}

Bitmap &Bitmap::operator=(Bitmap &&other) noexcept {
    if (this != &other) {
        release();
        std::swap(mData, other.mData);
        std::swap(mOwnsData, other.mOwnsData);
        std::swap(mWidth, other.mWidth);
        std::swap(mHeight, other.mHeight);
        std::swap(mBytesPerRow, other.mBytesPerRow);
    }
    return *this;
}

void Bitmap::allocate(int width, int height) {
    mOwnsData = true;
    width = std::max(width, 0);
    height = std::max(height, 0);
    // Pixel addresses are computed in int, so a buffer must stay below 2 GiB.
    int64_t bytes = int64_t(width) * 4 * height;
    if (bytes > INT_MAX)
        return;
    mData = bytes > 0 ? std::malloc(size_t(bytes)) : nullptr;
    if (mData || bytes == 0) {
        mWidth = width;
        mHeight = height;
        mBytesPerRow = width * 4;
    }
}

void Bitmap::release() {
    if (mOwnsData)
        std::free(mData);
    mData = nullptr;
    mOwnsData = false;
}

void Bitmap::copyPixelsFrom(Bitmap const &src) {
    if (!mData || !src.mData)
        return;
    int rows = std::min(mHeight, src.mHeight);
    size_t rowBytes = size_t(std::min(mWidth, src.mWidth)) * 4;
    for (int y = 0; y < rows; ++y)
        std::memcpy(bufAt(0, y), src.bufAt(0, y), rowBytes);
}

void Bitmap::clear() {
    if (!mData)
        return;
    for (int y = 0; y < mHeight; ++y)
        std::memset(bufAt(0, y), 0, size_t(mWidth) * 4);
}

boost::shared_ptr<Bitmap> Bitmap::clone() const {
    boost::shared_ptr<Bitmap> copy(mData ? new Bitmap(mWidth, mHeight) : new Bitmap(0, 0));
    copy->copyPixelsFrom(*this);
    return copy;
}

Bitmap Bitmap::subRect(RectInt const &r) const {
    // Rows first as a range [top, top + rows), then clipped; negative heights flip the view.
    bool bottomUp = int64_t(r.bottom) - r.top < 0;
    int64_t rows = std::llabs(int64_t(r.bottom) - r.top);
    int64_t left = std::max<int64_t>(r.left, 0);
    int64_t right = std::min<int64_t>(r.right, mWidth);
    int64_t top = std::max<int64_t>(r.top, 0);
    int64_t bottom = std::min<int64_t>(int64_t(r.top) + rows, mHeight);
    if (!mData || right <= left || bottom <= top)
        return Bitmap(nullptr, 0, 0, mBytesPerRow);
    int w = int(right - left);
    int h = int(bottom - top);
    Bitmap view(const_cast<uint8_t *>(bufAt(int(left), int(top))), w, bottomUp ? -h : h, mBytesPerRow);
    return view;
}

void Bitmap::copyFrom(Bitmap const &src, int x, int y) {
    if (x < 0 || y < 0 || int64_t(x) + src.mWidth > mWidth || int64_t(y) + src.mHeight > mHeight || !mData ||
        !src.mData)
        return;
    for (int row = 0; row < src.mHeight; ++row)
        std::memmove(bufAt(x, y + row), src.bufAt(0, row), size_t(src.mWidth) * 4);
}

Bitmap Bitmap::shallowCopy() const {
    Bitmap view;
    view.mData = mData;
    view.mWidth = mWidth;
    view.mHeight = mHeight;
    view.mBytesPerRow = mBytesPerRow;
    return view;
}

Color32 Bitmap::lerpPixelAt(double x, double y) const {
    double fx0 = std::floor(x), fy0 = std::floor(y);
    // Written so that a NaN also lands outside.
    if (!mData || !(fx0 + 1 >= 0 && fx0 < mWidth && fy0 + 1 >= 0 && fy0 < mHeight))
        return Color32();
    int ix = int(fx0), iy = int(fy0);
    int fx = int((x - ix) * 256.0), fy = int((y - iy) * 256.0);
    int weights[4] = {(256 - fx) * (256 - fy), fx * (256 - fy), (256 - fx) * fy, fx * fy};
    int xs[4] = {ix, ix + 1, ix, ix + 1};
    int ys[4] = {iy, iy, iy + 1, iy + 1};
    uint32_t sum[3] = {32768, 32768, 32768};
    for (int i = 0; i < 4; ++i) {
        if (xs[i] < 0 || xs[i] >= mWidth || ys[i] < 0 || ys[i] >= mHeight)
            continue;
        uint8_t const *p = bufAt(xs[i], ys[i]);
        for (int c = 0; c < 3; ++c)
            sum[c] += uint32_t(p[c]) * uint32_t(weights[i]);
    }
    Color32 out;
    out.b = uint8_t(sum[0] >> 16);
    out.g = uint8_t(sum[1] >> 16);
    out.r = uint8_t(sum[2] >> 16);
    out.a = 255;
    return out;
}

} // namespace Vantrel
