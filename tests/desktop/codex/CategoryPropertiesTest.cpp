#include "desktop/codex/CategoryProperties.h"

#include "desktop/codex/CategoryPropertiesDialog.h"
#include "desktop/codex/CodexFixture.h"
#include "desktop/codex/FieldDialog.h"
#include "desktop/fields/NoteLabel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

#include <random>

namespace tw::desktop::codex {

using namespace Qt::Literals::StringLiterals;
using core::taxonomy::Field;
using core::taxonomy::FieldList;
using core::taxonomy::FieldType;

namespace {

Field makeField(const QString& key, const QString& label = {}, FieldType type = FieldType::Text)
{
    Field field;
    field.key = key;
    field.label = label;
    field.type = type;
    return field;
}

class CategoryPropertiesTest : public CodexFixture
{};

} // namespace

TEST_F(CategoryPropertiesTest, keysComeFromLabelsAndStayUnique)
{
    const FieldList own{makeField(u"hairColour"_s, u"Hair colour"_s)};
    core::entity::Schema above(2);
    above[0].field = makeField(u"occupation"_s, u"Office"_s);
    above[1].field = makeField(u"age"_s, u"Years"_s);
    const struct
    {
        const char16_t* label;
        const char16_t* key;
    } cases[] = {
        {u"Name", u"name"},
        {u"  Where the money is ", u"whereTheMoneyIs"},
        {u"Hair Colour", u"hairColour2"},
        {u"Größe (m)", u"größeM"},
        {u"2nd name", u"2ndName"},
        {u"—", u""},
        {u"office", u"occupation"}, // The same name as one from above: a version of that one.
        {u"Age", u"age2"},          // The same key by chance only.
    };
    for (const auto& [label, key] : cases)
        EXPECT_EQ(keyForNewField(QString::fromUtf16(label), own, above), QString::fromUtf16(key));
}

TEST_F(CategoryPropertiesTest, fieldsThatCannotBeAreRefused)
{
    Field both = makeField(u"law"_s);
    both.isFixed = both.isRequired = true;
    EXPECT_EQ(
        checkFieldBeside(both, {}).message(),
        u"A field cannot be both \"fixed\" and \"required\": a fixed field's value is supplied once by the "
        u"category, "
        u"so there is nothing for an entity to be required to fill in."_s);
    EXPECT_FALSE(checkFieldBeside(makeField(u""_s), {}));
    EXPECT_FALSE(checkFieldBeside(makeField(u"law"_s), {makeField(u"law"_s)}));
    EXPECT_TRUE(checkFieldBeside(makeField(u"Law"_s), {makeField(u"law"_s)})) << "keys differ by case";
    Field choice = makeField(u"rank"_s, {}, FieldType::Choice);
    EXPECT_FALSE(checkFieldBeside(choice, {}));
    choice.options = {u"high"_s};
    EXPECT_TRUE(checkFieldBeside(choice, {}));
}

TEST_F(CategoryPropertiesTest, anyPropertiesAreReachedInOneStepAndTakenBack)
{
    std::mt19937 random(3);
    const auto randomFields = [&random] {
        FieldList fields;
        for (int key = 0; key < 6; ++key) {
            if (random() % 3 > 0)
                fields.push_back(makeField(QString::number(key), QString::number(random() % 2)));
        }
        std::ranges::shuffle(fields, random);
        if (random() % 10 == 0 && !fields.empty())
            fields.push_back(fields.front()); // As a damaged file may have it.
        return fields;
    };
    for (int round = 0; round < 200; ++round) {
        category(clerks).fields = randomFields();
        const auto before = snapshot();
        const CategoryProperties wanted{
            randomFields(), {QString::number(random() % 2)}, {QString::number(random() % 2)}};
        applyCategoryProperties(desk.session, clerks, wanted);
        ASSERT_EQ(propertiesOf(category(clerks)), wanted) << "round " << round;
        desk.session.undo();
        ASSERT_EQ(snapshot(), before) << "round " << round;
        ASSERT_FALSE(desk.session.canUndo());
    }
}

TEST_F(CategoryPropertiesTest, dialogTicksWhatIsLeftOutOrTaken)
{
    category(people).fields = {makeField(u"home"_s, u"Home"_s), makeField(u"debt"_s, u"Debt"_s)};
    category(clerks).excludedKeys = {u"stale"_s, u"debt"_s};
    const auto& project = desk.session.project();
    CategoryPropertiesDialog dialog(
        desk.context,
        {u"Clerks"_s, {}, propertiesOf(category(clerks)), fieldsFromAbove(project, category(clerks))},
        nullptr);
    auto* const list = dialog.findChild<QListWidget*>();
    ASSERT_NE(list, nullptr);
    ASSERT_EQ(list->count(), 2);
    EXPECT_EQ(list->item(0)->checkState(), Qt::Unchecked);
    EXPECT_EQ(list->item(1)->checkState(), Qt::Checked);
    list->item(0)->setCheckState(Qt::Checked);
    list->item(1)->setCheckState(Qt::Unchecked);
    EXPECT_EQ(dialog.properties().excludedKeys, (QStringList{u"stale"_s, u"home"_s}));

    category(places).fields = {makeField(u"tide"_s, u"Tide"_s)};
    category(wards).excludedKeys = {u"tide"_s};
    CategoryPropertiesDialog under(
        desk.context,
        {u"Wards"_s, u"Staithe"_s, propertiesOf(category(wards)), fieldsFromAbove(project, category(wards))},
        nullptr);
    auto* const taken = under.findChild<QListWidget*>();
    ASSERT_EQ(taken->count(), 1);
    EXPECT_EQ(taken->item(0)->checkState(), Qt::Unchecked) << "nothing crosses by itself";
    taken->item(0)->setCheckState(Qt::Checked);
    EXPECT_EQ(under.properties().inheritedKeys, QStringList{u"tide"_s});
    EXPECT_TRUE(under.properties().excludedKeys.isEmpty());
}

TEST_F(CategoryPropertiesTest, fieldDialogKeepsWhatItDoesNotShowAndRefusesInWords)
{
    Field field = makeField(u"seat"_s, u"Seat"_s, FieldType::Choice);
    field.options = {u"left"_s, u"right"_s};
    field.fixedValue = u"left"_s;
    FieldDialogSetup setup;
    setup.field = field;
    setup.keyForLabel = [](const QString& label) { return keyFromLabel(label); };
    setup.check = [](const Field& candidate) {
        return FieldVerdict{checkFieldBeside(candidate, {}).message(), {}};
    };
    FieldDialog dialog(desk.context, setup, nullptr);
    EXPECT_EQ(dialog.field(), field) << "looking changes nothing";

    dialog.findChild<QLineEdit*>()->setText(u"Place at table"_s);
    auto* const type = dialog.findChildren<QComboBox*>().first();
    type->setCurrentIndex(type->findText(fieldTypeTitle(FieldType::Text)));
    EXPECT_EQ(dialog.field().key, u"seat"_s) << "values stand under the key";
    EXPECT_EQ(dialog.field().options, field.options) << "kept for when it is a choice again";

    for (QCheckBox* const box : dialog.findChildren<QCheckBox*>())
        box->setChecked(true);
    dialog.accept();
    EXPECT_NE(dialog.result(), QDialog::Accepted);
    const auto notes = dialog.findChildren<fields::NoteLabel*>();
    const bool isSaid = std::ranges::any_of(notes, [](const fields::NoteLabel* note) {
        return note->text().startsWith(u"A field cannot be both"_s);
    });
    EXPECT_TRUE(isSaid);
}

} // namespace tw::desktop::codex
