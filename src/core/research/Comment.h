#pragma once

#include "core/content/ContentObject.h"

namespace tw::core::research {

/** What an edit of a comment changes. Times are ISO 8601, UTC, kept as text. */
struct CommentDetails
{
    QString author;
    QString body;
    QString createdAt;
    QString updatedAt;
    bool isResolved = false;

    friend bool operator==(const CommentDetails&, const CommentDetails&) = default;
};

/** What a comment hangs on: an object, and the words of its text that it is about. */
struct CommentTarget
{
    ContentId targetId;
    QString anchor;

    friend bool operator==(const CommentTarget&, const CommentTarget&) = default;
};

class Comment final : public content::ContentObject
{
public:
    static constexpr auto staticKind = content::ContentKind::Comment;

    Comment(ContentId id, CommentTarget target, CommentDetails details);
    ~Comment() override;

    [[nodiscard]] const CommentTarget& target() const { return m_target; }
    void setTarget(CommentTarget target) { m_target = std::move(target); }

    /** The comment this one answers; null for the first of a thread. */
    [[nodiscard]] const ContentId& parentId() const { return m_parentId; }
    void setParentId(ContentId id) { m_parentId = id; }

    [[nodiscard]] const CommentDetails& details() const { return m_details; }
    void setDetails(CommentDetails details) { m_details = std::move(details); }

    friend bool operator==(const Comment& left, const Comment& right);

private:
    CommentTarget m_target;
    ContentId m_parentId;
    CommentDetails m_details;
};

} // namespace tw::core::research
