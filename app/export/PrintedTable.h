#pragma once

#include <QStringList>

#include <vector>

namespace quillon_ed {

/// A table as it is printed: texts only.
struct PrintedTable {
    QStringList headings;
    std::vector<QStringList> rows; ///< as many texts as there are headings
};

} // namespace quillon_ed
