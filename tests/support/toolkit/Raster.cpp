#include "tests/support/toolkit/Raster.h"

#include <algorithm>
#include <functional>

namespace zqbchwcx::testing {
namespace {

Raster::Ink Mixed(Raster::Ink ink, std::uint64_t value)
{
    return (ink ^ value) * 0x9E3779B97F4A7C15ULL + (ink >> 29);
}

Raster::Ink ColorInk(OleColor color)
{
    return Mixed(1, static_cast<std::uint32_t>(color));
}

/// The inks of one picture, all different.
class Pattern {
public:
    Pattern(std::string_view name, std::uint64_t look) : mBase(Mixed(std::hash<std::string_view>()(name), look)) {}

    Raster::Ink At(std::int32_t x, std::int32_t y) const
    {
        return Mixed(mBase, static_cast<std::uint64_t>(x) * 4096 + static_cast<std::uint64_t>(y));
    }

private:
    Raster::Ink mBase;
};

} // namespace

void Raster::Resize(Size size, OleColor color)
{
    Raster resized;
    resized.mSize = size;
    resized.mcolInks.assign(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height),
                            ColorInk(color));
    for (std::int32_t y = 0; y < mSize.height; ++y)
        for (std::int32_t x = 0; x < mSize.width; ++x) resized.Set({x, y}, At({x, y}));
    *this = std::move(resized);
}

void Raster::Fill(const Rect& rect, OleColor color)
{
    const std::int32_t left = std::clamp(rect.left, 0, mSize.width);
    const std::int32_t right = std::clamp(rect.right, left, mSize.width);
    for (std::int32_t y = std::max(rect.top, 0); y < std::min(rect.bottom, mSize.height); ++y)
        std::fill_n(mcolInks.begin() + y * mSize.width + left, right - left, ColorInk(color));
}

void Raster::Text(std::string_view text, const Rect& box, FontWeight weight, OleColor color, OleColor background)
{
    constexpr std::int32_t charWidth = 6;
    constexpr std::int32_t cellHeight = 13;
    constexpr Rect glyphRows{0, 3, 0, 11};
    const auto width = charWidth * static_cast<std::int32_t>(text.size());
    const Rect cell =
        MakeRect(box.left + (box.width() - width) / 2, box.top + (box.height() - cellHeight) / 2, width, cellHeight);
    Fill(cell, background);
    const Pattern pattern(text,
                          static_cast<std::uint64_t>(weight) + 2 * std::uint64_t{static_cast<std::uint32_t>(color)});
    for (std::int32_t y = glyphRows.top; y < glyphRows.bottom; ++y)
        for (std::int32_t x = 0; x < width; ++x) Set({cell.left + x, cell.top + y}, pattern.At(x, y));
}

void Raster::Draw(const FakeImage& image, Point at, DrawStyle style)
{
    const Size size = image.PictureSize();
    const bool bBlended = style == DrawStyle::Blended || style == DrawStyle::TransparentBlended;
    const Pattern pattern(image.Key(), bBlended ? 1 : 0);
    for (std::int32_t y = 0; y < size.height; ++y) {
        for (std::int32_t x = 0; x < size.width; ++x) {
            if (image.IsOpaque({x, y})) Set({at.x + x, at.y + y}, pattern.At(x, y));
        }
    }
}

void Raster::InvertOutline(const Rect& rect)
{
    constexpr Ink inverted = 0x8000000000000000ULL;
    for (std::int32_t y = rect.top; y < rect.bottom; ++y) {
        for (std::int32_t x = rect.left; x < rect.right; ++x) {
            const bool bEdge = y == rect.top || y == rect.bottom - 1 || x == rect.left || x == rect.right - 1;
            if (bEdge && (x + y) % 2 == 0) Set({x, y}, At({x, y}) ^ inverted);
        }
    }
}

Raster::Ink Raster::At(Point at) const
{
    if (!Contains(at)) return 0;
    return mcolInks[static_cast<std::size_t>(at.y) * static_cast<std::size_t>(mSize.width) +
                    static_cast<std::size_t>(at.x)];
}

std::string Raster::FirstDifference(const Raster& a, const Raster& b)
{
    if (a.mSize == b.mSize && a.mcolInks == b.mcolInks) return {};
    for (std::int32_t y = 0; y < std::max(a.mSize.height, b.mSize.height); ++y) {
        for (std::int32_t x = 0; x < std::max(a.mSize.width, b.mSize.width); ++x) {
            if (a.At({x, y}) != b.At({x, y})) return std::to_string(x) + "," + std::to_string(y);
        }
    }
    return {};
}

bool Raster::Contains(Point at) const
{
    return at.x >= 0 && at.y >= 0 && at.x < mSize.width && at.y < mSize.height;
}

void Raster::Set(Point at, Ink ink)
{
    if (!Contains(at)) return;
    mcolInks[static_cast<std::size_t>(at.y) * static_cast<std::size_t>(mSize.width) + static_cast<std::size_t>(at.x)] =
        ink;
}

} // namespace zqbchwcx::testing
