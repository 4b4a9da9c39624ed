#include "app/search/GroupMask.h"

namespace tw::app::search {

using core::document::markup::Run;
using core::document::markup::RunKind;
using core::document::markup::SourceRange;

namespace {

// Code points that are set aside for use within a program.
constexpr char16_t firstNoncharacter = 0xFDD0;
constexpr char16_t lastNoncharacter = 0xFDEF;

QChar unusedIn(const QString& text)
{
    char16_t candidate = firstNoncharacter;
    while (candidate < lastNoncharacter && text.contains(QChar(candidate)))
        ++candidate;
    return candidate;
}

} // namespace

GroupMask::GroupMask(const QString& text, const std::vector<SourceRange>& groups)
    : m_text(text)
    , m_standIn(unusedIn(text))
{
    for (auto group = groups.rbegin(); group != groups.rend(); ++group) {
        m_groups.prepend(text.sliced(group->start, group->end - group->start));
        m_text.replace(group->start, group->end - group->start, m_standIn);
    }
}

bool GroupMask::isStandIn(const Run& run) const
{
    return !m_groups.isEmpty() && run.kind == RunKind::Text && run.text == m_standIn;
}

std::vector<Run> GroupMask::parted(const std::vector<Run>& runs) const
{
    if (m_groups.isEmpty())
        return runs;
    std::vector<Run> result;
    for (const Run& run : runs) {
        if (run.kind != RunKind::Text || !run.text.contains(m_standIn)) {
            result.push_back(run);
            continue;
        }
        Run part = run;
        const QStringList texts = run.text.split(m_standIn);
        for (qsizetype index = 0; index < texts.size(); ++index) {
            if (index > 0) {
                part.text = m_standIn;
                result.push_back(part);
            }
            part.text = texts[index];
            if (!part.text.isEmpty())
                result.push_back(part);
        }
    }
    return result;
}

std::optional<QString> GroupMask::restored(const QString& text) const
{
    if (m_groups.isEmpty())
        return text;
    const QStringList parts = text.split(m_standIn);
    if (parts.size() != m_groups.size() + 1)
        return std::nullopt;
    QString result = parts.constFirst();
    for (qsizetype index = 0; index < m_groups.size(); ++index)
        result += m_groups[index] + parts[index + 1];
    return result;
}

} // namespace tw::app::search
