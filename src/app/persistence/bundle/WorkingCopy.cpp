#include "app/persistence/bundle/WorkingCopy.h"

#include "app/persistence/files/JsonFile.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>

namespace tw::app::persistence {

using core::Failure;
using core::Result;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype hashDigitsInName = 12;

constexpr auto pathKey = "bundlePath"_L1;
constexpr auto hashKey = "bundleSha256"_L1;

bool isSafeInName(QChar character)
{
    return character.isPrint() && !QStringView(u"<>:\"/\\|?*").contains(character);
}

/** Names that some systems keep for devices, whatever suffix follows. */
bool isDeviceName(const QString& name)
{
    static const QStringList devices{u"CON"_s, u"PRN"_s, u"AUX"_s, u"NUL"_s};
    const QString stem = name.section(u'.', 0, 0).trimmed().toUpper();
    const bool isPort = stem.size() == 4 && (stem.startsWith(u"COM") || stem.startsWith(u"LPT")) &&
                        stem.back() >= u'1' && stem.back() <= u'9';
    return isPort || devices.contains(stem);
}

} // namespace

QString safeFileName(const QString& name, qsizetype longest)
{
    QString safe;
    for (const QChar character : name.left(longest))
        safe.append(isSafeInName(character) || character.isSurrogate() ? character : QChar(u'-'));
    if (!safe.isEmpty() && safe.back().isHighSurrogate())
        safe.chop(1);
    // A leading dot hides a file, trailing dots and blanks get lost on some systems.
    while (safe.startsWith(u'.') || safe.startsWith(u' '))
        safe.remove(0, 1);
    while (safe.endsWith(u'.') || safe.endsWith(u' '))
        safe.chop(1);
    if (safe.isEmpty())
        return u"project"_s;
    return isDeviceName(safe) ? u'_' + safe : safe;
}

QString WorkingCopy::freshFolder() const
{
    return folder + u".new"_s;
}

QString WorkingCopy::staleFolder() const
{
    return folder + u".old"_s;
}

WorkingCopy workingCopyOf(const QString& bundlePath, const QString& dataFolder)
{
    const QString path = QDir::cleanPath(QFileInfo(bundlePath).absoluteFilePath());
    const QByteArray digits = QCryptographicHash::hash(path.toUtf8(), QCryptographicHash::Sha256).toHex();
    const QString folder = dataFolder + u"/working-copies/"_s +
                           safeFileName(QFileInfo(path).completeBaseName()) + u'-' +
                           QString::fromLatin1(digits.first(hashDigitsInName));
    return {path, folder, folder + u".json"_s};
}

QByteArray recordedHash(FileSystem& fileSystem, const WorkingCopy& copy)
{
    const Result<QJsonObject> record = readJsonFile(fileSystem, copy.recordPath);
    if (!record || record.value().value(pathKey).toString() != copy.bundlePath)
        return {};
    return record.value().value(hashKey).toString().toLatin1();
}

Result<void> recordHash(
    const StorageEnvironment& environment, const WorkingCopy& copy, const QByteArray& hash)
{
    const QJsonObject record{{pathKey, copy.bundlePath}, {hashKey, QString::fromLatin1(hash)}};
    SafeWriter writer(environment.fileSystem, environment.retryPolicy, environment.sleeper);
    if (!environment.fileSystem.makeFolders(QFileInfo(copy.recordPath).path()))
        return writeFailure(copy.recordPath);
    if (auto written = writeJsonFile(environment.fileSystem, writer, copy.recordPath, record); !written)
        return written;
    return writer.syncFolders();
}

Result<void> forgetRecord(FileSystem& fileSystem, const WorkingCopy& copy)
{
    if (fileSystem.remove(copy.recordPath) && fileSystem.syncFolder(QFileInfo(copy.recordPath).path()))
        return {};
    return writeFailure(copy.recordPath);
}

Result<void> unpackFreshCopy(
    const StorageEnvironment& environment, const WorkingCopy& copy, const QList<BundleFile>& files)
{
    discardFreshCopy(copy);
    auto unpacked = unpackBundle(environment, files, copy.freshFolder());
    if (!unpacked)
        discardFreshCopy(copy);
    return unpacked;
}

Result<void> retireCopy(const StorageEnvironment& environment, const WorkingCopy& copy)
{
    if (auto blanked = recordHash(environment, copy, {}); !blanked)
        return blanked;
    // In one step: a copy that is half deleted would look like unsaved work.
    if (QDir(copy.staleFolder()).removeRecursively() &&
        (!QFileInfo::exists(copy.folder) || QDir().rename(copy.folder, copy.staleFolder())))
        return {};
    return Failure{QCoreApplication::translate("Persistence", "Could not clear the stale working copy: %1")
                       .arg(QDir::toNativeSeparators(copy.folder))};
}

Result<void> installFreshCopy(const StorageEnvironment& environment, const WorkingCopy& copy)
{
    if (!QDir().rename(copy.freshFolder(), copy.folder)) {
        QDir().rename(copy.staleFolder(), copy.folder);
        return writeFailure(copy.folder);
    }
    if (!environment.fileSystem.syncFolder(QFileInfo(copy.folder).path()))
        return writeFailure(copy.folder);
    // What cannot be deleted now goes before the next copy is retired.
    QDir(copy.staleFolder()).removeRecursively();
    return {};
}

void discardFreshCopy(const WorkingCopy& copy)
{
    QDir(copy.freshFolder()).removeRecursively();
}

} // namespace tw::app::persistence
