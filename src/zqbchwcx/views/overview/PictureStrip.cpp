#include "zqbchwcx/views/overview/PictureStrip.h"

#include "zqbchwcx/foundation/ServiceRoot.h"

namespace zqbchwcx {

ImageListPtr LoadStrip(TextModule& textModule, const PictureStrip& strip)
{
    constexpr std::int32_t lReserved = 0;
    constexpr std::int32_t lFlags = 1;
    auto list = G_ServiceRoot().toolkit->GetImageListFactory().Create(textModule.hInstance(), strip.name,
                                                                      strip.lCellWidth, lReserved, vxColorCyan, lFlags);
    std::int32_t lCell = 0;
    for (const auto key : strip.keys) list->Key(lCell++, key);
    return list;
}

} // namespace zqbchwcx
