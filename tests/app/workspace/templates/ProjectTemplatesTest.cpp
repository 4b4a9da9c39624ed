#include "app/workspace/templates/ProjectTemplates.h"

#include "app/workspace/Workspace.h"
#include "core/document/DocumentTree.h"
#include "core/ttrpg/RandomTable.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <set>

namespace tw::app::workspace::templates {

using namespace Qt::Literals::StringLiterals;
using core::document::Document;
using core::document::DocumentKind;

namespace {

class ProjectTemplates : public testing::TestWithParam<ProjectTemplate>
{
protected:
    QTemporaryDir root;
    persistence::DiskFileSystem files;
    persistence::StorageEnvironment environment{files, root.filePath(u"data"_s), {}, [](auto) {}};
};

} // namespace

TEST_P(ProjectTemplates, comesBackFromBothFormsAsItWasMade)
{
    for (const QString& place : {u"tale.vellory"_s, u"tale"_s}) {
        Workspace workspace(environment);
        fillProject(workspace.projectForEdit(), GetParam());
        ASSERT_TRUE(workspace.saveAs(root.filePath(place)));
        const auto again = Workspace::open(environment, root.filePath(place));
        ASSERT_TRUE(again) << again.message().toStdString();
        EXPECT_TRUE(again.value()->project() == workspace.project()) << place.toStdString();
    }
}

TEST_P(ProjectTemplates, isSoundThroughout)
{
    core::project::Project project;
    fillProject(project, GetParam());
    std::set<std::pair<core::ContentId, qint32>> places;
    for (const Document* const document : core::project::objectsOf<Document>(project)) {
        EXPECT_FALSE(document->title().isEmpty());
        EXPECT_TRUE(document->parentId().isNull() || project.findAs<Document>(document->parentId()));
        EXPECT_TRUE(places.insert({document->parentId(), document->sortIndex()}).second)
            << "two at one place: " << document->title().toStdString();
    }
    const auto& taxonomy = project.taxonomy();
    for (const auto& [id, category] : taxonomy.categories()) {
        std::set<QString> keys;
        EXPECT_TRUE(category.parentId.isNull() || taxonomy.category(category.parentId));
        for (const core::taxonomy::Field& field : taxonomy.effectiveFields(id)) {
            EXPECT_TRUE(core::taxonomy::checkField(field)) << field.key.toStdString();
            EXPECT_TRUE(keys.insert(field.key).second) << field.key.toStdString();
            EXPECT_EQ(field.type == core::taxonomy::FieldType::Choice, !field.options.isEmpty());
            EXPECT_EQ(
                field.type == core::taxonomy::FieldType::Reference,
                taxonomy.category(field.referenceCategory) != nullptr);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    All, ProjectTemplates,
    testing::Values(
        ProjectTemplate::Novel, ProjectTemplate::Screenplay, ProjectTemplate::Campaign,
        ProjectTemplate::Empty));

TEST(ProjectTemplatesTest, eachHoldsWhatItsDescriptionSays)
{
    core::project::Project screenplay;
    fillProject(screenplay, ProjectTemplate::Screenplay);
    for (const Document* const document : core::project::objectsOf<Document>(screenplay))
        EXPECT_NE(document->documentKind(), DocumentKind::Prose) << document->title().toStdString();
    core::project::Project campaign;
    fillProject(campaign, ProjectTemplate::Campaign);
    EXPECT_EQ(core::project::objectsOf<core::ttrpg::RandomTable>(campaign).size(), 1U);
    EXPECT_EQ(campaign.audiences().size(), 2);
    core::project::Project empty;
    fillProject(empty, ProjectTemplate::Empty);
    EXPECT_TRUE(empty == core::project::Project());
    EXPECT_EQ(templateDescriptions().size(), 4U);
}

} // namespace tw::app::workspace::templates
