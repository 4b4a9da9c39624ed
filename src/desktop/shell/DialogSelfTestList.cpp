#include "desktop/calendar/CalendarDialog.h"
#include "desktop/codex/CategoryPropertiesDialog.h"
#include "desktop/codex/FieldDialog.h"
#include "desktop/codex/PropertyCleanUpDialog.h"
#include "desktop/codex/TimedValueDialog.h"
#include "desktop/continuity/RulesDialog.h"
#include "desktop/finder/FinderPopup.h"
#include "desktop/goals/GoalsDialog.h"
#include "desktop/manuscript/NamedStylesDialog.h"
#include "desktop/project/ExportPackDialog.h"
#include "desktop/project/NewProjectDialog.h"
#include "desktop/project/ProjectSettingsDialog.h"
#include "desktop/project/RestoreDialog.h"
#include "desktop/proofreading/ProofreadingService.h"
#include "desktop/review/ResolveDialog.h"
#include "desktop/settings/SettingsDialog.h"
#include "desktop/settings/Shortcuts.h"
#include "desktop/shell/AboutDialog.h"
#include "desktop/shell/DialogSelfTest.h"

#include <QMenu>
#include <QMenuBar>

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

std::unique_ptr<QDialog> makeNewProjectDialog(const DeskContext& desk)
{
    return std::make_unique<project::NewProjectDialog>(
        desk, project::NewProject{{u"Selftest"_s, QDir::tempPath()}}, nullptr);
}

std::unique_ptr<QDialog> makeRestoreDialog(const DeskContext& desk)
{
    project::RestoreSubject subject;
    for (const QString& name : {u"Selftest 1"_s, u"Selftest 2"_s})
        subject.backups.push_back(
            {QDir::tempPath() + u'/' + name, {name, QDate(2000, 1, 1), QTime(12, 0)}, 1});
    subject.projectName = u"Selftest 1"_s;
    subject.place = {u"Selftest"_s, QDir::tempPath()};
    return std::make_unique<project::RestoreDialog>(desk, std::move(subject), nullptr);
}

std::unique_ptr<QDialog> makeProjectSettingsDialog(const DeskContext& desk)
{
    return std::make_unique<project::ProjectSettingsDialog>(
        desk,
        project::ProjectSettings{
            u"Selftest"_s,
            {{u"Selftest Audience"_s, u"Selftest Audience"_s, true}},
            {{u"Selftest.vellory"_s}}},
        nullptr);
}

/** Settings that nobody touched come out as they went in. */
QStringList checkProjectSettingsDialog(const DeskContext& desk)
{
    const project::ProjectSettings settings{
        u"Selftest"_s, {{u"a"_s, u"b"_s, true}, {{}, u"c"_s}}, {{u"d"_s, true}}};
    const project::ProjectSettingsDialog dialog(desk, settings, nullptr);
    return dialog.settings() == settings ? QStringList() : QStringList{u"changes settings by itself"_s};
}

continuity::RuleList throwAwayRules()
{
    const core::ContentId entity = core::ContentId::create();
    return {
        {u"Selftest 1"_s, entity, u"selftest1"_s, u"oneOf"_s, u"a|b"_s, 0},
        {u"Selftest 2"_s, entity, u"selftest2"_s, u"unknown"_s, u"c"_s, {}}};
}

std::unique_ptr<QDialog> makeRulesDialog(const DeskContext& desk)
{
    return std::make_unique<continuity::RulesDialog>(desk, throwAwayRules(), nullptr);
}

/** Rules that nobody touched come out as they went in, also those that mean nothing. */
QStringList checkRulesDialog(const DeskContext& desk)
{
    const continuity::RuleList rules = throwAwayRules();
    const continuity::RulesDialog dialog(desk, rules, nullptr);
    return dialog.rules() == rules ? QStringList() : QStringList{u"changes rules by itself"_s};
}

codex::PropertyCleanUp throwAwayCleanUp()
{
    codex::PropertyCleanUp plan;
    for (const Field& field : throwAwayFields())
        plan.moves.push_back({core::CategoryId::create(), core::ContentId::create(), field});
    plan.twins.push_back({u"Selftest Category"_s, core::CategoryId::create(), 2, {}, 1});
    plan.heldBack = 1;
    return plan;
}

std::unique_ptr<QDialog> makeCleanUpDialog(const DeskContext& desk)
{
    return std::make_unique<codex::PropertyCleanUpDialog>(desk, throwAwayCleanUp(), nullptr);
}

/** Everything is to be done unless the user says otherwise. */
QStringList checkCleanUpDialog(const DeskContext& desk)
{
    const codex::PropertyCleanUp plan = throwAwayCleanUp();
    const codex::PropertyCleanUp chosen = codex::PropertyCleanUpDialog(desk, plan, nullptr).chosen();
    return chosen.moves == plan.moves && chosen.twins.size() == plan.twins.size()
               ? QStringList()
               : QStringList{u"leaves something out by itself"_s};
}

calendar::Timekeeping throwAwayTimekeeping()
{
    core::calendar::Calendar calendar;
    calendar.setEras({{u"Selftest Era 1"_s, -300, true}, {u"Selftest Era 2"_s, 1, false}});
    return {calendar, {{u"Selftest 1"_s, calendar, 1234}, {{}, calendar, -1234}}};
}

