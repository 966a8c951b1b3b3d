#include "tests/support/toolkit/FakeImage.h"

#include <utility>

namespace zqbchwcx::testing {
namespace {

constexpr Rect Cell = MakeRect(0, 0, 18, 60); ///< of a place or module

std::vector<Rect> FrameLines(const std::string& key)
{
    std::vector<Rect> lines{{0, 0, Cell.right, 1}, {0, Cell.bottom - 1, Cell.right, Cell.bottom}};
    const bool bTotal = key.ends_with("TOTAL");
    if (bTotal || key.ends_with("LEFT")) lines.push_back({0, 0, 1, Cell.bottom});
    if (bTotal || key.ends_with("RIGHT")) lines.push_back({Cell.right - 1, 0, Cell.right, Cell.bottom});
    return lines;
}

/// Of a distributed station, where a place is 22 x 72: what stands around the places, and places and modules that let
/// what is behind them show around them.
std::vector<Rect> DistributedParts(const std::string& key)
{
    const Size size = key.find("_PLACESTART_") != std::string::npos ? Size{1, 72}
                      : key.find("_RACK_") != std::string::npos     ? Size{12, 72}
                                                                    : Size{22, 72};
    const bool bWhole = size.width < 22 || key.starts_with("IDB_RIOA_PLACEFRAME") || key.starts_with("IDB_RIOB_PLACE");
    return {bWhole ? MakeRect(0, 0, size.width, size.height) : MakeRect(2, 2, size.width - 4, size.height - 4)};
}

std::vector<Rect> OpaqueParts(const std::string& key)
{
    if (key.starts_with("IDB_RIO")) return DistributedParts(key);
    if (key == "IDB_CRX_RACK")
        return {{0, 0, 218, 1}, {0, 61, 218, 62}, {0, 1, 1, 14}, {13, 1, 14, 14}, {0, 14, 14, 61}, {212, 1, 218, 61}};
    if (key.starts_with("IDB_CRX_RACKNR")) return {{0, 0, 12, 13}};
    if (key.starts_with("IDB_CRX_FRAME_")) return FrameLines(key);
    if (key.starts_with("IDB_COMP_")) return {{0, 0, 16, 16}};
    if (key == "IDB_DIAG_FAILURE") return {{0, 0, 12, 12}};
    if (key.starts_with("IDB_DIAG_")) return {{0, 0, 12, 8}};
    return {{0, 0, 18, 34}, {0, 46, 18, 60}, {0, 34, 2, 46}, {17, 34, 18, 46}};
}

} // namespace

FakeImage::FakeImage(std::string sKey) : key(std::move(sKey)), opaque(OpaqueParts(key)) {}

} // namespace zqbchwcx::testing
