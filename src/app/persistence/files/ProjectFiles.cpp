#include "app/persistence/files/ProjectFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringBuilder>

#include <algorithm>
#include <iterator>

using namespace Qt::Literals::StringLiterals;

namespace tw::app::persistence {

namespace {

core::Failure failure(const char* message, const QString& detail)
{
    return {QCoreApplication::translate("Persistence", message).arg(detail)};
}

QString pathOf(QStringView folder, const core::foundation::IdText& id)
{
    return folder % u'/' % QLatin1StringView(id.data(), std::ssize(id)) % u".json"_s;
}

/** A link that leads nowhere takes up its name as well. */
bool isTaken(const QFileInfo& file)
{
    return file.exists() || file.isSymLink();
}

/** A name that a project in one file can keep as well: not hidden, no path, nothing that cannot be seen. */
QString keepableName(QString name)
{
    const auto isUnsafe = [](QChar character) {
        return character == u'\\' || character.category() == QChar::Other_Control;
    };
    std::ranges::replace_if(name, isUnsafe, u'-');
    while (name.startsWith(u'.'))
        name.remove(0, 1);
    return name.isEmpty() ? u"asset"_s : name;
}

QString freeNameIn(const QDir& folder, const QString& wanted)
{
    const QFileInfo parts(wanted);
    QString name = wanted;
    for (int counter = 1; isTaken(QFileInfo(folder, name)); ++counter) {
        name = parts.completeBaseName() + u'-' + QString::number(counter);
        if (!parts.suffix().isEmpty())
            name += u'.' + parts.suffix();
    }
    return name;
}

} // namespace

bool isProjectFile(QStringView relativePath)
{
    if (relativePath == projectFileName)
        return true;
    const bool isInFolder = relativePath.startsWith(u"objects/") || relativePath.startsWith(u"taxonomy/");
    return isInFolder && relativePath.endsWith(u".json", Qt::CaseInsensitive);
}

QString objectPath(const core::ContentId& id)
{
    return pathOf(objectsFolder, id.text());
}

QString categoryPath(const core::CategoryId& id)
{
    return pathOf(taxonomyFolder, id.text());
}

bool isJsonFileIn(QStringView folder, QStringView relativePath)
{
    if (!relativePath.startsWith(folder) || !relativePath.endsWith(u".json", Qt::CaseInsensitive))
        return false;
    const QStringView name = relativePath.sliced(folder.size());
    return name.startsWith(u'/') && name.lastIndexOf(u'/') == 0 && !name.startsWith(u"/.");
}

core::Result<QString> importAsset(const QString& projectFolder, const QString& sourceFile)
{
    if (projectFolder.isEmpty())
        return core::Failure{
            QCoreApplication::translate("Persistence", "No project directory to import into")};
    const QFileInfo source(sourceFile);
    if (!source.isFile())
        return failure(QT_TRANSLATE_NOOP("Persistence", "Source file does not exist: %1"), sourceFile);
    const QDir assets(QDir(projectFolder).filePath(assetsFolder.toString()));
    if (!assets.mkpath(u"."_s))
        return failure(QT_TRANSLATE_NOOP("Persistence", "Cannot create assets folder in: %1"), projectFolder);
    const QString name = freeNameIn(assets, keepableName(source.fileName()));
    if (!QFile::copy(sourceFile, assets.filePath(name)))
        return failure(QT_TRANSLATE_NOOP("Persistence", "Cannot copy file into assets: %1"), sourceFile);
    return assetsFolder.toString() + u'/' + name;
}

} // namespace tw::app::persistence
