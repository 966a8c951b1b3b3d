#pragma once

#include "zqbchwcx/views/overview/InterfaceModuleLinks.h"
#include "zqbchwcx/views/overview/OverviewControl.h"

namespace zqbchwcx {

/// The overview of a central station: up to four racks of eleven places each, one above the other.
class VxHWRackOverview : public OverviewControl {
public:
    explicit VxHWRackOverview(UserControl& oControl) noexcept;

    /// The point that stands for the position, in logical pixels of the control.
    void CoordinatesByPosition(std::int32_t lPosition, std::int32_t& X, std::int32_t& Y) const noexcept;
    /// The position under the point, given in logical pixels of the control; -1 for none.
    void PositionByCoordinates(std::int32_t X, std::int32_t Y, std::int32_t& lPosition) const noexcept;

    // IVxHWControl
    /// Always 0: the view is for central stations only. Writes are ignored.
    VxEnumStationType StationType() const noexcept override { return vxStationTypeCentral; }
    void StationType(VxEnumStationType /*eStationType*/) noexcept override {}

private:
    void Resize() noexcept override;
    void Arrange() override { mLinks.Hide(); }
    const PictureStrip* PlacePictures() const override { return &G_CentralPictures; }
    void OnPlaceDrawn(std::int32_t lPlace) override;

    InterfaceModuleLinks mLinks;
};

} // namespace zqbchwcx
