#include "core/project/NameIndex.h"

#include "core/content/ContentCommands.h"
#include "core/content/ObjectName.h"
#include "core/entity/Entity.h"
#include "core/project/Project.h"
#include "core/undo/UndoStack.h"
#include "support/RandomCommands.h"

#include <gtest/gtest.h>

#include <map>

namespace tw::core::project {

namespace {

using IdsByName = std::map<QString, std::vector<ContentId>>;

struct Names
{
    IdsByName names;
    IdsByName aliases;
};

/** The names of a project the slow way. */
Names scanned(const Project& project)
{
    Names all;
    for (const auto& [id, object] : project.objects()) {
        if (const QString name = content::foldedName(content::objectName(*object)); !name.isEmpty())
            all.names[name].push_back(id);
        if (const auto* entity = content::objectCast<entity::Entity>(object.get())) {
            for (const QString& alias : entity->aliases()) {
                std::vector<ContentId>& ids = all.aliases[content::foldedName(alias)];
                if (!content::foldedName(alias).isEmpty() && (ids.empty() || ids.back() != id))
                    ids.push_back(id);
            }
        }
    }
    all.aliases.erase(QString());
    return all;
}

} // namespace

TEST(NameIndexTest, agreesWithAScanAfterAnyCommandUndoAndRedo)
{
    Project project;
    test::fillWithEveryKind(project);
    test::RandomCommands random(project, 20260701);
    undo::UndoStack stack;
    Names before = scanned(project);
    for (int step = 0; step < 1500; ++step) {
        switch (random.number(0, 4)) {
        case 0:
            stack.undo();
            break;
        case 1:
            stack.redo();
            break;
        default:
            stack.push(random.next());
        }
        // Names that are gone must be gone from the index too.
        const Names now = scanned(project);
        const NameIndex& index = project.names();
        for (const auto& [name, ids] : before.names)
            ASSERT_EQ(
                index.named(name), now.names.contains(name) ? now.names.at(name) : std::vector<ContentId>());
        for (const auto& [name, ids] : now.names)
            ASSERT_EQ(index.named(u' ' + name), ids);
        for (const auto& [alias, ids] : before.aliases) {
            ASSERT_EQ(
                index.aliased(alias),
                now.aliases.contains(alias) ? now.aliases.at(alias) : std::vector<ContentId>());
        }
        for (const auto& [alias, ids] : now.aliases)
            ASSERT_EQ(index.aliased(alias), ids);
        before = now;
    }
    EXPECT_FALSE(before.names.empty());
}

TEST(NameIndexTest, leavesTheChangesToWhoeverTakesThem)
{
    Project project;
    test::fillWithEveryKind(project);
    static_cast<void>(project.takeChanges());
    content::ContentObject* const first = project.objects().begin()->second.get();
    first->touch();
    static_cast<void>(project.names());
    EXPECT_TRUE(project.takeChanges().changed.contains(first->id()));
    EXPECT_TRUE(project.takeChanges().isEmpty());
}

} // namespace tw::core::project
