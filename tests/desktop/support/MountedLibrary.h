// A second project at the desk, mounted as a library.
#pragma once

#include "app/workspace/Workspace.h"
#include "core/entity/Entity.h"
#include "core/project/ProjectCommands.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/support/TestDesk.h"

#include <gtest/gtest.h>

namespace tw::test {

/** Mounts the project "Atlas", which holds one entity with a text property "Colour". */
inline core::ContentId mountAtlas(TestDesk& desk, const QString& entityName)
{
    const auto id = core::ContentId::create();
    app::workspace::Workspace library(desk.environment);
    library.projectForEdit().setName(QStringLiteral("Atlas"));
    core::taxonomy::Category places;
    places.id = core::CategoryId::create();
    core::taxonomy::Field colour;
    colour.key = QStringLiteral("colour");
    colour.label = QStringLiteral("Colour");
    places.fields = {colour};
    library.projectForEdit().taxonomyForEdit().insert(places);
    library.projectForEdit().add(std::make_unique<core::entity::Entity>(id, places.id, entityName));
    const QString place = desk.folder.filePath(QStringLiteral("atlas"));
    EXPECT_TRUE(library.saveAs(place));
    desk.session.apply(std::make_unique<core::project::SetLibraryMountsCommand>(
        desk.session.projectForCommands(), std::vector<core::project::LibraryMount>{{place, false}}));
    return id;
}

} // namespace tw::test
