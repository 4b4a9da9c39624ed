#include "app/codex/NameDistance.h"

#include <algorithm>
#include <vector>

namespace tw::app::codex {

std::u32string comparableName(const QString& name)
{
    return name.trimmed().normalized(QString::NormalizationForm_C).toCaseFolded().toStdU32String();
}

// The table of Wagner and Fischer, one row at a time, of which only the diagonals within `most` of the main
// one are filled in (Ukkonen, "Algorithms for approximate string matching", 1985): what lies outside costs
// more anyway.
std::optional<int> editDistance(std::u32string_view left, std::u32string_view right, int most)
{
    const auto rows = static_cast<std::ptrdiff_t>(left.size());
    const auto columns = static_cast<std::ptrdiff_t>(right.size());
    if (most < 0 || std::abs(rows - columns) > most)
        return std::nullopt;
    const int tooMany = most + 1;
    std::vector<int> row(right.size() + 1, tooMany);
    for (std::ptrdiff_t column = 0; column <= std::min<std::ptrdiff_t>(columns, most); ++column)
        row[static_cast<std::size_t>(column)] = static_cast<int>(column);

    for (std::ptrdiff_t line = 1; line <= rows; ++line) {
        const std::ptrdiff_t first = std::max<std::ptrdiff_t>(line - most, 1);
        const std::ptrdiff_t last = std::min(line + most, columns);
        int diagonal = row[static_cast<std::size_t>(first - 1)];
        // Left of the band.
        int before = first == 1 && line <= most ? static_cast<int>(line) : tooMany;
        row[static_cast<std::size_t>(first - 1)] = before;
        int best = before;
        for (std::ptrdiff_t column = first; column <= last; ++column) {
            int& cell = row[static_cast<std::size_t>(column)];
            const bool isSame =
                left[static_cast<std::size_t>(line - 1)] == right[static_cast<std::size_t>(column - 1)];
            const int cost = std::min({diagonal + (isSame ? 0 : 1), cell + 1, before + 1, tooMany});
            diagonal = cell;
            cell = before = cost;
            best = std::min(best, cost);
        }
        if (best > most)
            return std::nullopt;
    }
    const int distance = row.back();
    return distance > most ? std::nullopt : std::optional(distance);
}

} // namespace tw::app::codex
