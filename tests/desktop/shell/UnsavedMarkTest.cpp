// The mark of tabs whose pages have changes that are not on disk.
#include "core/content/ContentCommands.h"
#include "core/document/DocumentCommands.h"
#include "desktop/composition/CompositionPage.h"
#include "desktop/manuscript/BodyEditor.h"
#include "desktop/manuscript/DocumentPage.h"
#include "desktop/shell/WorkArea.h"
#include "desktop/support/TestDesk.h"

#include <QAccessible>
#include <QTabBar>
#include <QTest>

#include <gtest/gtest.h>

namespace tw::desktop::shell {

using namespace Qt::Literals::StringLiterals;

namespace {

class UnsavedMarkTest : public testing::Test
{
protected:
    UnsavedMarkTest()
    {
        one = desk.addDocument(u"One"_s, {}, 0);
        two = desk.addDocument(u"Two"_s, {}, 1);
        EXPECT_TRUE(desk.session.saveAs(place));
        work.setFactory(core::content::ContentKind::Document, [this](const auto& id, QWidget* parent) {
            return new manuscript::DocumentPage(desk.context, id, parent);
        });
        work.setViewFactory(composition::compositionView, [this](const auto& id, QWidget* parent) {
            return new composition::CompositionPage(desk.context, id, parent);
        });
        work.show();
        work.openPage({{}, composition::compositionView});
        work.openPage({two, {}});
        work.openPage({one, {}});
    }

    void setSynopsis(const core::ContentId& id, const QString& text)
    {
        desk.session.apply(
            std::make_unique<core::document::SetDocumentSynopsisCommand>(desk.document(id), text));
    }

    /** Which of the tabs are marked: the whole text "c", "1", "2". */
    QString marked()
    {
        QCoreApplication::processEvents();
        const QTabBar& tabs = *work.findChild<QTabBar*>();
        QString names;
        for (int index = 0; index < tabs.count(); ++index) {
            const bool isMarked = tabs.tabText(index).startsWith(u"• "_s);
            EXPECT_EQ(tabs.accessibleTabName(index).endsWith(u"(unsaved)"_s), isMarked);
            if (isMarked)
                names += u"c21"_s[index];
        }
        return names;
    }

    test::TestDesk desk;
    QString place = desk.folder.filePath(u"project"_s);
    core::ContentId one;
    core::ContentId two;
    WorkArea work{desk.context, nullptr};
};

} // namespace

TEST_F(UnsavedMarkTest, followsEditsUndoAndSaves)
{
    EXPECT_EQ(marked(), QString());
    setSynopsis(two, u"x"_s);
    EXPECT_EQ(marked(), u"c2"_s);
    setSynopsis(one, u"y"_s);
    EXPECT_EQ(marked(), u"c21"_s);
    desk.session.undo();
    EXPECT_EQ(marked(), u"c2"_s) << "what was undone is what is on disk";
    desk.session.undo();
    EXPECT_EQ(marked(), QString());
    desk.session.redo();
    desk.session.redo();
    EXPECT_EQ(marked(), u"c21"_s);
    ASSERT_TRUE(desk.session.save());
    EXPECT_EQ(marked(), QString());
    desk.session.undo();
    EXPECT_EQ(marked(), u"c1"_s) << "undone to what is not on disk";
}

TEST_F(UnsavedMarkTest, typingMarksAtOnceAndItsEndWithoutAChangeUnmarks)
{
    auto* const page = qobject_cast<manuscript::DocumentPage*>(work.currentPage());
    ASSERT_TRUE(page);
    QTest::keyClicks(&page->editor(), u"a"_s);
    EXPECT_TRUE(desk.session.isTypingPending());
    EXPECT_EQ(marked(), u"1"_s);
    QTest::keyClick(&page->editor(), Qt::Key_Backspace);
    desk.session.commitPendingEdits();
    EXPECT_EQ(marked(), QString());
    QTest::keyClicks(&page->editor(), u"a"_s);
    ASSERT_TRUE(desk.session.save());
    EXPECT_EQ(marked(), QString());
}

TEST_F(UnsavedMarkTest, reloadTakesTheMarksAway)
{
    setSynopsis(one, u"x"_s);
    EXPECT_EQ(marked(), u"c1"_s);
    ASSERT_TRUE(desk.session.reload());
    EXPECT_EQ(marked(), QString());
}

TEST_F(UnsavedMarkTest, aFileThatSaysTheSameInOtherWordsIsSaved)
{
    QFile file(place + u"/objects/%1.json"_s.arg(one.toString()));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    const QByteArray other = file.readAll().replace("\n", "\n  ") + "\n\n";
    ASSERT_TRUE(file.resize(0) && file.seek(0) && file.write(other) == other.size());
    file.close();
    ASSERT_TRUE(desk.session.reload());
    setSynopsis(two, u"x"_s);
    EXPECT_EQ(marked(), u"c2"_s);
}

TEST(UnsavedMark, everythingIsUnsavedInAProjectWithoutAPlace)
{
    test::TestDesk desk;
    const core::ContentId id = desk.addDocument(u"One"_s, {}, 0);
    EXPECT_TRUE(desk.session.workspace().isUnsaved(id));
    EXPECT_FALSE(desk.session.workspace().isUnsaved(core::ContentId::create()));
}

} // namespace tw::desktop::shell
