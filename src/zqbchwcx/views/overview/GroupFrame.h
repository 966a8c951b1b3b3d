#pragma once

#include "zqbchwcx/foundation/model/Fwd.h"
#include "zqbchwcx/views/overview/PlaceStyle.h"

#include <string_view>

namespace zqbchwcx {

/// The frame picture of one place of a module that spans several places. The parent may be nothing for a place that
/// lies between the modules of a group without being one (`IndexInParent` 0).
std::string_view G_GroupFrameKey(const PlaceStyle& style, const VxHWModule& oModule,
                                 const VxHWModulePtr& oParentModule);

} // namespace zqbchwcx
