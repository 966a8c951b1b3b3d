#include "zqbchwcx/reference/model/StationData.h"

#include <algorithm>

namespace zqbchwcx::reference {
namespace {

template <class T>
bool SamePointee(const std::shared_ptr<const T>& a, const std::shared_ptr<const T>& b, bool (*same)(const T&, const T&))
{
    if (a == b) return true;
    return a && b && same(*a, *b);
}

bool SameModule(const ModuleData& a, const ModuleData& b)
{
    return a == b;
}

bool SameRack(const RackData& a, const RackData& b)
{
    return a.state == b.state && std::equal(a.places.begin(), a.places.end(), b.places.begin(), b.places.end(),
                                            [](const PlaceData& left, const PlaceData& right) {
                                                return left.usability == right.usability &&
                                                       SamePointee(left.module, right.module, SameModule);
                                            });
}

} // namespace

bool SameStation(const StationData& a, const StationData& b)
{
    return a.name == b.name && a.kind == b.kind && a.displayMode == b.displayMode && a.readOnly == b.readOnly &&
           std::equal(
               a.racks.begin(), a.racks.end(), b.racks.begin(), b.racks.end(),
               [](const RackDataPtr& left, const RackDataPtr& right) { return SamePointee(left, right, SameRack); });
}

} // namespace zqbchwcx::reference
