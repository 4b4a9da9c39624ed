#include "desktop/continuity/RulesDialog.h"

#include "app/codex/DateText.h"
#include "core/entity/Entity.h"
#include "desktop/fields/NoteLabel.h"
#include "desktop/fields/StoryDateEdit.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/support/MountedLibrary.h"
#include "desktop/support/NextDialog.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace tw::desktop::continuity {

using namespace Qt::Literals::StringLiterals;
using core::entity::Entity;
using core::taxonomy::FieldType;
using core::timeline::ContinuityRule;

namespace {

class RulesDialogTest : public testing::Test
{
protected:
    RulesDialogTest()
    {
        core::taxonomy::Field hair;
        hair.key = u"hair_1"_s;
        hair.label = u"Hair"_s;
        core::taxonomy::Category people;
        people.id = core::CategoryId::create();
        people.fields = {
            hair,
            fieldOf(u"Home"_s, FieldType::Reference),
            fieldOf(u"Met"_s, FieldType::Date),
            fieldOf(u"Alive"_s, FieldType::Boolean),
            fieldOf(u"Age"_s, FieldType::Number),
            fieldOf(u"Rank"_s, FieldType::Choice)};
        people.fields.back().options = {u"Captain"_s, u"Mate"_s};
        desk.session.projectForCommands().taxonomyForEdit().insert(people);
        desk.session.projectForCommands().add(std::make_unique<Entity>(ann, people.id, u"Ann"_s));
        desk.session.projectForCommands().add(std::make_unique<Entity>(mill, people.id, u"The Mill"_s));
        // The writer's own secrets are no secrets at the desk.
        desk.session.projectForCommands().findForEdit(mill)->setAiExcluded(true);
    }

    static core::taxonomy::Field fieldOf(const QString& name, FieldType type)
    {
        core::taxonomy::Field made;
        made.key = name.toLower();
        made.label = name;
        made.type = type;
        return made;
    }

    /** Types and leaves the field, whether or not the dialog is the active window. */
    static void type(QLineEdit& edit, const QString& text)
    {
        edit.setFocus();
        edit.selectAll();
        QTest::keyClicks(&edit, text);
        emit edit.editingFinished();
    }

    static QPushButton& button(QWidget& dialog, const QString& text)
    {
        for (QPushButton* const candidate : dialog.findChildren<QPushButton*>()) {
            if (candidate->text().remove(u'&') == text)
                return *candidate;
        }
        ADD_FAILURE() << text.toStdString();
        return *dialog.findChild<QPushButton*>();
    }

    /** The line edit or combo box behind a label of the form. */
    template <class Field>
    static Field& field(QWidget& dialog, const QString& label)
    {
        for (QLabel* const candidate : dialog.findChildren<QLabel*>()) {
            if (candidate->text().remove(u'&') == label)
                return *qobject_cast<Field*>(candidate->buddy());
        }
        ADD_FAILURE() << label.toStdString();
        return *dialog.findChild<Field*>();
    }

    test::TestDesk desk;
    core::ContentId ann = core::ContentId::create();
    core::ContentId mill = core::ContentId::create();
};

} // namespace

TEST_F(RulesDialogTest, aRuleIsMadeByHandAndStoredAsOneStep)
{
    const test::NextDialog<RulesDialog> next([](RulesDialog& dialog) {
        button(dialog, u"Add Rule"_s).click();
        QTest::keyClicks(&field<QLineEdit>(dialog, u"Name"_s), u"Red hair"_s);
        QLineEdit& entity = field<QLineEdit>(dialog, u"Entity"_s);
        entity.setFocus();
        QTest::keyClicks(&entity, u"ann"_s);
        QTest::keyClick(&entity, Qt::Key_Tab);
        QComboBox& property = field<QComboBox>(dialog, u"Property"_s);
        property.setCurrentText(u"Hair"_s);
        QComboBox& comparison = field<QComboBox>(dialog, u"Comparison"_s);
        comparison.setCurrentIndex(comparison.findData(u"oneOf"_s));
        QTest::keyClicks(&field<QLineEdit>(dialog, u"Value"_s), u"red|copper"_s);
        button(dialog, u"Apply Rules"_s).click();
    });
    editContinuityRules(desk.context, nullptr);
    ASSERT_TRUE(next.wasSeen());
    const std::vector<ContinuityRule> expected{
        {u"Red hair"_s, ann, u"hair_1"_s, u"oneOf"_s, u"red|copper"_s, {}}};
    EXPECT_EQ(desk.session.project().continuityRules(), expected);
    desk.session.undo();
    EXPECT_TRUE(desk.session.project().continuityRules().empty());
    EXPECT_FALSE(desk.session.canUndo());
}

