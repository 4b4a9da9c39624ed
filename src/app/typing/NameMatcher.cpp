#include "app/typing/NameMatcher.h"

#include "core/entity/Entity.h"
#include "core/project/Project.h"

#include <algorithm>

namespace tw::app::typing {

namespace {

bool isWordPart(QChar character)
{
    return character.isLetterOrNumber() || character.isMark() || character.isSurrogate();
}

qsizetype wordEnd(QStringView text, qsizetype start)
{
    while (start < text.size() && isWordPart(text[start]))
        ++start;
    return start;
}

bool standsAt(QStringView text, qsizetype start, const Name& name)
{
    const qsizetype end = start + name.text.size();
    if (end > text.size() || (end < text.size() && isWordPart(text[end])))
        return false;
    const auto sensitivity = name.text.contains(u' ') ? Qt::CaseInsensitive : Qt::CaseSensitive;
    return text.mid(start, name.text.size()).compare(name.text, sensitivity) == 0;
}

} // namespace

std::vector<Name> entityNames(const core::project::Project& project)
{
    std::vector<Name> names;
    for (const auto* const entity : core::project::objectsOf<core::entity::Entity>(project)) {
        names.push_back({entity->name(), entity->id()});
        for (const QString& alias : entity->aliases())
            names.push_back({alias, entity->id()});
    }
    return names;
}

NameMatcher::NameMatcher(const std::vector<Name>& names)
{
    for (const Name& name : names) {
        const QString text = name.text.simplified();
        const qsizetype firstWord = wordEnd(text, 0);
        // A name that begins with a mark has no word to be found by.
        if (firstWord > 0)
            m_byFirstWord[text.first(firstWord).toCaseFolded()].push_back({text, name.id});
    }
    for (auto& sameWord : m_byFirstWord) {
        std::ranges::stable_sort(sameWord, std::greater(), [](const Name& name) { return name.text.size(); });
    }
}

std::vector<NameMatch> NameMatcher::find(QStringView text) const
{
    std::vector<NameMatch> matches;
    for (qsizetype start = 0; start < text.size();) {
        if (!isWordPart(text[start])) {
            ++start;
            continue;
        }
        const qsizetype end = wordEnd(text, start);
        const auto candidates =
            m_byFirstWord.constFind(text.mid(start, end - start).toString().toCaseFolded());
        qsizetype next = end;
        if (candidates != m_byFirstWord.constEnd()) {
            const auto found = std::ranges::find_if(
                *candidates, [&](const Name& name) { return standsAt(text, start, name); });
            if (found != candidates->end()) {
                matches.push_back({start, found->text.size(), found->id});
                next = start + found->text.size();
            }
        }
        start = next;
    }
    return matches;
}

} // namespace tw::app::typing
