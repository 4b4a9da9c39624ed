#include "desktop/codex/OwnFieldEdits.h"

#include "core/entity/EntityCommands.h"
#include "core/entity/Schema.h"
#include "desktop/codex/CategoryProperties.h"
#include "desktop/codex/FieldDialog.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/shell/ProjectSession.h"

#include <QCoreApplication>

#include <algorithm>

namespace tw::desktop::codex {

using core::entity::Entity;
using core::taxonomy::Field;
using core::taxonomy::FieldList;

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("OwnFieldEdits", text);
}

FieldList withoutKey(FieldList fields, const QString& key)
{
    std::erase_if(fields, [&key](const Field& field) { return field.key == key; });
    return fields;
}

/** Looked up whenever it is needed: while a dialog is open, the project may become another one. */
FieldList ownFieldsOf(const shell::DeskContext& desk, const core::ContentId& entityId)
{
    const auto* const entity = desk.session.project().findAs<Entity>(entityId);
    return entity ? entity->ownFields() : FieldList();
}

FieldVerdict judge(
    const shell::DeskContext& desk, const core::ContentId& entityId, const Field& field,
    const FieldList& others)
{
    const auto& project = desk.session.project();
    const auto* const entity = project.findAs<Entity>(entityId);
    if (!entity)
        return {
            translated(QT_TRANSLATE_NOOP(
                "OwnFieldEdits",
                "This entity has been removed meanwhile. Cancel here; undo brings the entity back.")),
            {}};
    FieldVerdict verdict{
        core::entity::checkOwnField(project, *entity, field).message(),
        core::entity::ownFieldNotice(project, *entity, field)};
    if (verdict.refusal.isEmpty())
        verdict.refusal = checkFieldBeside(field, others).message();
    return verdict;
}

void setOwnFields(const shell::DeskContext& desk, const core::ContentId& entityId, FieldList fields)
{
    auto* const entity = desk.session.projectForCommands().findAsForEdit<Entity>(entityId);
    if (entity && !entity->isLocked() && entity->ownFields() != fields) {
        desk.session.apply(
            std::make_unique<core::entity::SetEntityOwnFieldsCommand>(*entity, std::move(fields)));
    }
}

} // namespace

void addOwnField(shell::DeskContext desk, core::ContentId entityId, QWidget* parent)
{
    const auto& project = desk.session.project();
    const auto* const entity = project.findAs<Entity>(entityId);
    if (!entity)
        return;
    FieldDialogSetup setup;
    setup.title = translated(QT_TRANSLATE_NOOP("OwnFieldEdits", "New Property of “%1”"))
                      .arg(shell::objectTitle(*entity));
    setup.verb = translated(QT_TRANSLATE_NOOP("OwnFieldEdits", "Add Property"));
    setup.owner = FieldDialogSetup::Owner::Entity;
    setup.keyForLabel =
        [desk, entityId, inherited = core::entity::schemaOfCategory(project, entity->categoryId())](
            const QString& label) { return keyForNewField(label, ownFieldsOf(desk, entityId), inherited); };
    setup.check = [desk, entityId](const Field& field) {
        return judge(desk, entityId, field, ownFieldsOf(desk, entityId));
    };
    if (const auto field = askForField(desk, std::move(setup), parent)) {
        FieldList fields = ownFieldsOf(desk, entityId);
        fields.push_back(*field);
        setOwnFields(desk, entityId, std::move(fields));
    }
}

void editOwnField(shell::DeskContext desk, core::ContentId entityId, QString key, QWidget* parent)
{
    const FieldList present = ownFieldsOf(desk, entityId);
    const auto edited = std::ranges::find(present, key, &Field::key);
    if (edited == present.end())
        return;
    FieldDialogSetup setup;
    setup.title = translated(QT_TRANSLATE_NOOP("OwnFieldEdits", "Property “%1”")).arg(edited->displayName());
    setup.verb = translated(QT_TRANSLATE_NOOP("OwnFieldEdits", "Change Property"));
    setup.owner = FieldDialogSetup::Owner::Entity;
    setup.field = *edited;
    setup.keyForLabel = [](const QString& label) { return keyFromLabel(label); };
    setup.check = [desk, entityId, key](const Field& field) {
        return judge(desk, entityId, field, withoutKey(ownFieldsOf(desk, entityId), key));
    };
    if (const auto field = askForField(desk, std::move(setup), parent)) {
        FieldList fields = ownFieldsOf(desk, entityId);
        std::ranges::replace_if(
            fields, [&key](const Field& other) { return other.key == key; }, *field);
        setOwnFields(desk, entityId, std::move(fields));
    }
}

void removeOwnField(shell::DeskContext desk, core::ContentId entityId, QString key)
{
    setOwnFields(desk, entityId, withoutKey(ownFieldsOf(desk, entityId), key));
    desk.navigator.say(translated(QT_TRANSLATE_NOOP(
        "OwnFieldEdits",
        "Values already entered are kept — but nothing will show them. Undo puts the property back with its "
        "data.")));
}

} // namespace tw::desktop::codex
