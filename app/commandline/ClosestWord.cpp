#include "app/commandline/ClosestWord.h"

#include <algorithm>
#include <numeric>

namespace quillon_ed {

namespace {

std::size_t EditDistance(std::string_view a, std::string_view b)
{
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < a.size(); ++i) {
        std::size_t diagonal = row[0];
        row[0] = i + 1;
        for (std::size_t j = 0; j < b.size(); ++j) {
            const std::size_t substituted = diagonal + (a[i] == b[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({substituted, row[j] + 1, diagonal + 1});
        }
    }
    return row.back();
}

} // namespace

std::string ClosestWord(std::string_view typed, const std::vector<std::string>& words)
{
    const std::size_t most = typed.size() > 3 ? 2 : 1;
    const std::string nearest = NearestWord(typed, words);
    return EditDistance(typed, nearest) <= most ? nearest : std::string();
}

std::string NearestWord(std::string_view typed, const std::vector<std::string>& words)
{
    return *std::min_element(words.begin(), words.end(), [&](const std::string& a, const std::string& b) {
        return EditDistance(typed, a) < EditDistance(typed, b);
    });
}

} // namespace quillon_ed