std::unique_ptr<QDialog> makeCalendarDialog(const DeskContext& desk)
{
    return std::make_unique<calendar::CalendarDialog>(desk, throwAwayTimekeeping(), nullptr);
}

/** A calendar that nobody touched comes out as it went in. */
QStringList checkCalendarDialog(const DeskContext& desk)
{
    const calendar::Timekeeping start = throwAwayTimekeeping();
    const calendar::CalendarDialog dialog(desk, start, nullptr);
    return dialog.timekeeping() == start ? QStringList() : QStringList{u"changes the calendar by itself"_s};
}

std::unique_ptr<QDialog> makeResolveDialog(const DeskContext& desk)
{
    using app::persistence::ProjectMerge;
    // The dialog refers to it until its end.
    static const ProjectMerge merge({{}, {{u"project.json"_s, "{}"}}, {{u"project.json"_s, "{ }"}}});
    return std::make_unique<review::ResolveDialog>(desk, merge, nullptr);
}

std::unique_ptr<QDialog> makeExportPackDialog(const DeskContext& desk)
{
    return std::make_unique<project::ExportPackDialog>(
        desk, project::PackExport{{u"Selftest"_s, {}, {}, u"1.0"_s}, {}}, nullptr);
}

std::unique_ptr<QDialog> makeGoalsDialog(const DeskContext& desk)
{
    const QDate today(2000, 1, 10);
    return std::make_unique<goals::GoalsDialog>(
        desk,
        goals::GoalsState{
            {500, 80'000, u"2000-06-30"_s},
            {{u"2000-01-08"_s, 700}, {u"2000-01-09"_s, 300}},
            12'345,
            400,
            today},
        nullptr);
}

std::unique_ptr<QDialog> makeNamedStylesDialog(const DeskContext& desk)
{
    return std::make_unique<manuscript::NamedStylesDialog>(
        manuscript::namedStylesFrom(desk.settings), QStringList{u"Selftest"_s}, u"Verse"_s, nullptr);
}

/** With an action of its own, since those of the window are none of the dialog's business. */
std::unique_ptr<QDialog> makeSettingsDialog(const DeskContext& desk)
{
    auto shortcuts = std::make_unique<settings::Shortcuts>(desk.settings, nullptr);
    QMenuBar menus;
    QAction* const action = menus.addMenu(u"Selftest"_s)->addAction(u"Selftest Command"_s);
    action->setObjectName(u"selftest.command"_s);
    shortcuts->collect(menus);
    auto proofreading = std::make_unique<proofreading::ProofreadingService>(
        desk, proofreading::SpellingPlaces{QDir::tempPath() + u"/selftest-words.txt"_s, {}}, nullptr);
    auto dialog = std::make_unique<settings::SettingsDialog>(desk, *shortcuts, *proofreading, nullptr);
    shortcuts.release()->setParent(dialog.get());
    proofreading.release()->setParent(dialog.get());
    return dialog;
}

/** Offers a row of each sort whatever is typed. */
class ThrowAwayFinder final : public finder::FinderSource
{
public:
    [[nodiscard]] QString title() const override { return u"Selftest"_s; }
    [[nodiscard]] QString hint() const override { return u"Selftest"_s; }
    [[nodiscard]] QString emptyText(const QString&) const override { return u"Selftest"_s; }
    [[nodiscard]] std::vector<finder::FinderRow> rowsFor(const QString&) override
    {
        return {
            {{}, u"Selftest 1"_s, u"Selftest Place"_s, u"Ctrl+1"_s}, {{}, u"Selftest 2"_s, {}, {}, false}};
    }
    void choose(std::size_t, finder::FinderTarget) override {}
};

std::unique_ptr<QWidget> makeFinderPopup(const DeskContext& desk)
{
    // The popup refers to it until its end.
    static ThrowAwayFinder source;
    auto popup = std::make_unique<finder::FinderPopup>(desk.themes, nullptr);
    popup->fill(source);
    return popup;
}

std::unique_ptr<QDialog> makeAboutDialog(const DeskContext& /*desk*/)
{
    return std::make_unique<AboutDialog>(nullptr);
}

} // namespace

std::vector<SelfTestDialog> selfTestDialogs()
{
    return {
        {u"property"_s, makeFixedPropertyDialog, checkPropertyDialog},
        {u"category properties"_s, makeCategoryDialog, {}},
        {u"value over time"_s, makeTimedValueDialog, {}},
        {u"new project"_s, makeNewProjectDialog, {}},
        {u"restore from a backup"_s, makeRestoreDialog, {}},
        {u"project settings"_s, makeProjectSettingsDialog, checkProjectSettingsDialog},
        {u"writing goals"_s, makeGoalsDialog, {}},
        {u"paragraph styles"_s, makeNamedStylesDialog, {}},
        {u"edit calendar"_s, makeCalendarDialog, checkCalendarDialog},
        {u"property clean-up"_s, makeCleanUpDialog, checkCleanUpDialog},
        {u"resolve external changes"_s, makeResolveDialog, {}},
        {u"continuity rules"_s, makeRulesDialog, checkRulesDialog},
        {u"export content pack"_s, makeExportPackDialog, {}},
        {u"settings"_s, makeSettingsDialog, {}},
        {u"finder"_s, makeFinderPopup, {}},
        {u"about"_s, makeAboutDialog, {}},
    };
}

} // namespace tw::desktop::shell
