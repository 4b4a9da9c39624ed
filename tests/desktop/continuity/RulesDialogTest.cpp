#include "desktop/continuity/RulesDialog.h"

#include "core/entity/Entity.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/support/NextDialog.h"
#include "desktop/support/TestDesk.h"

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
        people.fields = {hair};
        desk.session.projectForCommands().taxonomyForEdit().insert(people);
        desk.session.projectForCommands().add(std::make_unique<Entity>(ann, people.id, u"Ann"_s));
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

} // namespace tw::desktop::continuity
