#pragma once

#include "core/calendar/Calendar.h"
#include "core/foundation/Result.h"
#include "core/project/Project.h"

#include <QString>

namespace tw::app::mcp {

/** Values longer than this are cut by tools that read, unless the whole is asked for. */
inline constexpr qsizetype displayLimit = 300;

/**
 * Runs of white space as one blank, trimmed, and cut to `limit` characters with "..." behind when longer. A
 * surrogate pair is not cut in two.
 */
[[nodiscard]] QString shortenForDisplay(const QString& text, qsizetype limit = displayLimit);

/** Whether a value is shown in full. */
enum class Shortening
{
    None,
    Long,
};

/** Writes values for one answer and knows whether any was shortened. */
class ValueDisplay
{
public:
    explicit ValueDisplay(Shortening shortening)
        : m_shortening(shortening)
    {}

    [[nodiscard]] QString shown(const QString& value);
    /**
     * The paragraph that warns of shortened values and names the tool that shows them in full, with a blank
     * line before it; empty when there are none.
     */
    [[nodiscard]] QString note(const QString& tool) const;

private:
    Shortening m_shortening;
    bool m_isAnyShortened = false;
};

/** An instant in the project's calendar, as codex::dateText() writes it. */
[[nodiscard]] QString dateText(const core::project::Project& project, core::calendar::StoryInstant instant);

/** Reads a date of the project's calendar, also as dateText() writes it. All tools answer its message. */
[[nodiscard]] core::Result<core::calendar::StoryInstant> readDate(
    const core::project::Project& project, const QString& text);

} // namespace tw::app::mcp
