#include "app/style/spelling/CodexWords.h"

#include "app/style/spelling/SpellingWords.h"
#include "core/entity/Entity.h"
#include "core/project/Project.h"

namespace tw::app::style::spelling {

namespace {

void addWords(const QString& name, QSet<QString>& words)
{
    for (const TextSpan& span : spellingWords(name)) {
        words.insert(spellingForm(QStringView(name).sliced(span.start, span.length)));
        for (const TextSpan& part : hyphenatedParts(name, span))
            words.insert(spellingForm(QStringView(name).sliced(part.start, part.length)));
    }
}

} // namespace

QSet<QString> codexWords(const core::project::Project& project)
{
    QSet<QString> words;
    for (const auto* object : project.objectsOfKind(core::content::ContentKind::Entity)) {
        const auto* entity = core::content::objectCast<core::entity::Entity>(object);
        addWords(entity->name(), words);
        for (const QString& alias : entity->aliases())
            addWords(alias, words);
    }
    return words;
}

} // namespace tw::app::style::spelling
