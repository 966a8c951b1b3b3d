#include "tests/support/toolkit/FakeImage.h"

#include <utility>

namespace zqbchwcx::testing {
namespace {

constexpr Size RailSize{218, 62};
constexpr Size PlaceSize{18, 60};

bool IsWithin(Point at, std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom)
{
    return at.x >= left && at.x < right && at.y >= top && at.y < bottom;
}

Size SizeOf(const std::string& key)
{
    if (key == "IDB_CRX_RACK") return RailSize;
    if (key.starts_with("IDB_CRX_RACKNR")) return {12, 13};
    if (key.starts_with("IDB_COMP_")) return {16, 16};
    if (key == "IDB_DIAG_FAILURE") return {12, 12};
    if (key.starts_with("IDB_DIAG_")) return {12, 8};
    return PlaceSize;
}

} // namespace

FakeImage::FakeImage(std::string key) : msKey(std::move(key)), mSize(SizeOf(msKey))
{
    for (std::int32_t y = 0; y < mSize.height; ++y)
        for (std::int32_t x = 0; x < mSize.width; ++x) mcolOpaque.push_back(HasInkAt({x, y}));
}

bool FakeImage::HasInkAt(Point at) const
{
    if (msKey == "IDB_CRX_RACK") return !IsWithin(at, 14, 1, 212, 61) && !IsWithin(at, 1, 1, 13, 14);
    if (msKey.starts_with("IDB_CRX_FRAME_")) return IsFrameLine(at);
    if (mSize == PlaceSize) return !IsWithin(at, 2, 34, 17, 46);
    return true;
}

bool FakeImage::IsFrameLine(Point at) const
{
    const bool bHasLeft = msKey.ends_with("LEFT") || msKey.ends_with("TOTAL");
    const bool bHasRight = msKey.ends_with("RIGHT") || msKey.ends_with("TOTAL");
    return at.y == 0 || at.y == PlaceSize.height - 1 || (bHasLeft && at.x == 0) ||
           (bHasRight && at.x == PlaceSize.width - 1);
}

} // namespace zqbchwcx::testing
