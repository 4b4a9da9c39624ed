#include "desktop/shell/CrashKeeper.h"

#include "app/persistence/codec/ObjectCodec.h"
#include "app/persistence/files/ProjectFiles.h"
#include "app/persistence/journal/JournalRestore.h"
#include "core/document/DocumentCommands.h"
#include "core/taxonomy/TaxonomyCommands.h"
#include "desktop/support/TestDesk.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace tw::desktop::shell {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;
using app::persistence::AbandonedJournal;
using app::persistence::FileVersion;
using app::persistence::Journal;

namespace {

/** A saved project with one chapter, and an editor that holds its text back. */
class CrashKeeperTest : public testing::Test
{
protected:
    CrashKeeperTest()
        : id(desk.addDocument(u"Ebb"_s, {}, 0))
    {
        desk.document(id).setBody({u"Saved."_s, {}});
        EXPECT_TRUE(desk.session.saveAs(project()));
        keeper = std::make_unique<CrashKeeper>(desk.session, desk.environment, nullptr, 0ms);
        QObject::connect(
            &desk.session, &ProjectSession::heldBackTextsRequested, &desk.session,
            [this](HeldBackTexts& texts) {
                if (!held.isNull())
                    texts.insert(id, held);
            });
    }

    QString project() const { return desk.folder.filePath(u"tide"_s); }
    QString file() const { return app::persistence::objectPath(id); }

    void type(const QString& text)
    {
        held = text;
        desk.session.setTypingPending(editor, !text.isNull());
    }

    void rename(const QString& title)
    {
        desk.session.apply(
            std::make_unique<core::document::SetDocumentTitleCommand>(desk.document(id), title));
    }

    /** The keeper does what it does by itself. */
    static void letTimePass() { QCoreApplication::processEvents(); }

    /** All that journals tell after the program went away. */
    Journal crash()
    {
        keeper.reset();
        Journal found;
        for (AbandonedJournal& journal : AbandonedJournal::find(desk.environment, project())) {
            found = journal.content();
            journal.remove();
        }
        return found;
    }

    /** The chapter's text in what was found; "(none)" when it is not there. */
    QString bodyIn(const Journal& journal) const
    {
        const auto found = journal.files.find(file());
        if (found == journal.files.end() || !found->second.bytes)
            return u"(none)"_s;
        app::persistence::ParseScratch scratch;
        const auto object = app::persistence::parseObject(*found->second.bytes, file(), scratch);
        return object ? static_cast<const core::document::Document&>(*object.value()).body().text
                      : object.message();
    }

    test::TestDesk desk;
    core::ContentId id;
    QString held;
    QObject editor;
    std::unique_ptr<CrashKeeper> keeper;
};

} // namespace

TEST_F(CrashKeeperTest, notesEditsAndTypingThatIsStillHeldBack)
{
    type(u"Saved. And more"_s);
    letTimePass();
    EXPECT_EQ(desk.document(id).body().text, u"Saved."_s) << "no edit was made of it";
    // Another edit of the chapter does not take the typing out of the journal again.
    rename(u"Flood"_s);
    letTimePass();
    core::taxonomy::Category category;
    category.id = core::CategoryId::create();
    desk.session.apply(
        std::make_unique<core::taxonomy::AddCategoryCommand>(desk.session.projectForCommands(), category));
    letTimePass();
    const Journal found = crash();
    EXPECT_EQ(bodyIn(found), u"Saved. And more"_s);
    EXPECT_TRUE(found.files.at(file()).bytes->contains("Flood"));
    EXPECT_TRUE(found.files.at(file()).base->contains("Ebb"));
    EXPECT_TRUE(found.files.contains(app::persistence::categoryPath(category.id)));
}

TEST_F(CrashKeeperTest, forgetsTypingThatWasTakenBack)
{
    type(u"Saved. Never mind"_s);
    letTimePass();
    type({});
    letTimePass();
    EXPECT_EQ(bodyIn(crash()), u"Saved."_s);
}

TEST_F(CrashKeeperTest, letsGoOfWhatIsSaved)
{
    rename(u"Flood"_s);
    letTimePass();
    ASSERT_TRUE(desk.session.save());
    rename(u"Neap"_s);
    rename(u"Flood"_s);
    keeper->flush();
    keeper->discard();
    EXPECT_TRUE(crash().projectPath.isEmpty());
}

TEST_F(CrashKeeperTest, followsTheProjectToItsNewPlace)
{
    rename(u"Flood"_s);
    letTimePass();
    ASSERT_TRUE(desk.session.saveAs(desk.folder.filePath(u"elsewhere"_s)));
    rename(u"Neap"_s);
    letTimePass();
    keeper.reset();
    EXPECT_TRUE(AbandonedJournal::find(desk.environment, project()).empty());
    const auto found = AbandonedJournal::find(desk.environment, desk.folder.filePath(u"elsewhere"_s));
    ASSERT_EQ(found.size(), 1U);
    EXPECT_TRUE(found.front().content().files.at(file()).base->contains("Flood"));
}

TEST_F(CrashKeeperTest, bringsBackWhatACrashLeftAndKeepsItNoted)
{
    rename(u"Flood"_s);
    letTimePass();
    const Journal found = crash();

    ASSERT_TRUE(desk.session.open(project()));
    keeper = std::make_unique<CrashKeeper>(desk.session, desk.environment, nullptr, 0ms);
    const auto plan = app::persistence::planRestore(found, [this](const QString& path) {
        return FileVersion(desk.session.workspace().diskState().bytes(path));
    });
    ASSERT_TRUE(desk.session.restoreUnsaved(plan.files));
    EXPECT_EQ(desk.document(id).title(), u"Flood"_s);
    EXPECT_TRUE(desk.session.isModified());
    EXPECT_TRUE(keeper->noteRestored(plan.files));
    EXPECT_TRUE(crash().files == found.files) << "the next crash finds it as well";
}

TEST_F(CrashKeeperTest, saysOnceThatItCannotWriteAndCatchesUp)
{
    QFile inTheWay(desk.environment.dataFolder + u"/journals"_s);
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    QSignalSpy failed(keeper.get(), &CrashKeeper::failed);
    rename(u"Flood"_s);
    ASSERT_TRUE(failed.wait());
    keeper->flush();
    keeper->flush();
    EXPECT_EQ(failed.size(), 1);
    inTheWay.remove();
    keeper->flush();
    EXPECT_TRUE(crash().files.contains(file()));
}

} // namespace tw::desktop::shell
