#include "zqbchwcx/views/overview/PictureStrip.h"

#include "zqbchwcx/foundation/ServiceRoot.h"

namespace zqbchwcx {
namespace {

ImageListPtr MakeList(TextModule& textModule, const PictureStrip& strip)
{
    constexpr std::int32_t lReserved = 0;
    constexpr std::int32_t lFlags = 1;
    ImageListFactory& factory = G_ServiceRoot().toolkit->GetImageListFactory();
    if (!strip.bAdded)
        return factory.Create(textModule.hInstance(), strip.name, strip.cell.width, lReserved, vxColorCyan, lFlags);
    auto list = factory.CreateEmpty(strip.cell, vxColorCyan);
    factory.AddStrip(*list, textModule.hInstance(), strip.name);
    return list;
}

} // namespace

ImageListPtr LoadStrip(TextModule& textModule, const PictureStrip& strip)
{
    auto list = MakeList(textModule, strip);
    std::int32_t lCell = 0;
    for (const auto key : strip.keys) list->Key(lCell++, key);
    return list;
}

} // namespace zqbchwcx
