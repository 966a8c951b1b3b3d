#pragma once

#include "tests/support/Samples.h"
#include "zqbchwcx/controllers/interfaces/IVxHWControl.h"
#include "zqbchwcx/foundation/Event.h"
#include "zqbchwcx/platform/UserControl.h"
#include "zqbchwcx/views/config/VxHWRackOverview.h"
#include "zqbchwcx/views/config/VxHWRackTable.h"
#include "zqbchwcx/views/overview/CentralPlaceLayout.h"
#include "zqbchwcx/views/overview/PlaceStyle.h"

#include <array>
#include <ostream>

namespace zqbchwcx::testing {

/// A kind of station with the views that show it, for suites that run on every kind. A view is asked through it for
/// what `IVxHWControl` does not have; points are logical pixels.
struct ViewVariant {
    const char* name;
    const char* overviewClass; ///< as it reports errors
    const char* tableClass;
    VxEnumStationType eStationType;
    /// The largest station that the overview shows whole.
    std::size_t racks;
    std::size_t places;
    /// Stations of this kind. The first one has inputs in place 4, sub-modules in 5 to 7 and no inputs in 10.
    std::vector<const char*> examples;

    IVxHWControlPtr (*makeOverview)(UserControl& oControl);
    IVxHWControlPtr (*makeTable)(UserControl& oControl);
    const PlaceStyle& style;
    /// Where a place lies in the overview's picture.
    Rect (*placeRect)(const IVxHWControl& overview, std::int32_t lRack, std::int32_t lPlace);
    /// The position's point in the overview's control.
    Point (*pointOf)(const IVxHWControl& overview, std::int32_t lPosition);
    Event<>& (*contentChange)(IVxHWControl& overview);
    Event<>& (*selChange)(IVxHWControl& overview);
};

inline void PrintTo(const ViewVariant& variant, std::ostream* stream)
{
    *stream << variant.name;
}

template <class View>
IVxHWControlPtr MakeControl(UserControl& oControl)
{
    return std::make_shared<View>(oControl);
}

template <class Overview>
Point PointOfPosition(const IVxHWControl& overview, std::int32_t lPosition)
{
    Point at;
    dynamic_cast<const Overview&>(overview).CoordinatesByPosition(lPosition, at.x, at.y);
    return at;
}

inline const std::array ViewVariants{
    ViewVariant{"Central",
                "VxHWRackOverview",
                "VxHWRackTable",
                vxStationTypeCentral,
                CentralPlaceLayout::RackCount,
                CentralPlaceLayout::PlaceCount,
                {"bottling-filler", "waterworks", "packaging-line", "tank-farm"},
                &MakeControl<VxHWRackOverview>,
                &MakeControl<VxHWRackTable>,
                G_CentralPlaceStyle,
                [](const IVxHWControl&, std::int32_t lRack, std::int32_t lPlace) {
                    return CentralPlaceLayout().PlaceRect(lRack, lPlace);
                },
                &PointOfPosition<VxHWRackOverview>,
                [](IVxHWControl& view) -> Event<>& { return dynamic_cast<VxHWRackOverview&>(view).ContentChange; },
                [](IVxHWControl& view) -> Event<>& { return dynamic_cast<VxHWRackOverview&>(view).SelChange; }},
};
inline const ViewVariant& CentralViews = ViewVariants.front();

} // namespace zqbchwcx::testing
