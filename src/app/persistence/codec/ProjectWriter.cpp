#include "app/persistence/codec/ProjectWriter.h"

#include "app/persistence/codec/CategoryCodec.h"
#include "app/persistence/codec/ObjectCodec.h"
#include "app/persistence/codec/ProjectCodec.h"
#include "app/persistence/files/ParallelFor.h"
#include "app/persistence/files/ProjectFiles.h"
#include "core/project/Project.h"

#include <vector>

namespace tw::app::persistence {

using core::content::ContentObject;
using core::project::Project;

namespace {

constexpr qsizetype objectsTogether = 64;

std::vector<const ContentObject*> objectsInOrder(const Project& project)
{
    std::vector<const ContentObject*> objects;
    objects.reserve(project.objects().size());
    for (const auto& entry : project.objects())
        objects.push_back(entry.second.get());
    return objects;
}

} // namespace

ProjectFileMap serializeProject(const Project& project)
{
    const std::vector<const ContentObject*> objects = objectsInOrder(project);
    std::vector<QByteArray> contents(objects.size());
    parallelFor(std::ssize(objects), objectsTogether, [&](qsizetype begin, qsizetype end) {
        QByteArray scratch;
        for (auto index = static_cast<std::size_t>(begin); index < static_cast<std::size_t>(end); ++index) {
            scratch.resize(0);
            appendObject(scratch, *objects[index]);
            contents[index] = QByteArray(scratch.constData(), scratch.size());
        }
    });

    ProjectFileMap files;
    for (std::size_t index = 0; index < objects.size(); ++index)
        files.emplace_hint(files.end(), objectPath(objects[index]->id()), std::move(contents[index]));
    for (const auto& [id, category] : project.taxonomy().categories())
        appendCategory(files[categoryPath(id)], category);
    appendProjectDocument(files[projectFileName.toString()], project);
    return files;
}

} // namespace tw::app::persistence
