#include "core/document/markup/InlinePieces.h"

#include <algorithm>

namespace tw::core::document::markup {

std::vector<SourceRange> findLooseGroups(QStringView text, const InlinePieces& pieces)
{
    std::vector<SourceRange> groups = findGroups(text);
    auto piece = pieces.list.begin();
    // What a run made of its group is part of no piece that has a text.
    std::erase_if(groups, [&](const SourceRange& group) {
        const auto endsBefore = [&group](const InlinePiece& each) {
            return each.sourceStart + each.sourceLength <= group.start;
        };
        piece = std::find_if_not(piece, pieces.list.end(), endsBefore);
        return piece == pieces.list.end() || piece->sourceStart > group.start ||
               piece->kind != RunKind::Text || piece->text.isEmpty();
    });
    return groups;
}

} // namespace tw::core::document::markup
