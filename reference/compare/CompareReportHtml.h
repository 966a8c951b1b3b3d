#pragma once

#include "zqbchwcx/reference/compare/CompareReport.h"

#include <array>
#include <string>

namespace zqbchwcx::reference {

/// The report as one HTML document in UTF-8 that refers to nothing outside itself: for desktops, phones and paper,
/// light and dark. Texts that somebody else wrote are shown as they were written. The pictures of the stations are
/// "data:" addresses; an empty one is left out.
std::string WriteHtmlReport(const CompareReport& report, const std::array<std::string, 2>& pictures, Language language);

} // namespace zqbchwcx::reference
