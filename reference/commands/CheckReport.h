#pragma once

#include "zqbchwcx/reference/catalogue/Catalogue.h"
#include "zqbchwcx/reference/model/rules/Refusal.h"

#include <string>
#include <string_view>
#include <vector>

namespace zqbchwcx::reference {

/// What a check found, one line each: "FILE: place 4 of rack 0: wrong-place: reason". Empty when nothing was found.
std::string WriteCheckReport(const std::vector<Refusal>& found, std::string_view fileName, Language language);

} // namespace zqbchwcx::reference
