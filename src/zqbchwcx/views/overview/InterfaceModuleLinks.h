#pragma once

#include "zqbchwcx/platform/Toolkit.h"
#include "zqbchwcx/views/shared/ViewContext.h"

#include <array>

namespace zqbchwcx {

/// The bars that link the interface modules of neighbouring racks.
class InterfaceModuleLinks {
public:
    /// The place that interface modules sit in.
    static constexpr std::int32_t PlaceNumber = 3;

    explicit InterfaceModuleLinks(const ViewContext& context) : mContext(context) {}

    /// Makes the bars, hidden, as children of the control.
    void Create(Toolkit& toolkit, UserControl& oControl);
    void Hide();
    /// Shows the bars between those racks that both have an interface module.
    void Update() noexcept;

private:
    bool HasInterfaceModule(std::int32_t lRack) const;

    const ViewContext& mContext;
    std::array<FramePtr, 3> mafraIMLink;
};

} // namespace zqbchwcx
