#pragma once

#include "tests/support/toolkit/FakeImage.h"
#include "zqbchwcx/platform/Surface.h"

#include <cstdint>
#include <string_view>

namespace zqbchwcx::testing {

/// What is on a picture, pixel by pixel: for each one which part of which drawing lies on top. Two pictures that look
/// the same have the same raster.
class Raster {
public:
    /// Keeps what fits; new pixels are in the colour.
    void Resize(Size size, OleColor color);
    Size RasterSize() const { return mSize; }

    void Fill(const Rect& rect, OleColor color);
    void Text(std::string_view text, const Rect& box, FontWeight weight, OleColor color, OleColor background);
    void Draw(const FakeImage& image, Point at, DrawStyle style);
    /// Inverts every other pixel of the outline; twice is never.
    void InvertOutline(const Rect& rect);

    /// Where the two differ, as "x,y"; empty when they are the same.
    static std::string FirstDifference(const Raster& a, const Raster& b);

private:
    using Ink = std::uint64_t;

    /// Gives every pixel of the part of a drawing, whose corner lies there, an ink of its own.
    void Paint(const Rect& part, Point corner, Ink drawing);
    /// Null outside the picture.
    Ink* At(std::int32_t x, std::int32_t y);

    Size mSize;
    std::vector<Ink> mcolInks;
};

} // namespace zqbchwcx::testing
