#pragma once

#include "zqbchwcx/reference/compare/CompareReport.h"

#include <cstddef>
#include <string>

namespace zqbchwcx::reference {

enum class ReportFormat {
    Text,     ///< for a terminal: nothing in it is obeyed by one
    Json,     ///< an object; member names are the same in every language
    Markdown, ///< a pipe table
};

/// The report as a text that ends in a line end. Text is broken to lines of that many characters; 0 breaks none.
std::string WriteCompareReport(const CompareReport& report, ReportFormat format, Language language,
                               std::size_t width = 0);

} // namespace zqbchwcx::reference
