#include "desktop/codex/EntityPage.h"

#include "core/content/ContentCommands.h"
#include "core/document/DocumentCommands.h"
#include "core/entity/EntityCommands.h"
#include "core/media/Media.h"
#include "core/taxonomy/TaxonomyCommands.h"
#include "core/timeline/TimelineEvent.h"
#include "desktop/codex/CategoryChooser.h"
#include "desktop/codex/CodexFixture.h"
#include "desktop/codex/EntityHeading.h"
#include "desktop/codex/FieldsSection.h"
#include "desktop/codex/GallerySection.h"
#include "desktop/codex/LifespanSection.h"
#include "desktop/codex/MentionSearch.h"
#include "desktop/codex/RelatedSections.h"
#include "desktop/codex/TimedValuesSection.h"
#include "desktop/fields/ChipField.h"
#include "desktop/fields/GrowingTextEdit.h"
#include "desktop/fields/StoryDateEdit.h"
#include "desktop/fields/ValueEditor.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>
#include <QTreeWidget>

namespace tw::desktop::codex {

using namespace Qt::Literals::StringLiterals;
using core::taxonomy::Field;
using core::taxonomy::FieldType;
using fields::GrowingTextEdit;

namespace {

Field makeField(const QString& key, FieldType type = FieldType::Text)
{
    Field field;
    field.key = key;
    field.label = key;
    field.type = type;
    return field;
}

class EntityPageTest : public CodexFixture
{
protected:
    EntityPageTest()
    {
        Field oath = makeField(u"oath"_s);
        oath.isFixed = true;
        oath.fixedValue = u"I write what the water leaves."_s;
        Field grade = makeField(u"grade"_s, FieldType::Choice);
        grade.options = {u"First"_s, u"Second"_s};
        category(people).fields = {makeField(u"story"_s), makeField(u"home"_s, FieldType::Reference), oath};
        category(clerks).fields = {grade};
        entity(annis).setOwnFields({makeField(u"limp"_s, FieldType::Boolean)});
        entity(annis).setValue(u"story"_s, u"A clerk."_s);
        entity(annis).setValue(u"forgotten"_s, u"something"_s);
        desk.announce();
        page = std::make_unique<EntityPage>(desk.context, annis, nullptr);
        page->resize(800, 900);
        page->show();
    }

    GrowingTextEdit& story() { return *page->fields().editor(u"story"_s)->findChild<GrowingTextEdit*>(); }
    std::optional<QString> stored(const QString& key) { return entity(annis).value(key); }

    template <class Command, class... Arguments>
    void apply(Arguments&&... arguments)
    {
        desk.session.apply(std::make_unique<Command>(std::forward<Arguments>(arguments)...));
    }

