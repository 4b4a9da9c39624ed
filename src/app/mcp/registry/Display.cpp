#include "app/mcp/registry/Display.h"

#include "app/codex/DateText.h"

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::calendar::StoryInstant;
using core::project::Project;

QString shortenForDisplay(const QString& text, qsizetype limit)
{
    const QString simplified = text.simplified();
    if (simplified.size() <= limit)
        return simplified;
    QString shortened = simplified.first(limit);
    if (shortened.back().isHighSurrogate())
        shortened.chop(1);
    return shortened.trimmed() + u"..."_s;
}

QString ValueDisplay::shown(const QString& value)
{
    if (m_shortening == Shortening::None)
        return value;
    if (value.simplified().size() > displayLimit)
        m_isAnyShortened = true;
    return shortenForDisplay(value);
}

QString ValueDisplay::note(const QString& tool) const
{
    if (!m_isAnyShortened)
        return {};
    return u"\n\nNOTE: one or more field values above were shortened for brevity. Call %1 again with "
           u"\"full\": "
           "true before editing any of them, or the unseen tail will be lost when you write the field back."_s
               .arg(tool);
}

QString dateText(const Project& project, StoryInstant instant)
{
    return codex::dateText(project.calendar(), instant);
}

core::Result<StoryInstant> readDate(const Project& project, const QString& text)
{
    const auto instant = codex::readDateText(project.calendar(), text);
    if (!instant)
        return core::Failure{
            u"The date '%1' was not understood; use the project calendar (e.g. \"25 Harvestmoon 1250\" or \"1250\")."_s
                .arg(text)};
    return *instant;
}

} // namespace tw::app::mcp