TEST_F(RulesDialogTest, removesAndKeepsWhatIsNotTouched)
{
    const ContinuityRule odd{u"Odd"_s, core::ContentId::create(), u"gone"_s, u"rhymes"_s, u"x"_s, 5};
    const ContinuityRule hair{u"Hair"_s, ann, u"hair_1"_s, u"isEmpty"_s, {}, {}};
    RulesDialog dialog(desk.context, {hair, odd}, nullptr);
    auto& list = *dialog.findChild<QListWidget*>();
    list.setCurrentRow(1);
    list.setCurrentRow(0);
    EXPECT_FALSE(field<QLineEdit>(dialog, u"Value"_s).isEnabled());
    list.setCurrentRow(1);
    EXPECT_EQ(dialog.rules(), (RuleList{hair, odd}));
    button(dialog, u"Move Up"_s).click();
    EXPECT_EQ(dialog.rules(), (RuleList{odd, hair}));
    list.setCurrentRow(1);
    button(dialog, u"Remove"_s).click();
    dialog.accept();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(dialog.rules(), RuleList{odd});
}

TEST_F(RulesDialogTest, rulesThatAreNotCompleteAreNotApplied)
{
    const ContinuityRule hair{u"Hair"_s, ann, u"hair_1"_s, u"isEmpty"_s, {}, {}};
    const struct
    {
        RuleList rules;
        QString fault;
    } cases[] = {
        {{hair}, {}},
        {{{u" "_s, ann, u"a"_s, u"equals"_s, {}, {}}}, u"Every rule needs a name."_s},
        {{hair, {u"HAIR "_s, ann, u"a"_s, u"equals"_s, {}, {}}},
         u"Two rules are called “HAIR”. Give one of them another name."_s},
        {{{u"R"_s, {}, u"a"_s, u"equals"_s, {}, {}}}, u"Choose the entity that “R” is about."_s},
        {{{u"R"_s, ann, {}, u"equals"_s, {}, {}}}, u"Choose the property that “R” looks at."_s},
    };
    for (const auto& row : cases) {
        EXPECT_EQ(faultIn(row.rules), row.fault);
        RulesDialog dialog(desk.context, row.rules, nullptr);
        dialog.accept();
        EXPECT_EQ(dialog.result() == QDialog::Accepted, row.fault.isEmpty()) << row.fault.toStdString();
    }
}

