#include "desktop/project/ProjectSettings.h"

#include "core/content/ContentCommands.h"
#include "core/project/ProjectCommands.h"
#include "desktop/shell/ProjectSession.h"

#include <QCoreApplication>
#include <QDir>

#include <map>
#include <set>

namespace tw::desktop::project {

using core::Failure;
using core::Result;
using core::content::NameSet;
using core::project::Project;
using namespace Qt::Literals::StringLiterals;

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("ProjectSettings", text);
}

/** The present name of every audience that there was; empty for those that are gone. */
using NewNames = std::map<QString, QString>;

NewNames newNames(const Project& project, const ProjectSettings& settings)
{
    NewNames names;
    for (const QString& audience : project.audiences())
        names.emplace(audience, QString());
    for (const AudienceRow& row : settings.audiences) {
        if (!row.original.isEmpty())
            names.insert_or_assign(row.original, row.name);
    }
    return names;
}

/** Names that the project does not define stay as they are. */
NameSet renamed(const NameSet& names, const NewNames& newNames)
{
    NameSet result;
    for (const QString& name : names) {
        const auto known = newNames.find(name);
        if (known == newNames.end())
            result.insert(name);
        else if (!known->second.isEmpty())
            result.insert(known->second);
    }
    return result;
}

NameSet defaultsOf(const Project& project, const ProjectSettings& settings)
{
    NameSet defaults;
    for (const QString& name : project.defaultAudiences()) {
        if (!project.audiences().contains(name))
            defaults.insert(name);
    }
    for (const AudienceRow& row : settings.audiences) {
        if (row.isDefault)
            defaults.insert(row.name);
    }
    return defaults;
}

void applyAudiences(shell::ProjectSession& session, const ProjectSettings& settings)
{
    Project& project = session.projectForCommands();
    const NewNames names = newNames(project, settings);
    const NameSet defaults = defaultsOf(project, settings);
    QStringList audiences;
    for (const AudienceRow& row : settings.audiences)
        audiences.append(row.name);
    for (const auto& [id, object] : project.objects()) {
        const NameSet visibleTo = renamed(object->visibleTo(), names);
        if (visibleTo != object->visibleTo())
            session.apply(std::make_unique<core::content::SetObjectVisibilityCommand>(*object, visibleTo));
    }
    if (audiences != project.audiences())
        session.apply(std::make_unique<core::content::SetAudiencesCommand>(project, audiences));
    if (defaults != project.defaultAudiences())
        session.apply(std::make_unique<core::content::SetDefaultAudiencesCommand>(project, defaults));
}

} // namespace

ProjectSettings settingsOf(const Project& project)
{
    ProjectSettings settings{project.name(), {}, project.libraryMounts()};
    for (const QString& name : project.audiences())
        settings.audiences.push_back({name, name, project.defaultAudiences().contains(name)});
    return settings;
}

Result<void> checkSettings(const ProjectSettings& settings)
{
    if (settings.name.trimmed().isEmpty())
        return Failure{translated(QT_TRANSLATE_NOOP("ProjectSettings", "Give the project a name."))};
    std::set<QString> names;
    for (const AudienceRow& row : settings.audiences) {
        if (row.name.trimmed().isEmpty()) {
            return Failure{translated(
                QT_TRANSLATE_NOOP("ProjectSettings", "Give every audience a name, or remove it."))};
        }
        if (!names.insert(row.name).second) {
            return Failure{
                translated(QT_TRANSLATE_NOOP(
                               "ProjectSettings", "Two audiences are called “%1”. Give one another name."))
                    .arg(row.name)};
        }
    }
    return {};
}

AudienceUse useOf(const Project& project, const QString& audience)
{
    AudienceUse use;
    for (const auto& [id, object] : project.objects()) {
        if (!object->visibleTo().contains(audience))
            continue;
        ++use.objects;
        if (object->visibleTo().size() == 1)
            ++use.alone;
    }
    return use;
}

void applySettings(shell::ProjectSession& session, const ProjectSettings& settings)
{
    Project& project = session.projectForCommands();
    if (settings == settingsOf(project))
        return;
    const auto step = session.macro(QCoreApplication::translate("UndoCommand", "Change project settings"));
    if (settings.name != project.name())
        session.apply(std::make_unique<core::project::SetProjectNameCommand>(project, settings.name));
    applyAudiences(session, settings);
    if (settings.libraries != project.libraryMounts()) {
        session.apply(std::make_unique<core::project::SetLibraryMountsCommand>(project, settings.libraries));
    }
}

QString mountPath(const QString& projectFolder, const QString& libraryPath)
{
    const QString path = QDir::cleanPath(libraryPath);
    const QString relative = QDir(projectFolder).relativeFilePath(path);
    const bool isFar =
        projectFolder.isEmpty() || QDir::isAbsolutePath(relative) || relative.startsWith(u"../../"_s);
    return isFar ? path : relative;
}

} // namespace tw::desktop::project