    std::unique_ptr<EntityPage> page;
};

} // namespace

TEST_F(EntityPageTest, groupsFieldsByWhereTheyComeFrom)
{
    using Source = FieldGroup::Source;
    const auto groups = fieldGroups(desk.session.project(), entity(annis));
    ASSERT_EQ(groups.size(), 4U);
    EXPECT_EQ(groups[0].source, Source::Ancestor);
    EXPECT_EQ(groups[0].categoryId, people);
    EXPECT_EQ(groups[0].fields.size(), 2U) << "the fixed field stands apart";
    EXPECT_EQ(groups[1].source, Source::Category);
    EXPECT_EQ(groups[2].source, Source::Own);
    EXPECT_EQ(groups[3].source, Source::Fixed);
    EXPECT_EQ(page->fields().editor(u"oath"_s), nullptr) << "a fixed value is not edited here";
    EXPECT_EQ(page->statusText(), u"1 of 4 properties filled in"_s);

    category(places).fields = {makeField(u"tide"_s)};
    category(wards).inheritedKeys = {u"tide"_s};
    const auto through = fieldGroups(desk.session.project(), entity(counter));
    ASSERT_EQ(through.size(), 1U);
    EXPECT_EQ(through[0].source, Source::ThroughEntity);
    EXPECT_EQ(groupTitle(desk.session.project(), entity(counter), through[0]), u"Through Staithe"_s);
}

TEST_F(EntityPageTest, typedValueIsOneStepWhenTheControlIsLeft)
{
    story().moveCursor(QTextCursor::End);
    QTest::keyClicks(&story(), u" Dismissed."_s);
    EXPECT_EQ(stored(u"story"_s), u"A clerk."_s);
    EXPECT_TRUE(desk.session.isModified()) << "what is typed counts before it is stored";
    page->heading().nameEdit().setFocus();
    page->fields().commit();
    EXPECT_EQ(stored(u"story"_s), u"A clerk. Dismissed."_s);
    EXPECT_EQ(desk.session.undoText(), u"Set field value"_s);
    desk.session.undo();
    EXPECT_EQ(stored(u"story"_s), u"A clerk."_s);
    EXPECT_EQ(story().text(), u"A clerk."_s) << "the control shows it";
    EXPECT_FALSE(desk.session.canUndo()) << "it was one step";

    QTest::keyClicks(&story(), u"x"_s);
    desk.session.undo();
    EXPECT_EQ(story().text(), u"A clerk."_s) << "undo stores what is typed first and takes that back";
    EXPECT_TRUE(desk.session.canRedo());
}

TEST_F(EntityPageTest, choosesAndPicksThroughTheControls)
{
    auto& grade = *page->fields().editor(u"grade"_s)->findChild<QComboBox*>();
    grade.setCurrentIndex(2);
    emit grade.activated(2);
    EXPECT_EQ(stored(u"grade"_s), u"Second"_s);

    auto& home = *page->fields().editor(u"home"_s)->findChild<QLineEdit*>();
    home.setText(u"staithe"_s);
    QTest::keyClick(&home, Qt::Key_Return);
    EXPECT_EQ(stored(u"home"_s), staithe.toString());
    desk.session.undo();
    EXPECT_EQ(stored(u"home"_s), std::nullopt);
    EXPECT_EQ(page->fields().editor(u"home"_s)->value(), std::nullopt);
}

TEST_F(EntityPageTest, controlsStayWhenOtherThingsChange)
{
    const QPointer<fields::ValueEditor> kept = page->fields().editor(u"story"_s);
    const QPointer<fields::ValueEditor> dropped = page->fields().editor(u"grade"_s);
    QTextCursor cursor = story().textCursor();
    cursor.setPosition(4);
    story().setTextCursor(cursor);
    auto& project = desk.session.projectForCommands();
    apply<core::entity::SetEntityNameCommand>(entity(bream), u"Bream the Elder"_s);
    apply<core::entity::SetFieldValueCommand>(entity(annis), u"grade"_s, u"First"_s);
    apply<core::taxonomy::AddFieldCommand>(project, clerks, makeField(u"number"_s), 0U);
    EXPECT_NE(page->fields().editor(u"number"_s), nullptr);
    apply<core::taxonomy::RemoveFieldCommand>(project, clerks, u"grade"_s);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(page->fields().editor(u"grade"_s), nullptr);
    EXPECT_TRUE(dropped.isNull());
    ASSERT_EQ(page->fields().editor(u"story"_s), kept);
    EXPECT_EQ(story().textCursor().position(), 4) << "the cursor is where it was";
    const auto hidden = hiddenValues(project, entity(annis));
    ASSERT_EQ(hidden.size(), 2U) << "what lost its field is listed";
    EXPECT_EQ(hidden[0].key, u"forgotten"_s);
    EXPECT_EQ(hidden[1].value, u"First"_s);
    desk.session.undo();
    EXPECT_EQ(page->fields().editor(u"grade"_s)->value(), u"First"_s) << "and comes back with it";
}

TEST_F(EntityPageTest, namesAndPlaceAreEditedAtTheTop)
{
    QLineEdit& name = page->heading().nameEdit();
    name.selectAll();
    QTest::keyClicks(&name, u"Annis Lusk"_s);
    QTest::keyClick(&name, Qt::Key_Return);
    EXPECT_EQ(page->title(), u"Annis Lusk"_s);
    name.clear();
    QTest::keyClick(&name, Qt::Key_Return);
    EXPECT_EQ(name.text(), u"Annis Lusk"_s) << "a name is not emptied by accident";

    QLineEdit& alias = page->heading().aliases().lineEdit();
    for (const QString& text : {u"No. 31"_s, u"no. 31"_s}) {
        QTest::keyClicks(&alias, text);
        QTest::keyClick(&alias, Qt::Key_Return);
    }
    EXPECT_EQ(entity(annis).aliases(), QStringList{u"No. 31"_s});
    emit page->heading().aliases().removeRequested(0);
    EXPECT_TRUE(entity(annis).aliases().isEmpty());
    for (int steps = 0; steps < 3; ++steps)
        desk.session.undo();
    EXPECT_EQ(name.text(), u"Annis"_s);
    EXPECT_FALSE(desk.session.canUndo());

    CategoryChooser chooser(desk.session.project(), entity(annis), nullptr);
    chooser.setAttribute(Qt::WA_DeleteOnClose, false);
    core::CategoryId chosen;
    QObject::connect(&chooser, &CategoryChooser::chosen, &chooser, [&](const auto& id) { chosen = id; });
    QLineEdit& filter = *chooser.findChild<QLineEdit*>();
    filter.setText(u"wards"_s);
    QTest::keyClick(&filter, Qt::Key_Return);
    EXPECT_EQ(chosen, wards);

    const CategoryChooser ofStaithe(desk.session.project(), entity(staithe), nullptr);
    const auto& list = *ofStaithe.findChild<QListWidget*>();
    EXPECT_FALSE(list.findItems(u"People"_s, Qt::MatchExactly).empty());
    EXPECT_TRUE(list.findItems(u"Wards"_s, Qt::MatchContains).empty()) << "it hangs under that entity";
}

TEST_F(EntityPageTest, lifespanAndStateOverTimeAreSteps)
{
    auto& birth = *page->lifespan().birth().findChild<QLineEdit*>();
    QTest::keyClicks(&birth, u"190"_s);
    QTest::keyClick(&birth, Qt::Key_Return);
    ASSERT_TRUE(entity(annis).lifespan().birth);
    EXPECT_FALSE(entity(annis).lifespan().death);
    desk.session.undo();
    EXPECT_TRUE(birth.text().isEmpty());

    const TimedEntry early{u"story"_s, {10, u"young"_s}};
    const TimedEntry late{u"story"_s, {20, u"old"_s}};
    auto values = withTimedEntry({}, std::nullopt, late);
    values = withTimedEntry(values, std::nullopt, early);
    EXPECT_EQ(timedEntries(values), (std::vector{early, late})) << "by date";
    values = withTimedEntry(values, early, TimedEntry{u"grade"_s, {30, u"First"_s}});
    apply<core::entity::SetEntityTimedValuesCommand>(entity(annis), values);
    EXPECT_EQ(page->timedValues().table().topLevelItemCount(), 2);
    EXPECT_EQ(page->timedValues().table().topLevelItem(0)->text(2), u"First"_s);
    EXPECT_TRUE(withTimedEntry(withTimedEntry({}, std::nullopt, late), late, std::nullopt).empty());
}

TEST_F(EntityPageTest, lockedEntityIsReadOnly)
{
    apply<core::content::SetObjectLockCommand>(entity(annis), true);
    EXPECT_TRUE(story().isReadOnly());
    EXPECT_TRUE(page->heading().nameEdit().isReadOnly());
    EXPECT_FALSE(page->fields().editor(u"grade"_s)->findChild<QComboBox*>()->isEnabled());
    desk.session.undo();
    EXPECT_FALSE(story().isReadOnly());
}

TEST_F(EntityPageTest, goesAndStaysAsTheProjectDoes)
{
    story().setFocus();
    QTest::keyClicks(&story(), u"Typed. "_s);
    desk.session.startNew(u"Another"_s);
    EXPECT_TRUE(page->title().isEmpty()) << "nothing of the old project is touched any more";
    desk.announce();
    page.reset();

    const auto other = addEntity(u"Other"_s, {});
    desk.announce();
    page = std::make_unique<EntityPage>(desk.context, other, nullptr);
    page->show();
    page->heading().nameEdit().setFocus();
    QTest::keyClicks(&page->heading().nameEdit(), u"wise"_s);
    page.reset();
    EXPECT_TRUE(desk.session.project().contains(other)) << "going with a half-typed name harms nothing";
}

TEST_F(EntityPageTest, linksToWhereItHappensAndIsNamed)
{
    core::timeline::EventDetails details;
    details.title = u"The Drowning"_s;
    details.startMinute = 500;
    details.participants = {annis};
    auto& project = desk.session.projectForCommands();
    apply<core::content::AddObjectCommand>(
        project, std::make_unique<core::timeline::TimelineEvent>(core::ContentId::create(), details));
    details.title = u"Earlier"_s;
    details.startMinute = 100;
    details.participants.clear();
    details.locationId = annis;
    apply<core::content::AddObjectCommand>(
        project, std::make_unique<core::timeline::TimelineEvent>(core::ContentId::create(), details));
    const auto& events = page->findChild<EventsSection*>()->list().links();
    ASSERT_EQ(events.size(), 2U);
    EXPECT_EQ(events[0].title, u"Earlier"_s);

    const auto chapter = desk.addDocument(u"Chapter <1>"_s, {}, 0);
    apply<core::document::SetDocumentBodyCommand>(
        desk.document(chapter), core::document::DocumentBody{u"Annis went out."_s, {}});
    page->mentions().search().finishNow();
    ASSERT_EQ(page->mentions().list().links().size(), 1U);
    EXPECT_EQ(page->mentions().list().links()[0].id, chapter);
}

TEST_F(EntityPageTest, picturesLieInTheProjectFolder)
{
    QTemporaryDir folder;
    ASSERT_TRUE(QDir(folder.path()).mkpath(u"project/assets"_s));
    const auto touch = [&](const QString& path) {
        QFile file(folder.filePath(path));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    };
    touch(u"project/assets/a.png"_s);
    touch(u"outside.png"_s);
    ASSERT_TRUE(
        QFile::link(folder.filePath(u"outside.png"_s), folder.filePath(u"project/assets/link.png"_s)));
    const QString project = folder.filePath(u"project"_s);
    EXPECT_TRUE(assetFile(project, u"assets/a.png"_s).endsWith(u"project/assets/a.png"_s));
    for (const QString& path :
         {u"../outside.png"_s, u"assets/link.png"_s, u"assets"_s, u"assets/none.png"_s, u""_s})
        EXPECT_TRUE(assetFile(project, path).isEmpty()) << qPrintable(path);
    EXPECT_TRUE(assetFile({}, u"assets/a.png"_s).isEmpty());
}

} // namespace tw::desktop::codex