TEST_F(RulesDialogTest, aDateThatDoesNotReadStaysWithItsRule)
{
    const ContinuityRule hair{u"Hair"_s, ann, u"hair_1"_s, u"isEmpty"_s, {}, 5};
    const ContinuityRule other{u"Other"_s, ann, u"hair_1"_s, u"isEmpty"_s, {}, 7};
    RulesDialog dialog(desk.context, {hair, other}, nullptr);
    auto& list = *dialog.findChild<QListWidget*>();
    auto& date = *qobject_cast<QLineEdit*>(dialog.findChild<fields::StoryDateEdit*>()->focusProxy());
    type(date, u"whenever"_s);
    list.setCurrentRow(1);
    EXPECT_NE(date.text(), u"whenever"_s);
    dialog.accept();
    EXPECT_NE(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(list.currentRow(), 0) << "where there is something to mend";
    EXPECT_EQ(date.text(), u"whenever"_s);
    type(date, u"312"_s);
    list.setCurrentRow(1);
    dialog.accept();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    const auto& calendar = desk.session.project().calendar();
    EXPECT_EQ(calendar.partsFromMinutes(*dialog.rules().front().instant).year, 312);
    EXPECT_EQ(dialog.rules().back(), other);
}

TEST_F(RulesDialogTest, valuesAreReadAndTypedInWords)
{
    const auto day = desk.session.project().calendar().minutesFromParts({7, 1, 1, 0, 0});
    const QString year = QString::number(day);
    const QString date = app::codex::dateText(desk.session.project().calendar(), day);
    const struct
    {
        QString field;
        QString comparison;
        QString typed;
        QString stored;
        QString shown;
        QString fault;
    } cases[] = {
        {u"home"_s, u"equals"_s, u"the mill"_s, mill.toString(), u"The Mill"_s, {}},
        {u"home"_s,
         u"oneOf"_s,
         u"Ann|the mill"_s,
         ann.toString() + u'|' + mill.toString(),
         u"Ann|The Mill"_s,
         {}},
        {u"home"_s,
         u"equals"_s,
         u"Ann, the mill"_s,
         ann.toString() + u'\n' + mill.toString(),
         u"Ann, The Mill"_s,
         {}},
        {u"home"_s,
         u"oneOf"_s,
         u"Ann|Nowhere"_s,
         {},
         {},
         u"There is no entity, or more than one, called “Nowhere” here."_s},
        {u"met"_s, u"lessThan"_s, u"7"_s, year, date, {}},
        {u"met"_s,
         u"equals"_s,
         u"one day"_s,
         {},
         {},
         u"“one day” is not a date this calendar can read. Write it like “%1” or just a year."_s.arg(
             app::codex::dateText(desk.session.project().calendar(), 0))},
        {u"alive"_s, u"equals"_s, u"yes"_s, u"true"_s, u"Yes"_s, {}},
        {u"alive"_s, u"equals"_s, u"maybe"_s, {}, {}, u"“maybe” is neither yes nor no."_s},
        {u"age"_s, u"atMost"_s, u"forty"_s, u"forty"_s, u"forty"_s, {}},
        {u"age"_s, u"lessOrEqual"_s, u"forty"_s, {}, {}, u"“forty” is not a number."_s},
        {u"rank"_s, u"oneOf"_s, u"mate"_s, u"Mate"_s, u"Mate"_s, {}},
        {u"rank"_s, u"equals"_s, u"cook"_s, {}, {}, u"“cook” is none of the choices: Captain, Mate."_s},
        {u"rank"_s, u"contains"_s, u"cap"_s, u"cap"_s, u"cap"_s, {}},
        {u"hair_1"_s, u"equals"_s, u"red|blue"_s, u"red|blue"_s, u"red|blue"_s, {}},
        {u"home"_s, u"equals"_s, u""_s, u""_s, u""_s, {}},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE((row.field + u' ' + row.typed).toStdString());
        RulesDialog dialog(
            desk.context, {{u"R"_s, ann, row.field, row.comparison, u"before"_s, {}}}, nullptr);
        dialog.show();
        type(field<QLineEdit>(dialog, u"Value"_s), row.typed);
        if (row.typed.isEmpty())
            QTest::keyClick(&field<QLineEdit>(dialog, u"Value"_s), Qt::Key_Delete);
        dialog.accept();
        EXPECT_EQ(dialog.result() == QDialog::Accepted, row.fault.isEmpty());
        EXPECT_EQ(dialog.rules().front().value, row.fault.isEmpty() ? row.stored : u"before"_s);
        const auto labels = dialog.findChildren<fields::NoteLabel*>();
        EXPECT_TRUE(
            std::ranges::any_of(labels, [&row](const auto* label) { return label->text() == row.fault; }));
        if (row.fault.isEmpty()) {
            RulesDialog again(desk.context, dialog.rules(), nullptr);
            EXPECT_EQ(field<QLineEdit>(again, u"Value"_s).text(), row.shown);
            again.accept();
            EXPECT_EQ(again.rules(), dialog.rules());
        }
    }
}

TEST_F(RulesDialogTest, aValueIsKeptWhileOtherRulesAreLookedAtAndReadAnewWithAnotherProperty)
{
    const ContinuityRule home{u"Home"_s, ann, u"home"_s, u"equals"_s, mill.toString(), {}};
    const ContinuityRule hair{u"Hair"_s, ann, u"hair_1"_s, u"equals"_s, u"red"_s, {}};
    RulesDialog dialog(desk.context, {home, hair}, nullptr);
    dialog.show();
    auto& list = *dialog.findChild<QListWidget*>();
    QLineEdit& value = field<QLineEdit>(dialog, u"Value"_s);
    type(value, u"Nowhere"_s);
    list.setCurrentRow(1);
    EXPECT_EQ(value.text(), u"red"_s);
    dialog.accept();
    // Back at the value that does not suit, which is still there.
    EXPECT_EQ(list.currentRow(), 0);
    EXPECT_EQ(value.text(), u"Nowhere"_s);
    field<QComboBox>(dialog, u"Property"_s).setCurrentText(u"Hair"_s);
    dialog.accept();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(dialog.rules().front().fieldKey, u"hair_1"_s);
    EXPECT_EQ(dialog.rules().front().value, u"Nowhere"_s);
}

TEST_F(RulesDialogTest, entitiesOfLibrariesHaveRulesToo)
{
    const core::ContentId coast = test::mountAtlas(desk, u"Coast"_s);
    RulesDialog dialog(
        desk.context,
        {{u"Blue"_s, coast, u"colour"_s, u"equals"_s, u"blue"_s, {}},
         {u"Near"_s, ann, u"home"_s, u"equals"_s, {}, {}}},
        nullptr);
    dialog.show();
    auto& entity = field<QLineEdit>(dialog, u"Entity"_s);
    auto& property = field<QComboBox>(dialog, u"Property"_s);
    EXPECT_EQ(entity.text(), u"Coast — Atlas"_s);
    EXPECT_EQ(property.currentText(), u"Colour"_s);
    type(entity, u"ann"_s);
    EXPECT_EQ(dialog.rules()[0].entityId, ann);
    type(entity, u"coast"_s);
    EXPECT_EQ(dialog.rules()[0].entityId, coast);
    dialog.findChild<QListWidget*>()->setCurrentRow(1);
    type(field<QLineEdit>(dialog, u"Value"_s), u"Coast"_s);
    dialog.accept();
    EXPECT_EQ(dialog.rules()[1].value, coast.toString());
}

} // namespace tw::desktop::continuity
