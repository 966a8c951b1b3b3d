#include "zqbchwcx/views/overview/InterfaceModuleLinks.h"

#include "zqbchwcx/foundation/mdl_ErrorHandler.h"
#include "zqbchwcx/foundation/model/VxHWModule.h"
#include "zqbchwcx/foundation/model/VxHWRack.h"
#include "zqbchwcx/foundation/model/VxHWRackPlace.h"
#include "zqbchwcx/foundation/model/VxHWRackPlaces.h"
#include "zqbchwcx/foundation/model/VxHWRacks.h"

namespace zqbchwcx {
namespace {

constexpr std::array LinkTops{274, 182, 90};
constexpr std::int32_t LinkLeft = 78;
constexpr Size LinkSize{3, 32};

void Show(const FramePtr& fraLink, bool bVisible)
{
    if (fraLink && fraLink->Visible() != bVisible) fraLink->Visible(bVisible);
}

} // namespace

void InterfaceModuleLinks::Create(Toolkit& toolkit, UserControl& oControl)
{
    for (std::size_t k = 0; k < mafraIMLink.size(); ++k) {
        mafraIMLink[k] = toolkit.CreateFrame(oControl, "fra_IMLink",
                                             MakeRect(LinkLeft, LinkTops[k], LinkSize.width, LinkSize.height));
        mafraIMLink[k]->Visible(false);
    }
}

void InterfaceModuleLinks::Hide()
{
    for (const auto& fraLink : mafraIMLink) Show(fraLink, false);
}

void InterfaceModuleLinks::Update() noexcept
{
    G_Trap(mContext.className, "P_CheckIMLinks", [&] {
        bool bBelow = HasInterfaceModule(0);
        std::int32_t lRack = 0;
        for (const auto& fraLink : mafraIMLink) {
            const bool bAbove = HasInterfaceModule(++lRack);
            Show(fraLink, bBelow && bAbove);
            bBelow = bAbove;
        }
    });
}

bool InterfaceModuleLinks::HasInterfaceModule(std::int32_t lRack) const
{
    const auto oRacks = mContext.Station()->Racks();
    if (lRack >= oRacks->Count()) return false;
    const auto oPlaces = oRacks->Item(lRack)->Places();
    return oPlaces->Count() >= PlaceNumber && !oPlaces->Item(PlaceNumber)->Module()->IsEmpty();
}

} // namespace zqbchwcx
