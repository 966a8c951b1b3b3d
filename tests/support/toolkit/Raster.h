#pragma once

#include "platform/Surface.h"
#include "tests/support/toolkit/FakeImage.h"

#include <cstdint>
#include <string_view>

namespace zqbchwcx::testing {

/// What is on a picture, pixel by pixel: for each one which part of which drawing lies on top. Two pictures that look
/// the same have the same raster.
class Raster {
public:
    using Ink = std::uint64_t;

    /// Keeps what fits; new pixels are in the colour.
    void Resize(Size size, OleColor color);
    Size RasterSize() const { return mSize; }

    void Fill(const Rect& rect, OleColor color);
    void Text(std::string_view text, const Rect& box, FontWeight weight, OleColor color, OleColor background);
    void Draw(const FakeImage& image, Point at, DrawStyle style);
    /// Inverts every other pixel of the outline; twice is never.
    void InvertOutline(const Rect& rect);

    Ink At(Point at) const;
    /// Where the two differ, as "x,y"; empty when they are the same.
    static std::string FirstDifference(const Raster& a, const Raster& b);

private:
    bool Contains(Point at) const;
    void Set(Point at, Ink ink);

    Size mSize;
    std::vector<Ink> mcolInks;
};

} // namespace zqbchwcx::testing
