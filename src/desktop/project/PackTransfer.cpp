#include "desktop/project/PackTransfer.h"

#include "app/persistence/bundle/WorkingCopy.h"
#include "desktop/project/ExportPackDialog.h"
#include "desktop/project/NewPlace.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/shell/Questions.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

namespace tw::desktop::project {

using namespace Qt::Literals::StringLiterals;
using app::persistence::ContentPack;
using core::taxonomy::Category;

namespace {

struct PackTransfer
{
    Q_DECLARE_TR_FUNCTIONS(PackTransfer)
};

QString listed(const std::vector<Category>& categories)
{
    QStringList names;
    for (const Category& category : categories)
        names.append(shell::shownName(category.name));
    names.sort(Qt::CaseInsensitive);
    return names.join(PackTransfer::tr(", "));
}

/** False when the user does not want what is there to be replaced. */
bool settleEarlierPack(const QString& folder, QWidget* parent)
{
    if (!QFileInfo::exists(folder + u"/pack.json"_s))
        return true;
    return shell::ask(
               parent, {PackTransfer::tr("Export Content Pack"),
                        PackTransfer::tr("There is already a content pack at %1.")
                            .arg(QDir::toNativeSeparators(folder)),
                        {{PackTransfer::tr("Replace the Pack"), QMessageBox::DestructiveRole}}})
        .has_value();
}

} // namespace

QString describeImport(const core::project::Project& project, const ContentPack& pack)
{
    const std::vector<Category> added = app::persistence::missingCategories(project, pack);
    std::vector<Category> skipped;
    for (const Category& category : pack.categories) {
        if (project.taxonomy().category(category.id))
            skipped.push_back(category);
    }
    QStringList lines;
    if (!added.empty()) {
        lines.append(PackTransfer::tr("Added %n categories: %1", nullptr, static_cast<int>(added.size()))
                         .arg(listed(added)));
    }
    if (!skipped.empty()) {
        lines.append(
            PackTransfer::tr(
                "Left out %n categories that are here already: %1", nullptr, static_cast<int>(skipped.size()))
                .arg(listed(skipped)));
    }
    return lines.isEmpty() ? PackTransfer::tr("The pack holds no categories.") : lines.join(u"\n\n"_s);
}

void importContentPack(const shell::DeskContext& desk, QWidget* parent)
{
    const QString folder = QFileDialog::getExistingDirectory(
        parent, PackTransfer::tr("Import Content Pack"), usualFolder(desk.settings));
    if (!folder.isEmpty())
        importContentPackFrom(desk, folder, parent);
}

void importContentPackFrom(const shell::DeskContext& desk, const QString& folder, QWidget* parent)
{
    const QString title = PackTransfer::tr("Import Content Pack");
    const auto pack = app::persistence::readPack(desk.session.workspace().environment().fileSystem, folder);
    if (!pack)
        return shell::tell(parent, title, pack.message());
    const QString outcome = describeImport(desk.session.project(), pack.value());
    desk.session.apply(app::persistence::importPack(desk.session.projectForCommands(), pack.value()));
    shell::inform(parent, title, outcome);
}

void exportContentPack(const shell::DeskContext& desk, QWidget* parent)
{
    const QString title = PackTransfer::tr("Export Content Pack");
    PackExport start;
    start.info.name = desk.session.workspace().displayName();
    start.info.version = u"1.0"_s;
    ExportPackDialog dialog(desk, start, parent);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const PackExport chosen = dialog.pack();
    const QString place = QFileDialog::getExistingDirectory(
        parent, PackTransfer::tr("Where the Pack's Folder Goes"), usualFolder(desk.settings));
    if (place.isEmpty())
        return;
    const QString folder = place + u'/' + app::persistence::safeFileName(chosen.info.name);
    if (!settleEarlierPack(folder, parent))
        return;
    const auto written = app::persistence::exportPack(
        desk.session.workspace().environment(), desk.session.project(), chosen.selected, chosen.info, folder);
    if (!written)
        return shell::tell(parent, title, written.message());
    emit desk.navigator.said(
        PackTransfer::tr("Exported the content pack to %1").arg(QDir::toNativeSeparators(folder)));
}

} // namespace tw::desktop::project
