#include "zqbchwcx/foundation/mdl_Main.h"

#include "zqbchwcx/foundation/ServiceRoot.h"
#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/mdl_VarConst.h"
#include "zqbchwcx/platform/Desktop.h"

#include <algorithm>
#include <cstdlib>

namespace zqbchwcx {
namespace {

constexpr std::string_view ModuleName = "mdl_Main";

struct Channels {
    std::int32_t red;
    std::int32_t green;
    std::int32_t blue;
};

Channels SplitChannels(OleColor rgb)
{
    const std::int32_t blue = rgb / 65536;
    const std::int32_t green = (rgb - 65536 * blue) / 256;
    return {rgb - 65536 * blue - 256 * green, green, blue};
}

std::int32_t MiddleChannel(std::int32_t a, std::int32_t b)
{
    return std::max(a, b) - std::abs(a - b) / 2;
}

} // namespace

void G_PositionInfo(std::int32_t lPosition, VxEnumPositionType& eType, std::int32_t& lRack, std::int32_t& lNumber,
                    std::int32_t& lSubPosition) noexcept
{
    const PositionInfo info = G_PositionInfo(lPosition);
    eType = info.eType;
    lRack = info.lRack;
    lNumber = info.lNumber;
    if (lPosition >= 0) lSubPosition = info.lSubPosition;
}

std::string G_HWPicDir() noexcept
{
    std::string sDirectory;
    G_Trap(ModuleName, "G_HWPicDir", [&] {
        auto& root = G_ServiceRoot();
        std::string sStored = root.settingsReader->Read("Software\\Halvar\\Quillon_Ed\\General\\Paths", "DataDirectory",
                                                        root.libraryDirectory);
        if (!sStored.ends_with('\\')) sStored += '\\';
        sDirectory = sStored + "HWPics\\";
    });
    return sDirectory;
}

OleColor G_TranslateColor(OleColor color, std::intptr_t hPalette) noexcept
{
    OleColor result = -1;
    G_Trap(ModuleName, "G_TranslateColor",
           [&] { result = G_ServiceRoot().toolkit->GetDesktop().TranslateColor(color, hPalette).value_or(-1); });
    return result;
}

OleColor G_GetMiddleColor(OleColor color1, OleColor color2) noexcept
{
    const Channels a = SplitChannels(G_TranslateColor(color1, 0));
    const Channels b = SplitChannels(G_TranslateColor(color2, 0));
    return G_Rgb(MiddleChannel(a.red, b.red), MiddleChannel(a.green, b.green), MiddleChannel(a.blue, b.blue));
}

OleColor G_ColorDisabledBackground() noexcept
{
    if (G_TranslateColor(vxColorLight3D, 0) == G_TranslateColor(vxColorButtonFace, 0))
        return G_GetMiddleColor(vxColorButtonHighlight, vxColorButtonFace);
    return vxColorLight3D;
}

HostApplicationPtr G_GetApplication() noexcept
{
    HostApplicationPtr oApplication;
    G_Trap(ModuleName, "G_GetApplication", [&] {
        ObjectLookupPtr oLookup;
        G_IgnoreErrors([&] { oLookup = G_ServiceRoot().objectFactory->CreateObjectLookup(); });
        if (!oLookup) return;
        if (oLookup->Status(G_ApplicationClassId) != 0) return;
        oApplication = oLookup->Object(G_ApplicationClassId);
    });
    return oApplication;
}

void G_DoWaitCursor(std::int32_t lCode) noexcept
{
    G_Trap(ModuleName, "G_DoWaitCursor", [&] {
        if (const auto oApplication = G_GetApplication()) {
            oApplication->DoWaitCursor(lCode);
            return;
        }
        auto& desktop = G_ServiceRoot().toolkit->GetDesktop();
        if (lCode == -1) desktop.ScreenMousePointer(MousePointer::Default);
        else if (lCode == 0 || lCode == 1) desktop.ScreenMousePointer(MousePointer::Hourglass);
    });
}

} // namespace zqbchwcx
