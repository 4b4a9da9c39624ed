#include "desktop/fields/ValueEditor.h"

#include "core/calendar/CalendarCommands.h"
#include "core/entity/Entity.h"
#include "desktop/fields/ChipButton.h"
#include "desktop/fields/EntityChoices.h"
#include "desktop/fields/GrowingTextEdit.h"
#include "desktop/fields/NoteLabel.h"
#include "desktop/fields/NumberValueEditor.h"
#include "desktop/fields/StoryDateEdit.h"
#include "desktop/fields/UrlValueEditor.h"
#include "desktop/fields/ValueText.h"
#include "desktop/support/TestDesk.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QUrl>

#include <gtest/gtest.h>

namespace tw::desktop::fields {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::taxonomy::Field;
using core::taxonomy::FieldType;

namespace {

using Value = std::optional<QString>;

class ValueEditorTest : public testing::Test
{
protected:
    ValueEditor& make(FieldType type, const QStringList& options = {})
    {
        Field field;
        field.key = u"key"_s;
        field.type = type;
        field.options = options;
        editor.reset(makeValueEditor(desk.context, field, nullptr));
        QObject::connect(editor.get(), &ValueEditor::valueEdited, editor.get(), [this](const Value& value) {
            edits.push_back(value);
        });
        editor->resize(300, 60);
        editor->show();
        return *editor;
    }

    QLineEdit& line() { return *editor->findChild<QLineEdit*>(); }

    QString note() const
    {
        for (const NoteLabel* const label : editor->findChildren<NoteLabel*>()) {
            if (!label->isHidden())
                return label->text();
        }
        return {};
    }

    ContentId addEntity(const QString& name, const QStringList& aliases = {})
    {
        auto entity = std::make_unique<core::entity::Entity>(ContentId::create(), core::CategoryId(), name);
        entity->setAliases(aliases);
        const ContentId id = entity->id();
        desk.session.projectForCommands().add(std::move(entity));
        return id;
    }

