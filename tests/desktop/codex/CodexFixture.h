// A small codex to edit, and what its tree looks like in one line.
#pragma once

#include "app/persistence/codec/ProjectWriter.h"
#include "core/entity/Entity.h"
#include "desktop/codex/CodexModel.h"
#include "desktop/support/TestDesk.h"

#include <gtest/gtest.h>

namespace tw::desktop::codex {

class CodexFixture : public testing::Test
{
protected:
    CodexFixture()
    {
        people = addCategory(QStringLiteral("People"), {}, 0);
        clerks = addCategory(QStringLiteral("Clerks"), {people, {}}, 0);
        places = addCategory(QStringLiteral("Places"), {}, 1);
        annis = addEntity(QStringLiteral("Annis"), clerks);
        bream = addEntity(QStringLiteral("Bream"), people);
        staithe = addEntity(QStringLiteral("Staithe"), places);
        wards = addCategory(QStringLiteral("Wards"), {{}, staithe}, 0);
        counter = addEntity(QStringLiteral("Counter"), wards);
        desk.announce();
    }

    core::CategoryId addCategory(const QString& name, const CategoryParent& parent, qint32 sortIndex)
    {
        core::taxonomy::Category category;
        category.id = core::CategoryId::create();
        category.name = name;
        category.parentId = parent.categoryId;
        category.parentEntityId = parent.entityId;
        category.sortIndex = sortIndex;
        desk.session.projectForCommands().taxonomyForEdit().insert(category);
        return category.id;
    }

    core::ContentId addEntity(const QString& name, const core::CategoryId& category)
    {
        auto entity = std::make_unique<core::entity::Entity>(core::ContentId::create(), category, name);
        const core::ContentId id = entity->id();
        desk.session.projectForCommands().add(std::move(entity));
        return id;
    }

    core::entity::Entity& entity(const core::ContentId& id)
    {
        return *desk.session.projectForCommands().findAsForEdit<core::entity::Entity>(id);
    }

    core::taxonomy::Category& category(const core::CategoryId& id)
    {
        return *desk.session.projectForCommands().taxonomyForEdit().categoryForEdit(id);
    }

    /** "[People [Clerks Annis] Bream]": categories in brackets with what is beneath them. */
    static QString shape(const QAbstractItemModel& model, const QModelIndex& parent = {})
    {
        QStringList parts;
        for (int row = 0; row < model.rowCount(parent); ++row) {
            const QModelIndex index = model.index(row, 0, parent);
            const QString name = index.data().toString();
            const QString below = shape(model, index);
            const bool isEntity = index.data(Qt::UserRole).toString().startsWith(QLatin1String("entity"));
            const QString inside = below.isEmpty() ? name : name + u' ' + below;
            parts.append(isEntity && below.isEmpty() ? name : u'[' + inside + u']');
        }
        return parts.join(u' ');
    }

    /** Every byte that a save would write. */
    app::persistence::ProjectFileMap snapshot() const
    {
        return app::persistence::serializeProject(desk.session.project());
    }

    test::TestDesk desk;
    core::CategoryId people, clerks, places, wards;
    core::ContentId annis, bream, staithe, counter;
};

} // namespace tw::desktop::codex
