#pragma once

#include "tests/support/model/FakeModelObjects.h"

namespace zqbchwcx::testing {

using FakeModuleList = std::vector<FakeModulePtr>;

/// A text of one line "order number, index in parent, places of parent" per module; "-" is an empty module.
std::string WriteFakeConfigText(const FakeModuleList& modules);

/// The modules of such a text; members of one parent are given a new common parent.
FakeModuleList ReadFakeConfigText(std::string_view text, const CallLogPtr& log);

/// New members for a module that spans several places, first to last.
FakeModuleList MakeFakeMembers(const FakeModulePtr& parent, const CallLogPtr& log);

} // namespace zqbchwcx::testing