    test::TestDesk desk;
    std::unique_ptr<ValueEditor> editor;
    std::vector<Value> edits;
};

} // namespace

TEST_F(ValueEditorTest, typedTextIsOneEditWhenTheControlIsLeft)
{
    const struct
    {
        FieldType type;
        Value stored;
        QString typed; ///< In the place of what is there.
        std::vector<Value> edits;
    } cases[] = {
        {FieldType::Number, u"12"_s, u" 1.5e3 "_s, {u"1.5e3"_s}},
        {FieldType::Number, u"12"_s, u"twelve"_s, {}},
        {FieldType::Number, u"12"_s, u"1,5"_s, {}},
        {FieldType::Number, u"12"_s, u"inf"_s, {}},
        {FieldType::Number, u"12"_s, u""_s, {std::nullopt}},
        {FieldType::Number, std::nullopt, u""_s, {}},
        {FieldType::Number, u"a dozen"_s, u"12"_s, {u"12"_s}},
        {FieldType::Url, std::nullopt, u"example.org"_s, {u"example.org"_s}},
        {FieldType::Url, u"example.org"_s, u""_s, {std::nullopt}},
        {FieldType::Url, u""_s, u""_s, {}}, // Empty is not unset, and looking changes neither.
        {FieldType::Date, std::nullopt, u"1250"_s, {QString::number(1249LL * 365 * 24 * 60)}},
        {FieldType::Date, std::nullopt, u"when the tide turned"_s, {}},
        {FieldType::Date, u"0"_s, u""_s, {std::nullopt}},
    };
    for (const auto& step : cases) {
        edits.clear();
        make(step.type).setValue(step.stored);
        line().selectAll();
        QTest::keyClick(&line(), Qt::Key_Delete);
        QTest::keyClicks(&line(), step.typed);
        EXPECT_TRUE(edits.empty()) << "nothing before it is left";
        QTest::keyClick(&line(), Qt::Key_Return);
        editor->commit();
        EXPECT_EQ(edits, step.edits) << qPrintable(step.typed);
        const bool isRefused = step.edits.empty() && !step.typed.isEmpty();
        EXPECT_EQ(!note().isEmpty(), isRefused) << "a refusal says why: " << qPrintable(note());
        if (isRefused) {
            EXPECT_EQ(line().text(), step.typed) << "and keeps what was typed";
        }
    }
}

TEST_F(ValueEditorTest, textGrowsAndKeepsEveryCharacter)
{
    make(FieldType::Text).setValue(u"no\u00a0break"_s);
    auto& edit = *editor->findChild<GrowingTextEdit*>();
    const int height = edit.height();
    editor->commit();
    EXPECT_TRUE(edits.empty());
    edit.moveCursor(QTextCursor::End);
    QTest::keyClicks(&edit, u"!"_s);
    QTest::keyClick(&edit, Qt::Key_Return);
    QTest::keyClicks(&edit, u"next"_s);
    EXPECT_GT(edit.height(), height);
    QTest::keyClick(&edit, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(edits, (std::vector<Value>{u"no\u00a0break!\nnext"_s}));
    QTest::keyClicks(&edit, u"lost"_s);
    QTest::keyClick(&edit, Qt::Key_Escape);
    EXPECT_EQ(edit.text(), u"no\u00a0break!\nnext"_s) << "Escape takes back what was not stored";
    edit.setPlainText({});
    editor->commit();
    EXPECT_EQ(edits.back(), std::nullopt) << "emptied is unset";
    EXPECT_EQ(edits.size(), 2U);
}

TEST_F(ValueEditorTest, checkBoxGoesRoundThreeStates)
{
    make(FieldType::Boolean);
    EXPECT_EQ(editor->findChild<QCheckBox*>()->text(), u"Not set"_s);
    editor->setValue(u"perhaps"_s);
    auto& box = *editor->findChild<QCheckBox*>();
    EXPECT_EQ(box.text(), u"perhaps"_s) << "other text is shown and kept";
    for (int click = 0; click < 4; ++click)
        box.click();
    EXPECT_EQ(edits, (std::vector<Value>{u"true"_s, u"false"_s, std::nullopt, u"true"_s}));
    EXPECT_EQ(box.checkState(), Qt::Checked);
}

TEST_F(ValueEditorTest, choiceKeepsAValueThatIsNoneOfIts)
{
    make(FieldType::Choice, {u"high"_s, u"low"_s}).setValue(u"middling"_s);
    auto& box = *editor->findChild<QComboBox*>();
    EXPECT_EQ(box.count(), 4);
    EXPECT_TRUE(box.currentText().startsWith(u"middling"_s));
    box.setCurrentIndex(2);
    emit box.activated(2);
    box.setCurrentIndex(0);
    emit box.activated(0);
    EXPECT_EQ(edits, (std::vector<Value>{u"low"_s, std::nullopt}));
    EXPECT_EQ(box.count(), 3) << "the stranger is gone once another was chosen";
    QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&box, &wheel);
    EXPECT_EQ(box.currentIndex(), 0) << "scrolling over it chooses nothing";
}

TEST_F(ValueEditorTest, dateShowsOtherTextUntilItIsTakenOutAndFollowsTheCalendar)
{
    make(FieldType::Date).setValue(u"in her youth"_s);
    EXPECT_TRUE(note().contains(u"“in her youth”"_s));
    editor->commit();
    EXPECT_TRUE(edits.empty());
    editor->findChild<QToolButton*>()->click();
    EXPECT_EQ(edits, (std::vector<Value>{std::nullopt}));
    EXPECT_TRUE(note().isEmpty());

    editor->setValue(u"0"_s);
    core::calendar::Calendar calendar;
    calendar.setEraName(u"of Survey"_s);
    auto& project = desk.session.projectForCommands();
    QObject::connect(
        &desk.session, &shell::ProjectSession::changed, editor.get(),
        [this](const auto& changes) { editor->follow(changes); });
    desk.session.apply(std::make_unique<core::calendar::SetCalendarCommand>(project, calendar));
    EXPECT_TRUE(line().text().endsWith(u"of Survey"_s));
}

TEST_F(ValueEditorTest, aDateOfNamedErasIsEditedInPlaceAndHintedAtAsItReads)
{
    core::calendar::Calendar calendar;
    calendar.setEras({{u"of Survey"_s, 1200, false}});
    auto& project = desk.session.projectForCommands();
    desk.session.apply(std::make_unique<core::calendar::SetCalendarCommand>(project, calendar));
    const auto instant = calendar.minutesFromParts({1250, 3, 14, 8, 30});
    make(FieldType::Date).setValue(QString::number(instant));
    const QString shown = line().text();
    line().setCursorPosition(2);
    QTest::keyClick(&line(), Qt::Key_Backspace);
    QTest::keyClicks(&line(), u"5"_s);
    QTest::keyClick(&line(), Qt::Key_Return);
    EXPECT_EQ(edits, (std::vector<Value>{QString::number(instant + 24 * 60)})) << qPrintable(shown);

    line().setText(u"some day"_s);
    QTest::keyClick(&line(), Qt::Key_Return);
    ASSERT_TRUE(note().startsWith(u"Not a date this calendar can read. "_s));
    const QString hint = note().section(u'“', 1).section(u'”', 0, 0);
    line().setText(hint);
    QTest::keyClick(&line(), Qt::Key_Return);
    EXPECT_TRUE(note().isEmpty()) << qPrintable(hint);
}

TEST_F(ValueEditorTest, referencesArePickedByNameOrAlias)
{
    const ContentId annis = addEntity(u"Annis Lusk"_s, {u"No. 31"_s});
    const ContentId first = addEntity(u"Tibb"_s);
    addEntity(u"Tibb"_s);
    const QString gone = ContentId::create().toString();
    make(FieldType::Reference).setValue(gone);
    const auto chips = [this] {
        QStringList texts;
        for (const ChipButton* const chip : editor->findChildren<ChipButton*>()) {
            if (!chip->isHidden())
                texts.append(chip->chip().text);
        }
        return texts;
    };
    EXPECT_EQ(chips(), QStringList{u"missing"_s});

    QTest::keyClicks(&line(), u"no. 31"_s);
    line().completer()->popup()->hide();
    QTest::keyClick(&line(), Qt::Key_Return);
    ASSERT_EQ(edits, (std::vector<Value>{gone + u'\n' + annis.toString()}));
    EXPECT_EQ(chips(), (QStringList{u"missing"_s, u"Annis Lusk"_s}));
    EXPECT_TRUE(line().text().isEmpty());

    QTest::keyClicks(&line(), u"Tibb"_s);
    line().completer()->popup()->hide();
    QTest::keyClick(&line(), Qt::Key_Return);
    EXPECT_EQ(edits.size(), 1U) << "two answer to that name";
    EXPECT_FALSE(note().isEmpty());
    line().completer()->setCompletionPrefix(u"Tibb"_s);
    emit line().completer()->activated(line().completer()->completionModel()->index(0, 0));
    QCoreApplication::processEvents();
    EXPECT_EQ(edits.size(), 2U) << "but one can be chosen from the list";
    EXPECT_TRUE(note().isEmpty());

    QSignalSpy opened(&desk.navigator, &shell::Navigator::openRequested);
    emit editor->findChildren<ChipButton*>()[1]->activated();
    ASSERT_EQ(opened.count(), 1);
    EXPECT_EQ(desk.navigator.current(), annis);
    emit editor->findChildren<ChipButton*>()[0]->removeRequested();
    EXPECT_FALSE(edits.back()->contains(gone));
    EXPECT_TRUE(edits.back()->startsWith(annis.toString()));
    static_cast<void>(first);
}

TEST_F(ValueEditorTest, referencesStayWithinTheirCategory)
{
    auto& project = desk.session.projectForCommands();
    core::taxonomy::Category people;
    people.id = core::CategoryId::create();
    core::taxonomy::Category clerks;
    clerks.id = core::CategoryId::create();
    clerks.parentId = people.id;
    project.taxonomyForEdit().insert(people);
    project.taxonomyForEdit().insert(clerks);
    const ContentId clerk = addEntity(u"Annis"_s, {u"No. 31"_s});
    project.findAsForEdit<core::entity::Entity>(clerk)->setCategoryId(clerks.id);
    addEntity(u"The Long Low"_s);
    const auto names = [&](const core::CategoryId& id) {
        QStringList texts;
        for (const EntityChoice& choice : entityChoices(project, id))
            texts.append(choice.text);
        return texts;
    };
    EXPECT_EQ(names(people.id), (QStringList{u"Annis"_s, u"No. 31 — Annis"_s}));
    EXPECT_EQ(names({}).size(), 3);
    EXPECT_EQ(names(core::CategoryId::create()).size(), 3) << "a category that is gone restricts nothing";
}

TEST_F(ValueEditorTest, onlyPagesOfTheWebAreOpened)
{
    const struct
    {
        const char16_t* text;
        bool opens;
    } cases[] = {
        {u"https://example.org/a?b=c", true}, {u"example.org", true},
        {u"mailto:clerk@example.org", true},  {u"file:///etc/passwd", false},
        {u"/usr/bin/something", false},       {u"javascript:alert(1)", false},
        {u"smb://host/share", false},         {u"", false},
    };
    for (const auto& [text, opens] : cases)
        EXPECT_EQ(!openableUrl(QString::fromUtf16(text)).isEmpty(), opens)
            << qPrintable(QString::fromUtf16(text));
}

TEST_F(ValueEditorTest, undoAndRedoGoToTheProject)
{
    make(FieldType::Url).setValue(u"one"_s);
    QTest::keyClicks(&line(), u"more"_s);
    QKeyEvent undo(QEvent::ShortcutOverride, Qt::Key_Z, Qt::ControlModifier);
    undo.ignore(); // As the window sends it; a field that wants the key accepts it.
    QApplication::sendEvent(&line(), &undo);
    EXPECT_FALSE(undo.isAccepted());
}

} // namespace tw::desktop::fields
