#include "app/mcp/registry/ObjectFinder.h"

#include "app/mcp/registry/Refusals.h"
#include "core/content/ObjectName.h"
#include "core/task/Task.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace tw::app::mcp {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::Failure;
using core::Result;
using core::content::ContentKind;
using core::content::ContentObject;
using core::content::foldedName;
using core::content::objectName;
using core::project::Project;
using workspace::Workspace;

Failure noneNamed(const QString& kindWord, const QString& name)
{
    return {u"No %1 named '%2' exists."_s.arg(kindWord, name)};
}

Failure severalNamed(const QString& kindWord, const QString& name, const QStringList& candidates)
{
    return {
        u"The name '%1' matches %2 %3s: %4. Make the name unique in the desktop app, or use a more specific name."_s
            .arg(name, QString::number(candidates.size()), kindWord, candidates.join(u"; "_s))};
}

namespace {

QString candidateText(const ContentObject& object)
{
    const QString name = objectName(object);
    if (const auto* task = core::content::objectCast<core::task::Task>(&object))
        return u"'%1' (board %2, status %3)"_s.arg(name, task->board(), task->status());
    return u"'%1'"_s.arg(name);
}

/** The objects of one place with a name, those to be chosen from apart from those excluded from AI. */
struct Candidates
{
    std::vector<FoundObject> open;
    bool isAnyExcluded = false;

    void add(FoundObject found)
    {
        if (found.object->isAiExcluded())
            isAnyExcluded = true;
        else
            open.push_back(found);
    }
};

class Search
{
public:
    Search(const Workspace& workspace, const QString& kindWord)
        : m_workspace(workspace)
        , m_kind(kindOfWord(kindWord))
    {}

    [[nodiscard]] Candidates inProject(const QString& name) const
    {
        const Project& project = m_workspace.project();
        Candidates found = among(project, project.names().named(name), nullptr);
        if (found.open.empty() && !found.isAnyExcluded)
            found = among(project, project.names().aliased(name), nullptr);
        return found;
    }

    [[nodiscard]] Candidates inLibraries(const QString& name) const
    {
        Candidates all = acrossLibraries(name, &core::project::NameIndex::named);
        return all.open.empty() ? acrossLibraries(name, &core::project::NameIndex::aliased) : all;
    }

    /** Ids of the open project win over those of libraries, and those of earlier libraries over later ones.
     */
    [[nodiscard]] std::optional<FoundObject> withId(const ContentId& id) const
    {
        if (const ContentObject* object = m_workspace.project().find(id))
            return isWanted(*object) ? std::optional(FoundObject{object, nullptr}) : std::nullopt;
        for (const workspace::MountedLibrary& library : m_workspace.libraries()) {
            if (const ContentObject* object = library.project->find(id))
                return isWanted(*object) ? std::optional(FoundObject{object, &library}) : std::nullopt;
        }
        return std::nullopt;
    }

private:
    using Lookup = std::vector<ContentId> (core::project::NameIndex::*)(QStringView) const;

    [[nodiscard]] bool isWanted(const ContentObject& object) const
    {
        return !m_kind || object.kind() == *m_kind;
    }

    [[nodiscard]] Candidates among(
        const Project& project, const std::vector<ContentId>& ids,
        const workspace::MountedLibrary* library) const
    {
        Candidates candidates;
        for (const ContentId& id : ids) {
            const ContentObject* object = project.find(id);
            if (isWanted(*object))
                candidates.add({object, library});
        }
        return candidates;
    }

    [[nodiscard]] Candidates acrossLibraries(const QString& name, Lookup lookup) const
    {
        Candidates all;
        for (const workspace::MountedLibrary& library : m_workspace.libraries()) {
            for (const ContentId& id : (library.project->names().*lookup)(name)) {
                const std::optional<FoundObject> winner = withId(id);
                if (winner && winner->library == &library)
                    all.add(*winner);
            }
        }
        return all;
    }

    const Workspace& m_workspace;
    std::optional<ContentKind> m_kind;
};

/** Null for a purpose that does not mind. */
std::optional<QString> exclusionRefusal(const QString& name, Purpose purpose)
{
    switch (purpose) {
    case Purpose::Change:
        return excludedFromChange(name);
    case Purpose::Refer:
    case Purpose::Use:
        return excludedFromUse(name);
    case Purpose::Read:
        break;
    }
    return std::nullopt;
}

Result<FoundObject> allowed(const FoundObject& found, Purpose purpose)
{
    if (const auto checked = checkPurpose(found, purpose); !checked)
        return Failure{checked.message()};
    return found;
}

} // namespace

