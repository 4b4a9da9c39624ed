#include "core/research/Comment.h"

namespace tw::core::research {

Comment::Comment(ContentId id, CommentTarget target, CommentDetails details)
    : ContentObject(id, staticKind)
    , m_target(std::move(target))
    , m_details(std::move(details))
{}

Comment::~Comment() = default;

bool operator==(const Comment& left, const Comment& right)
{
    return static_cast<const content::ContentObject&>(left) ==
               static_cast<const content::ContentObject&>(right) &&
           left.m_target == right.m_target && left.m_parentId == right.m_parentId &&
           left.m_details == right.m_details;
}

} // namespace tw::core::research
