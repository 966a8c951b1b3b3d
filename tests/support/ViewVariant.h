#pragma once

#include "tests/support/Samples.h"
#include "tests/support/model/DistributedSample.h"
#include "zqbchwcx/controllers/interfaces/IVxHWControl.h"
#include "zqbchwcx/foundation/Event.h"
#include "zqbchwcx/platform/UserControl.h"
#include "zqbchwcx/views/config/VxHWRackOverview.h"
#include "zqbchwcx/views/config/VxHWRackOverviewRIO.h"
#include "zqbchwcx/views/config/VxHWRackTable.h"
#include "zqbchwcx/views/config/VxHWRackTableRIO.h"
#include "zqbchwcx/views/overview/CentralPlaceLayout.h"
#include "zqbchwcx/views/overview/PlaceStyle.h"
#include "zqbchwcx/views/overview/RowsLayout.h"

#include <array>
#include <ostream>

namespace zqbchwcx::testing {

/// A kind of station with the views that show it, for suites that run on every kind. A view is asked through it for
/// what `IVxHWControl` does not have; points are logical pixels.
struct ViewVariant {
    const char* name;
    const char* overviewClass; ///< as it reports errors
    const char* tableClass;
    const char* picture; ///< the overview's picture box
    VxEnumStationType eStationType;
    /// The largest station that the overview shows whole.
    std::size_t racks;
    std::size_t places;
    std::vector<const char*> examples; ///< stations of this kind
    /// A station with inputs in place 4, sub-modules in 5, a module over several places in 6 and 7, and no inputs
    /// in 10.
    reference::StationData (*sample)();
    // Order numbers of modules that may be inserted into it.
    const char* digital;
    const char* wide; ///< takes two places

    IVxHWControlPtr (*makeOverview)(UserControl& oControl);
    IVxHWControlPtr (*makeTable)(UserControl& oControl);
    const PlaceStyle& style;
    /// Where the overview's picture shows a place.
    Rect (*placeRect)(const IVxHWControl& overview, std::int32_t lRack, std::int32_t lPlace);
    /// The position's point in the overview's picture.
    Point (*pointOf)(const IVxHWControl& overview, std::int32_t lPosition);

    bool IsCentral() const { return eStationType == vxStationTypeCentral; }
    /// The pictures of the rail that the host has.
    std::vector<std::string> RowPictures() const
    {
        std::vector<std::string> names;
        const RowPieces& pieces = style.rowPieces;
        for (const auto piece :
             {pieces.railFirst, pieces.railLeft, pieces.placeStart, pieces.railRight, pieces.railLast})
            if (!piece.empty()) names.emplace_back(piece);
        return names;
    }
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

inline RowsLayout RowsOf(const IVxHWControl& overview)
{
    RowsLayout layout;
    layout.Shown(ShownPlaces::Of(overview.VxHWStation()));
    return layout;
}

inline Rect PlaceRectInRows(const IVxHWControl& overview, std::int32_t /*lRack*/, std::int32_t lPlace)
{
    return RowsOf(overview).PlaceRect(0, lPlace);
}

inline Point PointInRows(const IVxHWControl& overview, std::int32_t lPosition)
{
    return RowsOf(overview).PointOf(G_PositionInfo(lPosition));
}

inline const std::array ViewVariants{
    ViewVariant{"Central",
                "VxHWRackOverview",
                "VxHWRackTable",
                "pic_Main",
                vxStationTypeCentral,
                CentralPlaceLayout::RackCount,
                CentralPlaceLayout::PlaceCount,
                {"bottling-filler", "waterworks", "packaging-line", "tank-farm"},
                [] { return reference::ExampleStation("bottling-filler"); },
                "Q3-DI16-A",
                "Q3-AO08-W",
                &MakeControl<VxHWRackOverview>,
                &MakeControl<VxHWRackTable>,
                G_CentralPlaceStyle,
                [](const IVxHWControl&, std::int32_t lRack, std::int32_t lPlace) {
                    return CentralPlaceLayout().PlaceRect(lRack, lPlace);
                },
                [](const IVxHWControl&, std::int32_t lPosition) {
                    return CentralPlaceLayout().PointOf(G_PositionInfo(lPosition));
                }},
    ViewVariant{"Rail",
                "VxHWRackOverviewRIO",
                "VxHWRackTableRIO",
                "pic_Scroll",
                vxStationTypeDistributed1,
                1,
                32,
                {"strip-mill-cooling", "baggage-conveyor", "greenhouse-climate"},
                [] {
                    return DistributedSample(
                        vxStationTypeDistributed1,
                        {"QT-HD20-A", "QT-PM24-A", "QT-DI08-A", "QT-DI08-A", "QT-IO04-A", "QT-MS02-W"}, "QT-DO08-A");
                },
                "QT-DI08-A",
                "QT-MS02-W",
                &MakeControl<VxHWRackOverviewRIO>,
                &MakeControl<VxHWRackTableRIO>,
                G_DistributedPlaceStyle(vxStationTypeDistributed1),
                &PlaceRectInRows,
                &PointInRows},
    ViewVariant{"SelfContained",
                "VxHWRackOverviewRIO",
                "VxHWRackTableRIO",
                "pic_Scroll",
                vxStationTypeDistributed2,
                1,
                32,
                {"warehouse-aisle", "assembly-cell", "robot-tool-changer"},
                [] {
                    return DistributedSample(
                        vxStationTypeDistributed2,
                        {"QA-HD20-A", "QA-PM24-A", "QA-DI08-A", "QA-DI08-A", "QA-ID02-A", "QA-VT16-W"}, "QA-DO08-A");
                },
                "QA-DI08-A",
                "QA-VT16-W",
                &MakeControl<VxHWRackOverviewRIO>,
                &MakeControl<VxHWRackTableRIO>,
                G_DistributedPlaceStyle(vxStationTypeDistributed2),
                &PlaceRectInRows,
                &PointInRows},
};
inline const ViewVariant& CentralViews = ViewVariants.front();

} // namespace zqbchwcx::testing
