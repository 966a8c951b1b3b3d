#include "zqbchwcx/views/shared/DragThreshold.h"

#include "zqbchwcx/foundation/ServiceRoot.h"
#include "zqbchwcx/foundation/VxError.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"

#include <charconv>
#include <string>

namespace zqbchwcx {
namespace {

constexpr std::string_view KeyPath = "Control Panel\\Desktop";

std::int32_t ReadPixels(std::string_view name)
{
    const std::string stored = G_ServiceRoot().settingsReader->Read(KeyPath, name, "4");
    std::int32_t lPixels = 0;
    const char* const end = stored.data() + stored.size();
    const auto parsed = std::from_chars(stored.data(), end, lPixels);
    if (parsed.ec != std::errc() || parsed.ptr != end || lPixels < 0) {
        throw VxError(vxErrorInvalidArgument, "The setting \"" + std::string(name) + "\" under \"" +
                                                  std::string(KeyPath) + "\" is no number of pixels: \"" + stored +
                                                  "\"");
    }
    return lPixels;
}

} // namespace

Size G_DragThreshold(std::string_view className) noexcept
{
    Size threshold{4, 4};
    G_Trap(className, "P_ReadDragDelayFromRegistry", [&] { threshold.width = ReadPixels("DragWidth"); });
    G_Trap(className, "P_ReadDragDelayFromRegistry", [&] { threshold.height = ReadPixels("DragHeight"); });
    return threshold;
}

} // namespace zqbchwcx
