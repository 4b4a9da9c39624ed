#include "desktop/codex/CategoryPropertiesDialog.h"
#include "desktop/codex/FieldDialog.h"
#include "desktop/codex/TimedValueDialog.h"
#include "desktop/shell/DialogSelfTest.h"

namespace tw::desktop::shell {

using namespace Qt::Literals::StringLiterals;
using core::taxonomy::Field;
using core::taxonomy::FieldList;
using core::taxonomy::FieldType;

namespace {

/** A field of each type. */
FieldList throwAwayFields()
{
    FieldList fields;
    for (const FieldType type :
         {FieldType::Text, FieldType::Number, FieldType::Boolean, FieldType::Date, FieldType::Reference,
          FieldType::Choice, FieldType::Url}) {
        const QString number = QString::number(fields.size() + 1);
        Field field;
        field.key = u"selftest%1"_s.arg(number);
        field.label = u"Selftest Property %1"_s.arg(number);
        field.type = type;
        field.description = u"Selftest Description"_s;
        if (type == FieldType::Choice)
            field.options = {u"Selftest Choice 1"_s, u"Selftest Choice 2"_s};
        fields.push_back(field);
    }
    return fields;
}

core::entity::Schema throwAwaySchema()
{
    core::entity::Schema schema;
    for (const Field& field : throwAwayFields())
        schema.push_back({field, core::entity::FieldOrigin::Ancestor, core::CategoryId::create()});
    return schema;
}

std::unique_ptr<codex::FieldDialog> makePropertyDialog(const DeskContext& desk, const Field& field)
{
    codex::FieldDialogSetup setup;
    setup.title = u"Selftest"_s;
    setup.verb = u"Selftest"_s;
    setup.field = field;
    setup.keyForLabel = codex::keyFromLabel;
    setup.check = [](const Field& checked) {
        return codex::FieldVerdict{codex::checkFieldBeside(checked, {}).message(), {}};
    };
    return std::make_unique<codex::FieldDialog>(desk, setup, nullptr);
}

std::unique_ptr<QDialog> makeFixedPropertyDialog(const DeskContext& desk)
{
    Field field = throwAwayFields().front();
    field.isFixed = true;
    field.fixedValue = u"Selftest Value"_s;
    return makePropertyDialog(desk, field);
}

/** A definition that nobody touched comes out as it went in, whatever its type; one without a name does not.
 */
QStringList checkPropertyDialog(const DeskContext& desk)
{
    QStringList faults;
    for (const Field& field : throwAwayFields()) {
        const auto dialog = makePropertyDialog(desk, field);
        if (dialog->field() != field)
            faults.append(u"changes \"%1\" by itself"_s.arg(field.label));
        dialog->accept();
        if (dialog->result() != QDialog::Accepted)
            faults.append(u"refuses \"%1\""_s.arg(field.label));
    }
    const auto nameless = makePropertyDialog(desk, {});
    nameless->accept();
    if (nameless->result() == QDialog::Accepted)
        faults.append(u"accepts a property without a name"_s);
    return faults;
}

std::unique_ptr<QDialog> makeCategoryDialog(const DeskContext& desk)
{
    codex::CategoryPropertiesSubject subject;
    subject.categoryName = u"Selftest Category"_s;
    subject.properties.fields = throwAwayFields();
    subject.fromAbove = throwAwaySchema();
    return std::make_unique<codex::CategoryPropertiesDialog>(desk, subject, nullptr);
}

std::unique_ptr<QDialog> makeTimedValueDialog(const DeskContext& desk)
{
    return std::make_unique<codex::TimedValueDialog>(desk, throwAwaySchema(), std::nullopt, nullptr);
}

} // namespace

std::vector<SelfTestDialog> selfTestDialogs()
{
    return {
        {u"property"_s, makeFixedPropertyDialog, checkPropertyDialog},
        {u"category properties"_s, makeCategoryDialog, {}},
        {u"value over time"_s, makeTimedValueDialog, {}},
    };
}

} // namespace tw::desktop::shell
