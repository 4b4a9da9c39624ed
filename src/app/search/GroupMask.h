#pragma once

#include "core/document/markup/Inline.h"

#include <QStringList>

#include <optional>

namespace tw::app::search {

/**
 * A text in which stand-ins take the place of groups, for an edit that knows nothing of groups and must not
 * touch them.
 */
class GroupMask
{
public:
    GroupMask(const QString& text, const std::vector<core::document::markup::SourceRange>& groups);

    [[nodiscard]] const QString& text() const { return m_text; }
    [[nodiscard]] bool isStandIn(const core::document::markup::Run& run) const;
    /** The runs with every stand-in as a run of its own. */
    [[nodiscard]] std::vector<core::document::markup::Run> parted(
        const std::vector<core::document::markup::Run>& runs) const;
    /** An edited text with the groups in their places; none when their stand-ins are not all there. */
    [[nodiscard]] std::optional<QString> restored(const QString& text) const;

private:
    QString m_text;
    QStringList m_groups;
    QChar m_standIn;
};

} // namespace tw::app::search
