#include "app/persistence/codec/KindCodec.h"

#include "core/research/Comment.h"

using namespace Qt::Literals::StringLiterals;

namespace tw::app::persistence {

using core::research::Comment;
using core::research::CommentDetails;
using core::research::CommentTarget;

template <>
struct RecordOf<Comment>
{
    static constexpr auto entries = std::tuple(
        ifSet<Part<&Comment::target, &Comment::setTarget, &CommentTarget::targetId>>("targetId"_L1),
        ifSet<Property<&Comment::parentId, &Comment::setParentId>>("parentId"_L1),
        ifSet<Part<&Comment::target, &Comment::setTarget, &CommentTarget::anchor>>("anchor"_L1),
        ifSet<Part<&Comment::details, &Comment::setDetails, &CommentDetails::author>>("author"_L1),
        always<Part<&Comment::details, &Comment::setDetails, &CommentDetails::body>>("body"_L1),
        ifSet<Part<&Comment::details, &Comment::setDetails, &CommentDetails::createdAt>>("createdAt"_L1),
        ifSet<Part<&Comment::details, &Comment::setDetails, &CommentDetails::updatedAt>>("updatedAt"_L1),
        always<Part<&Comment::details, &Comment::setDetails, &CommentDetails::isResolved>>("resolved"_L1));
};

KindCodec commentCodec()
{
    return objectKindCodec<Comment, [](const core::ContentId& id) {
        return std::make_unique<Comment>(id, CommentTarget(), CommentDetails());
    }>();
}

} // namespace tw::app::persistence
