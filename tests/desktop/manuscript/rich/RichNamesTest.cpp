#include "desktop/manuscript/rich/RichPageFixture.h"

#include "core/entity/Entity.h"
#include "desktop/manuscript/NameCompletion.h"
#include "desktop/manuscript/NotesPane.h"
#include "desktop/manuscript/rich/EntityCard.h"

#include <QHelpEvent>
#include <QSignalSpy>

namespace tw::desktop::manuscript::rich {

using namespace Qt::Literals::StringLiterals;

namespace {

core::ContentId addEntity(test::TestDesk& desk, const QString& name, const QStringList& aliases)
{
    auto entity = std::make_unique<core::entity::Entity>(core::ContentId::create(), core::CategoryId(), name);
    entity->setAliases(aliases);
    const core::ContentId id = entity->id();
    desk.session.projectForCommands().add(std::move(entity));
    return id;
}

} // namespace

TEST_F(RichPageTest, namesOfTheCodexOpenTheirEntity)
{
    const core::ContentId ibbet = addEntity(desk, u"Ibbet Lusk"_s, {u"the clerk"_s});
    open(u"Then *the clerk* came, not Lusk alone."_s);
    QCoreApplication::processEvents();
    QSignalSpy opened(page.get(), &RichPage::entityActivated);
    goTo(u"the cl"_s);
    EXPECT_EQ(page->followAtCursor(), true);
    ASSERT_EQ(opened.count(), 1);
    EXPECT_EQ(opened.front().front().value<core::ContentId>(), ibbet);
    goTo(u"not"_s);
    EXPECT_EQ(page->followAtCursor(), false);
    EXPECT_EQ(opened.count(), 1);

    goTo(u"the cle"_s);
    const QPoint place = page->cursorRect().center();
    QHelpEvent hover(QEvent::ToolTip, place, page->viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(page->viewport(), &hover);
    auto* const card = page->findChild<EntityCard*>();
    ASSERT_TRUE(card);
    EXPECT_TRUE(card->isVisible());
    type(u"x"_s);
    EXPECT_FALSE(card->isVisible()) << "typing sends it away";
}

TEST_F(RichPageTest, theCursorFollowsWhateverItStandsOn)
{
    addEntity(desk, u"Mara"_s, {});
    open(u"To [the sea](https://a.example) with Mara.[^n]\n\n[Next](https://b.example)"_s);
    QCoreApplication::processEvents();
    QStringList followed;
    QObject::connect(page.get(), &RichPage::linkActivated, page.get(), [&](const QString& target) {
        followed.append(target);
    });
    QObject::connect(page.get(), &RichPage::footnoteActivated, page.get(), [&](const QString& label) {
        followed.append(label);
    });
    QObject::connect(page.get(), &RichPage::entityActivated, page.get(), [&] { followed.append(u"Mara"_s); });
    const QString text = page->document()->toRawText();
    const struct
    {
        qsizetype place;
        QString expected;
    } cases[] = {
        {0, QString()},
        {text.indexOf(u"the sea"_s), u"https://a.example"_s},
        {text.indexOf(u"sea"_s), u"https://a.example"_s},
        {text.indexOf(u" with"_s), u"https://a.example"_s},
        {text.indexOf(u"ith"_s), QString()},
        {text.indexOf(u"ara"_s), u"Mara"_s},
        {text.indexOf(u'.') + 1, u"n"_s},
        {text.indexOf(QChar::ParagraphSeparator), u"n"_s},
        {text.indexOf(u"Next"_s), u"https://b.example"_s},
    };
    for (const auto& sample : cases) {
        followed.clear();
        QTextCursor cursor(page->document());
        cursor.setPosition(static_cast<int>(sample.place));
        page->setTextCursor(cursor);
        EXPECT_EQ(page->followAtCursor(), !sample.expected.isEmpty()) << sample.place;
        EXPECT_EQ(followed.join(u' '), sample.expected) << sample.place;
    }
}

TEST_F(RichPageTest, namesAreCompletedAfterTwoBrackets)
{
    addEntity(desk, u"Ibbet Lusk"_s, {});
    addEntity(desk, u"Iron Keep"_s, {});
    open(u"With "_s);
    QCoreApplication::processEvents();
    press(Qt::Key_End);
    type(u"[[i"_s);
    auto* const completion = page->findChild<NameCompletion*>();
    ASSERT_TRUE(completion && completion->isVisible());
    EXPECT_EQ(completion->count(), 2);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_FALSE(completion->isVisible());
    EXPECT_TRUE(page->toPlainText().endsWith(u"Iron Keep"_s)) << page->toPlainText().toStdString();
    type(u" [[q"_s);
    EXPECT_FALSE(completion->isVisible()) << "no such name";
    press(Qt::Key_Return);
    EXPECT_EQ(page->document()->blockCount(), 2) << "and Return is Return again";
}

TEST_F(RichPageTest, notesAreWrittenInTheirPane)
{
    open(u"Word.[^1]"_s);
    desk.document(id).setFootnotes({{u"1"_s, u"First"_s, false}});
    NotesPane pane(desk.context, id, nullptr);
    pane.showNotes(desk.document(id).footnotes(), page->footnoteReferences());
    pane.show();
    EXPECT_FALSE(pane.focusNote(u"9"_s));
    ASSERT_TRUE(pane.focusNote(u"1"_s));
    auto* const text = pane.findChild<QTextEdit*>();
    QTest::keyClicks(text, u"X"_s);
    desk.session.commitPendingEdits();
    EXPECT_TRUE(desk.document(id).footnotes().front().text.contains(u'X'));
    desk.session.undo();
    EXPECT_EQ(desk.document(id).footnotes().front().text, u"First"_s);
}

} // namespace tw::desktop::manuscript::rich
