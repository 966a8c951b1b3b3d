#include "tests/support/toolkit/Raster.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace zqbchwcx::testing {
namespace {

std::uint64_t Mixed(std::uint64_t ink, std::uint64_t value)
{
    return (ink ^ value) * 0x9E3779B97F4A7C15ULL + (ink >> 29);
}

std::uint64_t ColorInk(OleColor color)
{
    return Mixed(1, static_cast<std::uint32_t>(color));
}

} // namespace

void Raster::Resize(Size size, OleColor color)
{
    Raster before = std::exchange(*this, {});
    mSize = size;
    mcolInks.assign(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height), ColorInk(color));
    for (std::int32_t y = 0; y < std::min(size.height, before.mSize.height); ++y)
        for (std::int32_t x = 0; x < std::min(size.width, before.mSize.width); ++x) *At(x, y) = *before.At(x, y);
}

void Raster::Fill(const Rect& rect, OleColor color)
{
    const std::int32_t left = std::clamp(rect.left, 0, mSize.width);
    const std::int32_t right = std::clamp(rect.right, left, mSize.width);
    for (std::int32_t y = std::max(rect.top, 0); y < std::min(rect.bottom, mSize.height); ++y)
        std::fill_n(At(left, y), right - left, ColorInk(color));
}

void Raster::Text(std::string_view text, const Rect& box, FontWeight weight, OleColor color, OleColor background)
{
    constexpr std::int32_t charWidth = 6;
    constexpr std::int32_t cellHeight = 13;
    constexpr std::int32_t glyphTop = 3;
    constexpr std::int32_t glyphBottom = 11;
    const auto width = charWidth * static_cast<std::int32_t>(text.size());
    const Rect cell =
        MakeRect(box.left + (box.width() - width) / 2, box.top + (box.height() - cellHeight) / 2, width, cellHeight);
    Fill(cell, background);
    const auto look = static_cast<std::uint64_t>(weight) + 2 * std::uint64_t{static_cast<std::uint32_t>(color)};
    Paint({0, glyphTop, width, glyphBottom}, {cell.left, cell.top}, Mixed(std::hash<std::string_view>()(text), look));
}

void Raster::Draw(const FakeImage& image, Point at, DrawStyle style)
{
    const bool bBlended =
        style == DrawStyle::Blended || style == DrawStyle::TransparentBlended || style == DrawStyle::OpaqueBlended;
    const Ink drawing = Mixed(std::hash<std::string>()(image.key), bBlended ? 1 : 0);
    for (const Rect& part : image.opaque) Paint(part, at, drawing);
}

void Raster::InvertOutline(const Rect& rect)
{
    constexpr Ink inverted = 0x8000000000000000ULL;
    for (std::int32_t y = rect.top; y < rect.bottom; ++y) {
        for (std::int32_t x = rect.left; x < rect.right; ++x) {
            const bool bEdge = y == rect.top || y == rect.bottom - 1 || x == rect.left || x == rect.right - 1;
            Ink* const ink = bEdge && (x + y) % 2 == 0 ? At(x, y) : nullptr;
            if (ink != nullptr) *ink ^= inverted;
        }
    }
}

std::string Raster::FirstDifference(const Raster& a, const Raster& b)
{
    if (a.mSize != b.mSize) return "size";
    if (a.mcolInks == b.mcolInks) return {};
    const auto difference = std::mismatch(a.mcolInks.begin(), a.mcolInks.end(), b.mcolInks.begin()).first;
    const auto index = difference - a.mcolInks.begin();
    return std::to_string(index % a.mSize.width) + "," + std::to_string(index / a.mSize.width);
}

void Raster::Paint(const Rect& part, Point corner, Ink drawing)
{
    for (std::int32_t y = part.top; y < part.bottom; ++y) {
        for (std::int32_t x = part.left; x < part.right; ++x) {
            Ink* const ink = At(corner.x + x, corner.y + y);
            if (ink != nullptr)
                *ink = Mixed(drawing, static_cast<std::uint64_t>(x) * 4096 + static_cast<std::uint64_t>(y));
        }
    }
}

Raster::Ink* Raster::At(std::int32_t x, std::int32_t y)
{
    const bool bInside = x >= 0 && y >= 0 && x < mSize.width && y < mSize.height;
    return bInside ? &mcolInks[static_cast<std::size_t>(std::ptrdiff_t{y} * mSize.width + x)] : nullptr;
}

} // namespace zqbchwcx::testing