Result<void> checkPurpose(const FoundObject& found, Purpose purpose)
{
    const QString name = objectName(*found.object);
    if (found.object->isAiExcluded())
        return Failure{exclusionRefusal(name, purpose).value_or(excluded(name))};
    if (found.library && purpose == Purpose::Change)
        return Failure{mountedNotEdited(name, found.library->name)};
    if (found.library && purpose == Purpose::Use)
        return Failure{mountedNotOwn(name, found.library->name)};
    if (found.object->isLocked() && purpose == Purpose::Change)
        return Failure{locked(name)};
    return {};
}

Result<FoundObject> resolveByName(
    const Workspace& workspace, const QString& name, const QString& kindWord, Purpose forChange)
{
    const Search search(workspace, kindWord);
    Candidates found = search.inProject(name);
    if (found.open.empty() && found.isAnyExcluded) {
        // The name is taken by something that is not to be shown: a library's object must not pass for it.
        const std::optional<QString> refusal = exclusionRefusal(name, forChange);
        return refusal ? Failure{*refusal} : noneNamed(kindWord, name);
    }
    if (found.open.empty())
        found = search.inLibraries(name);
    if (found.open.empty())
        return noneNamed(kindWord, name);
    if (found.open.size() > 1) {
        QStringList candidates;
        for (const FoundObject& candidate : found.open)
            candidates.append(candidateText(*candidate.object));
        return severalNamed(kindWord, name, candidates);
    }
    return allowed(found.open.front(), forChange);
}

Result<FoundObject> resolveById(
    const Workspace& workspace, const QString& id, const QString& kindWord, Purpose purpose)
{
    const auto found = Search(workspace, kindWord).withId(ContentId::fromString(id.trimmed()));
    if (!found)
        return Failure{u"No %1 with id '%2' exists."_s.arg(kindWord, id)};
    // Whoever has only the id is not told the name.
    if (found->object->isAiExcluded())
        return Failure{exclusionRefusal(id, purpose).value_or(excluded(id))};
    return allowed(*found, purpose);
}

Result<FoundObject> resolveSubject(
    const Workspace& workspace, const ToolArguments& arguments, QStringView subject, const QString& kindWord,
    Purpose purpose)
{
    const QString id = arguments.text(u"id");
    if (!id.trimmed().isEmpty())
        return resolveById(workspace, id, kindWord, purpose);
    return resolveByName(workspace, arguments.text(subject), kindWord, purpose);
}

Result<std::size_t> chooseByName(const QStringList& names, const QString& name, const QString& kindWord)
{
    const QString wanted = foldedName(name);
    QStringList candidates;
    std::size_t chosen = 0;
    for (qsizetype index = 0; index < names.size(); ++index) {
        if (foldedName(names.at(index)) != wanted)
            continue;
        candidates.append(u"'%1'"_s.arg(names.at(index)));
        chosen = static_cast<std::size_t>(index);
    }
    if (candidates.isEmpty())
        return noneNamed(kindWord, name);
    if (candidates.size() > 1)
        return severalNamed(kindWord, name, candidates);
    return chosen;
}

qsizetype countNamed(const QStringList& names, const QString& name)
{
    return std::ranges::count(names, foldedName(name), [](const QString& each) { return foldedName(each); });
}

namespace {

bool isTaken(const Project& project, ContentKind kind, const QString& name, const ContentObject* self)
{
    return std::ranges::any_of(project.names().named(name), [&project, kind, self](const ContentId& id) {
        const ContentObject* object = project.find(id);
        return object != self && object->kind() == kind && !object->isAiExcluded();
    });
}

bool isLineBreak(QChar character)
{
    return QStringView(u"\n\v\f\r\u0085\u2028\u2029").contains(character);
}

} // namespace

Result<void> checkNameText(const QString& name)
{
    if (name.trimmed().isEmpty())
        return Failure{u"A non-empty name is required."_s};
    if (std::ranges::any_of(name.trimmed(), isLineBreak))
        return Failure{u"A name is one line; '%1' holds a line break."_s.arg(name.simplified())};
    return {};
}

Result<void> checkNewName(const Project& project, ContentKind kind, const QString& name)
{
    if (isTaken(project, kind, name, nullptr))
        return Failure{u"%1 '%2' already exists."_s.arg(kindWithArticleAndNaming(kind), name)};
    return checkNameText(name);
}

Result<void> checkRename(const Project& project, const ContentObject& object, const QString& newName)
{
    if (isTaken(project, object.kind(), newName, &object)) {
        return Failure{
            u"%1 '%2' already exists; renaming onto it would leave both unreachable by name."_s.arg(
                kindWithArticleAndNaming(object.kind()), newName)};
    }
    return checkNameText(newName);
}

} // namespace tw::app::mcp
