#pragma once

#include "tests/support/model/FakeModule.h"

#include <string>
#include <string_view>
#include <vector>

namespace zqbchwcx::testing {

/// A text of one line "order number;name;index in parent;places of parent" per module; "-" is an empty module.
std::string WriteFakeConfigText(const std::vector<VxHWModulePtr>& modules);

/// The modules of such a text; members of one parent are given a new common parent.
std::vector<VxHWModulePtr> ReadFakeConfigText(std::string_view text, const CallLogPtr& log);

/// A copy of a module by itself, its sub-modules included.
FakeModulePtr CopyFakeModule(const FakeModule& module, const CallLogPtr& log);

/// New members for a module that spans several places, first to last.
std::vector<VxHWModulePtr> MakeFakeMembers(const FakeModulePtr& parent, const CallLogPtr& log);

} // namespace zqbchwcx::testing
