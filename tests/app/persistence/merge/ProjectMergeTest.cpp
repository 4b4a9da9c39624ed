#include "app/persistence/merge/ProjectMerge.h"

#include "app/persistence/codec/ObjectCodec.h"
#include "app/persistence/codec/ProjectCodec.h"
#include "app/persistence/codec/ProjectLoader.h"
#include "app/persistence/files/ProjectFiles.h"
#include "core/document/Document.h"

#include <gtest/gtest.h>

namespace tw::app::persistence {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::document::Document;
using core::document::DocumentKind;

namespace {

const ContentId chapterId = ContentId::fromString(u"00000000-0000-4000-8000-000000000001");
const QString chapterPath = objectPath(chapterId);

/** A chapter's file; the body's paragraphs are the words. */
QByteArray chapter(const QString& title, const QString& paragraphs = u"one two three"_s)
{
    Document document(chapterId, DocumentKind::Prose, title);
    document.setBody({QString(paragraphs).replace(u' ', u'\n'), {}});
    return serializeObject(document);
}

/** With lines in another form, as a program of others may write the same. */
QByteArray reformatted(QByteArray bytes)
{
    return bytes.replace("    ", "\t").replace('\n', "\r\n");
}

} // namespace

TEST(FileMergeTest, standsByTheThreeVersions)
{
    const FileVersion none;
    const FileVersion base = chapter(u"Ebb"_s);
    const FileVersion renamed = chapter(u"Flood"_s);
    const FileVersion renamedOtherwise = chapter(u"Slack"_s);
    const FileVersion written = chapter(u"Ebb"_s, u"one two four"_s);
    const FileVersion both = chapter(u"Flood"_s, u"one two four"_s);
    const FileVersion baseByHand = reformatted(*base);
    const struct
    {
        const char* name;
        FileVersions versions;
        FileStanding standing;
        FileVersion result;
    } cases[] = {
        {"nobody", {base, base, base}, FileStanding::Untouched, base},
        {"mine edited", {base, renamed, base}, FileStanding::Untouched, renamed},
        {"mine added", {none, base, none}, FileStanding::Untouched, base},
        {"mine deleted", {base, none, base}, FileStanding::Untouched, none},
        {"theirs edited", {base, base, renamed}, FileStanding::TheirsOnly, renamed},
        {"theirs added", {none, none, base}, FileStanding::TheirsOnly, base},
        {"theirs deleted", {base, base, none}, FileStanding::TheirsOnly, none},
        {"theirs edited what was written by hand",
         {baseByHand, base, renamed},
         FileStanding::TheirsOnly,
         renamed},
        {"same edit", {base, renamed, renamed}, FileStanding::SameEdit, renamed},
        {"same edit in another form",
         {base, renamed, reformatted(*renamed)},
         FileStanding::SameEdit,
         reformatted(*renamed)},
        {"both added the same", {none, base, base}, FileStanding::SameEdit, base},
        {"both deleted", {base, none, none}, FileStanding::SameEdit, none},
        {"different lines", {base, renamed, written}, FileStanding::Merged, both},
        {"different lines, base by hand", {baseByHand, renamed, written}, FileStanding::Merged, both},
        {"different lines, theirs by hand",
         {base, renamed, reformatted(*written)},
         FileStanding::Merged,
         both},
        {"only the form is theirs", {base, renamed, baseByHand}, FileStanding::Merged, renamed},
        {"same line", {base, renamed, renamedOtherwise}, FileStanding::Conflict, none},
        {"both added differently", {none, base, renamed}, FileStanding::Conflict, none},
        {"theirs deleted, mine edited", {base, renamed, none}, FileStanding::Conflict, none},
        {"theirs edited, mine deleted", {base, none, renamed}, FileStanding::Conflict, none},
    };
    for (const auto& [name, versions, standing, result] : cases) {
        const FileMerge merge = mergeFile(chapterPath, versions);
        EXPECT_EQ(merge.standing, standing) << name;
        EXPECT_EQ(merge.result, result) << name;
        EXPECT_FALSE(merge.byParagraphs) << name;
    }
}

TEST(FileMergeTest, bringsParagraphsTogetherOnRequest)
{
    const QByteArray base = chapter(u"Ebb"_s, u"one two three"_s);
    const struct
    {
        const char* name;
        QByteArray mine;
        QByteArray theirs;
        FileVersion merged;
        bool hasMarks = false;
    } cases[] = {
        {"apart", chapter(u"Ebb"_s, u"ONE two three"_s), chapter(u"Ebb"_s, u"one two THREE end"_s),
         chapter(u"Ebb"_s, u"ONE two THREE end"_s)},
        {"and the title of one side", chapter(u"Flood"_s, u"ONE two three"_s),
         chapter(u"Ebb"_s, u"one two THREE"_s), chapter(u"Flood"_s, u"ONE two THREE"_s)},
        {"same paragraph", chapter(u"Ebb"_s, u"ONE two three"_s), chapter(u"Ebb"_s, u"Uno two three"_s),
         chapter(u"Ebb"_s, u"<<<<<<< ONE ======= Uno >>>>>>> two three"_s), true},
        {"same and others", chapter(u"Ebb"_s, u"ONE two THREE"_s), chapter(u"Ebb"_s, u"Uno two three end"_s),
         chapter(u"Ebb"_s, u"<<<<<<< ONE ======= Uno >>>>>>> two <<<<<<< THREE ======= three end >>>>>>>"_s),
         true},
        {"the title as well", chapter(u"Flood"_s, u"ONE two three"_s),
         chapter(u"Slack"_s, u"one two THREE"_s), std::nullopt},
    };
    for (const auto& [name, mine, theirs, merged, hasMarks] : cases) {
        const FileMerge merge = mergeFile(chapterPath, {base, mine, theirs});
        EXPECT_EQ(merge.standing, FileStanding::Conflict) << name;
        EXPECT_EQ(merge.byParagraphs, merged) << name;
        EXPECT_EQ(merge.hasMarks, hasMarks) << name;
    }
}

TEST(FileMergeTest, theWordsOfADayOnTwoMachinesAddUp)
{
    using WritingLog = std::vector<core::writing::WritingLogEntry>;
    const auto file = [](const QString& name, const WritingLog& log) {
        core::project::Project project;
        project.setName(name);
        project.setWritingLog(log);
        return serializeProjectDocument(project);
    };
    const QString monday = u"2026-03-02"_s;
    const QString tuesday = u"2026-03-03"_s;
    const QString wednesday = u"2026-03-04"_s;
    const WritingLog base{{monday, 100}};
    const WritingLog mine{{monday, 150}, {wednesday, 20}};
    constexpr qint64 most = std::numeric_limits<qint64>::max();
    const struct
    {
        const char* name;
        WritingLog theirs;
        WritingLog joined;
    } cases[] = {
        {"other days and the same",
         {{monday, 130}, {tuesday, 5}},
         {{monday, 180}, {tuesday, 5}, {wednesday, 20}}},
        {"a day twice", {{monday, 100}, {wednesday, 1}, {wednesday, 2}}, {{monday, 150}, {wednesday, 23}}},
        {"less than before", {{monday, 60}}, {{monday, 110}, {wednesday, 20}}},
        {"no number of words",
         {{tuesday, most}, {tuesday, most}, {monday, 100}},
         {{monday, 150}, {tuesday, -2}, {wednesday, 20}}},
    };
    for (const auto& [name, theirs, joined] : cases) {
        const FileMerge merge = mergeFile(
            projectFileName.toString(),
            {file(u"Ebb"_s, base), file(u"Ebb"_s, mine), file(u"Flood"_s, theirs)});
        EXPECT_EQ(merge.standing, FileStanding::Merged) << name;
        EXPECT_EQ(merge.result, file(u"Flood"_s, joined)) << name;
    }
}

TEST(FileMergeTest, refusesWhatWouldNotBeAWholeFile)
{
    const QByteArray base = chapter(u"Ebb"_s);
    const QByteArray mine = chapter(u"Ebb"_s, u"one"_s);
    const struct
    {
        const char* name;
        QByteArray theirs;
    } cases[] = {
        {"cut off", chapter(u"Flood"_s).chopped(5)},
        {"overlapping", chapter(u"Ebb"_s, u"two"_s)},
        {"another id", QByteArray(base).replace("00000001", "00000002")},
        {"another kind", QByteArray(base).replace("\"document\"", "\"nonsense\"")},
    };
    for (const auto& [name, theirs] : cases) {
        const auto merged = mergeProjectFile(chapterPath, base, mine, theirs);
        EXPECT_EQ(merged.message(), u"the merged file '%1' would not be valid"_s.arg(chapterPath)) << name;
    }
}

namespace {

class ProjectMergeTest : public testing::Test
{
protected:
    ProjectMergeTest()
    {
        core::project::Project project;
        versions.base = serializeProject(project);
        versions.base.emplace(chapterPath, chapter(u"Ebb"_s));
        versions.mine = versions.base;
        versions.theirs = versions.base;
    }

