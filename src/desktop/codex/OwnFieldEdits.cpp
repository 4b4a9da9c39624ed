#include "desktop/codex/OwnFieldEdits.h"

#include "core/entity/EntityCommands.h"
#include "core/entity/Schema.h"
#include "desktop/codex/CategoryProperties.h"
#include "desktop/codex/FieldDialog.h"
#include "desktop/shell/Navigator.h"
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

FieldVerdict judge(
    const core::project::Project& project, const Entity& entity, const Field& field, const FieldList& others)
{
    FieldVerdict verdict{
        core::entity::checkOwnField(project, entity, field).message(),
        core::entity::ownFieldNotice(project, entity, field)};
    if (verdict.refusal.isEmpty())
        verdict.refusal = checkFieldBeside(field, others).message();
    return verdict;
}

void setOwnFields(const shell::DeskContext& desk, const core::ContentId& entityId, FieldList fields)
{
    if (auto* const entity = desk.session.projectForCommands().findAsForEdit<Entity>(entityId)) {
        desk.session.apply(
            std::make_unique<core::entity::SetEntityOwnFieldsCommand>(*entity, std::move(fields)));
    }
}

} // namespace

void addOwnField(const shell::DeskContext& desk, const core::ContentId& entityId, QWidget* parent)
{
    const auto& project = desk.session.project();
    const auto* const entity = project.findAs<Entity>(entityId);
    if (!entity)
        return;
    const auto inherited = core::entity::schemaOfCategory(project, entity->categoryId());
    FieldDialogSetup setup;
    setup.title = translated(QT_TRANSLATE_NOOP("OwnFieldEdits", "New Property of “%1”")).arg(entity->name());
    setup.verb = translated(QT_TRANSLATE_NOOP("OwnFieldEdits", "Add Property"));
    setup.owner = FieldDialogSetup::Owner::Entity;
    setup.keyForLabel = [entity, &inherited](const QString& label) {
        return keyForNewField(label, entity->ownFields(), inherited);
    };
    setup.check = [&project, entity](const Field& field) {
        return judge(project, *entity, field, entity->ownFields());
    };
    if (const auto field = askForField(desk, std::move(setup), parent)) {
        FieldList fields = entity->ownFields();
        fields.push_back(*field);
        setOwnFields(desk, entityId, std::move(fields));
    }
}

void editOwnField(
    const shell::DeskContext& desk, const core::ContentId& entityId, const QString& key, QWidget* parent)
{
    const auto& project = desk.session.project();
    const auto* const entity = project.findAs<Entity>(entityId);
    if (!entity)
        return;
    FieldList fields = entity->ownFields();
    const auto edited = std::ranges::find(fields, key, &Field::key);
    if (edited == fields.end())
        return;
    FieldDialogSetup setup;
    setup.title = translated(QT_TRANSLATE_NOOP("OwnFieldEdits", "Property “%1”")).arg(edited->displayName());
    setup.verb = translated(QT_TRANSLATE_NOOP("OwnFieldEdits", "Change Property"));
    setup.owner = FieldDialogSetup::Owner::Entity;
    setup.field = *edited;
    setup.keyForLabel = [](const QString& label) { return keyFromLabel(label); };
    setup.check = [&project, entity, &key](const Field& field) {
        return judge(project, *entity, field, withoutKey(entity->ownFields(), key));
    };
    const auto field = askForField(desk, std::move(setup), parent);
    if (field && *field != *edited) {
        *edited = *field;
        setOwnFields(desk, entityId, std::move(fields));
    }
}

void removeOwnField(const shell::DeskContext& desk, const core::ContentId& entityId, const QString& key)
{
    const auto* const entity = desk.session.project().findAs<Entity>(entityId);
    if (!entity)
        return;
    setOwnFields(desk, entityId, withoutKey(entity->ownFields(), key));
    desk.navigator.say(translated(QT_TRANSLATE_NOOP(
        "OwnFieldEdits",
        "Values already entered are kept — but nothing will show them. Undo puts the property back with its "
        "data.")));
}

} // namespace tw::desktop::codex
