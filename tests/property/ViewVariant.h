#pragma once

#include "tests/support/Samples.h"
#include "zqbchwcx/controllers/interfaces/IVxHWControl.h"
#include "zqbchwcx/platform/Geometry.h"
#include "zqbchwcx/platform/UserControl.h"
#include "zqbchwcx/views/config/VxHWRackOverview.h"
#include "zqbchwcx/views/config/VxHWRackTable.h"

#include <array>
#include <ostream>

namespace zqbchwcx::testing {

/// A kind of station with the views that show it, for suites that run on every kind.
struct ViewVariant {
    const char* name;
    VxEnumStationType eStationType;
    std::vector<const char*> examples;
    IVxHWControlPtr (*makeOverview)(UserControl& oControl);
    IVxHWControlPtr (*makeTable)(UserControl& oControl);
    /// The position's point in the overview, in logical pixels of its control.
    Point (*pointOf)(const IVxHWControl& overview, std::int32_t lPosition);
};

inline void PrintTo(const ViewVariant& variant, std::ostream* stream)
{
    *stream << variant.name;
}

template <class Overview, class Table>
ViewVariant MakeVariant(const char* name, VxEnumStationType eStationType, std::vector<const char*> examples)
{
    return {name,
            eStationType,
            std::move(examples),
            [](UserControl& oControl) -> IVxHWControlPtr { return std::make_shared<Overview>(oControl); },
            [](UserControl& oControl) -> IVxHWControlPtr { return std::make_shared<Table>(oControl); },
            [](const IVxHWControl& overview, std::int32_t lPosition) {
                Point at;
                dynamic_cast<const Overview&>(overview).CoordinatesByPosition(lPosition, at.x, at.y);
                return at;
            }};
}

inline const std::array ViewVariants{
    MakeVariant<VxHWRackOverview, VxHWRackTable>("Central", vxStationTypeCentral,
                                                 {"waterworks", "packaging-line", "bottling-filler", "tank-farm"}),
};
inline const ViewVariant& CentralViews = ViewVariants.front();

} // namespace zqbchwcx::testing