    ProjectVersions versions;
};

} // namespace

TEST_F(ProjectMergeTest, appliesOnlyWhatIsDecided)
{
    versions.mine[chapterPath] = chapter(u"Ebb"_s, u"ONE two three"_s);
    versions.theirs[chapterPath] = chapter(u"Ebb"_s, u"one two THREE"_s);
    ProjectMerge merge(versions);
    ASSERT_EQ(merge.conflicts().size(), 1U);
    EXPECT_EQ(merge.applied().message(), u"the reconcile has conflicts to resolve first"_s);
    const struct
    {
        Resolution resolution;
        QByteArray expected;
    } cases[] = {
        {Resolution::Mine, versions.mine[chapterPath]},
        {Resolution::Theirs, versions.theirs[chapterPath]},
        {Resolution::Paragraphs, chapter(u"Ebb"_s, u"ONE two THREE"_s)},
    };
    for (const auto& [resolution, expected] : cases) {
        merge.resolve(chapterPath, resolution);
        const auto applied = merge.applied();
        ASSERT_TRUE(applied) << applied.message().toStdString();
        EXPECT_EQ(applied.value().at(chapterPath), expected);
    }
    merge.resolve(chapterPath, Resolution::Open);
    EXPECT_FALSE(merge.applied());
}

TEST_F(ProjectMergeTest, refusesFilesThatDoNotFitTogether)
{
    // As sync clients leave them: each file is whole, but two of them are one object.
    versions.theirs[u"objects/chapter (conflicted copy).json"_s] = chapter(u"Flood"_s);
    const ProjectMerge merge(versions);
    EXPECT_TRUE(merge.conflicts().empty());
    EXPECT_TRUE(merge.applied().message().startsWith(u"Duplicate object id"));
}

TEST_F(ProjectMergeTest, namesFilesThatCannotBeRead)
{
    versions.theirs[chapterPath] = chapter(u"Flood"_s).first(20);
    versions.theirs[u"project.json"_s].clear();
    // Nothing is made of a file further down, whatever it holds.
    versions.theirs[u"objects/old/x.json"_s] = "no json";
    EXPECT_EQ(ProjectMerge(versions).unreadable(), QStringList({chapterPath, u"project.json"_s}));
}

TEST_F(ProjectMergeTest, followsFilesUnderOtherNames)
{
    const QString stray = u"objects/First chapter.json"_s;
    const QString deeper = u"objects/old/x.json"_s;
    versions.base.erase(chapterPath);
    versions.base[stray] = chapter(u"Ebb"_s);
    versions.base[deeper] = "one";
    versions.theirs = versions.base;
    versions.theirs[stray] = chapter(u"Flood"_s);
    versions.theirs[deeper] = "two";
    versions.mine[chapterPath] = chapter(u"Ebb"_s, u"one two four"_s);
    const ProjectMerge merge(versions);
    const auto applied = merge.applied();
    ASSERT_TRUE(applied) << applied.message().toStdString();
    EXPECT_EQ(applied.value().at(stray), chapter(u"Flood"_s, u"one two four"_s));
    EXPECT_EQ(applied.value().at(deeper), QByteArray("two"));
    EXPECT_FALSE(applied.value().contains(chapterPath));
}

} // namespace tw::app::persistence
