#include "app/persistence/codec/ProjectLoader.h"
#include "app/persistence/codec/ProjectWriter.h"
#include "core/document/DocumentTree.h"
#include "core/document/markup/BodyWords.h"
#include "core/entity/Schema.h"
#include "support/TestFiles.h"

#include <gtest/gtest.h>

namespace tw::app {

using core::content::ContentKind;

/** The sample is the demo and a test input: it must be what the program itself would write. */
TEST(SampleTest, loadsCanonicalAndHoldsEverything)
{
    persistence::DiskFileSystem files;
    auto loaded = persistence::loadProject(files, test::repositoryPath(u"examples/low-water"));
    ASSERT_TRUE(loaded) << loaded.message().toStdString();
    const auto& sample = loaded.value();
    for (const persistence::LoadedFile& file : sample.files)
        EXPECT_TRUE(file.isCanonical && file.hasOwnName) << file.relativePath.toStdString();

    const core::project::Project& project = *sample.project;
    for (const ContentKind kind : core::content::allContentKinds)
        EXPECT_FALSE(project.objectsOfKind(kind).empty()) << static_cast<int>(kind);
    EXPECT_GE(project.objectsOfKind(ContentKind::Entity).size(), 40U);
    EXPECT_GE(project.objectsOfKind(ContentKind::TimelineEvent).size(), 30U);
    EXPECT_GE(project.taxonomy().categories().size(), 10U);
    qint64 words = 0;
    for (const auto* document : core::project::objectsOf<core::document::Document>(project)) {
        if (document->documentKind() == core::document::DocumentKind::Prose)
            words += core::document::markup::countBodyWords(document->body());
    }
    EXPECT_GE(words, 12000);
    const auto reread = persistence::parseProject(persistence::serializeProject(project));
    ASSERT_TRUE(reread);
    EXPECT_TRUE(*reread.value().project == project);
}

} // namespace tw::app
