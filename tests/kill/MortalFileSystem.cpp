#include "kill/MortalFileSystem.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QThread>

#include <csignal>

#include <unistd.h>

namespace tw::test {

using app::persistence::Durability;
using app::persistence::FileContent;
using app::persistence::FileStamp;

MortalFileSystem::MortalFileSystem(const Plan& plan)
    : m_plan(plan)
    , m_random(plan.seed)
{}

QString MortalFileSystem::unsyncedFile()
{
    const QMutexLocker lock(&m_mutex);
    return m_unsyncedFile;
}

std::optional<FileContent> MortalFileSystem::readFile(const QString& path)
{
    return m_disk.readFile(path);
}

std::optional<FileStamp> MortalFileSystem::stamp(const QString& path)
{
    return m_disk.stamp(path);
}

std::optional<QString> MortalFileSystem::writeTemporary(
    const QString& target, const QByteArray& bytes, Durability durability)
{
    const QMutexLocker lock(&m_mutex);
    const auto end = begin();
    if (end == Moment::Amid)
        static_cast<void>(m_disk.writeTemporary(target, bytes.first(bytes.size() / 2), durability));
    auto temporary = end ? std::nullopt : m_disk.writeTemporary(target, bytes, durability);
    if (end)
        die();
    if (temporary && durability == Durability::Cached)
        m_unsyncedFiles.insert(*temporary);
    return temporary;
}

bool MortalFileSystem::syncFile(const QString& path)
{
    const QMutexLocker lock(&m_mutex);
    const auto end = begin();
    const bool isDone = end != Moment::Before && m_disk.syncFile(path);
    if (isDone && !m_unsyncedFiles.remove(path))
        m_syncedSizes.insert(path, QFileInfo(path).size());
    if (end)
        die();
    return isDone;
}

bool MortalFileSystem::syncFileSystem(const QString& folder)
{
    const QMutexLocker lock(&m_mutex);
    const auto end = begin();
    const bool isDone = end != Moment::Before && m_disk.syncFileSystem(folder);
    if (isDone) {
        m_unsyncedFiles.clear();
        m_unsyncedNames.clear();
    }
    if (end)
        die();
    return isDone;
}

bool MortalFileSystem::replace(const QString& temporary, const QString& target)
{
    const QMutexLocker lock(&m_mutex);
    const auto end = begin();
    if (m_unsyncedFiles.contains(temporary) && m_unsyncedFile.isEmpty())
        m_unsyncedFile = target;
    if (end != Moment::Before)
        noteName(target);
    const bool isDone = end != Moment::Before && m_disk.replace(temporary, target);
    if (end)
        die();
    return isDone;
}

bool MortalFileSystem::remove(const QString& path)
{
    const QMutexLocker lock(&m_mutex);
    const auto end = begin();
    if (end != Moment::Before)
        noteName(path);
    const bool isDone = end != Moment::Before && m_disk.remove(path);
    if (end)
        die();
    m_syncedSizes.remove(path);
    return isDone;
}

bool MortalFileSystem::makeFolders(const QString& path)
{
    const QMutexLocker lock(&m_mutex);
    const auto end = begin();
    const bool isDone = end != Moment::Before && m_disk.makeFolders(path);
    if (end)
        die();
    return isDone;
}

bool MortalFileSystem::syncFolder(const QString& path)
{
    const QMutexLocker lock(&m_mutex);
    const auto end = begin();
    const bool isDone = end != Moment::Before && m_disk.syncFolder(path);
    if (isDone)
        std::erase_if(m_unsyncedNames, [&path](const UnsyncedName& name) {
            return QFileInfo(name.path).path() == path;
        });
    if (end)
        die();
    return isDone;
}

std::optional<MortalFileSystem::Moment> MortalFileSystem::begin()
{
    if (++m_operations != m_plan.lastOperation)
        return std::nullopt;
    return static_cast<Moment>(m_random() % 3);
}

void MortalFileSystem::noteName(const QString& path)
{
    if (m_plan.death != Death::OfThePower)
        return;
    QFile file(path);
    UnsyncedName name{path, {}};
    if (file.open(QIODevice::ReadOnly))
        name.earlier = file.readAll();
    m_unsyncedNames.push_back(std::move(name));
}

void MortalFileSystem::die()
{
    if (m_plan.death == Death::OfThePower) {
        loseUnsyncedNames();
        loseUnsyncedEnds();
    }
    // Other threads may go on for a moment, but they wait at the next operation.
    ::kill(::getpid(), SIGKILL);
    for (;;)
        ::pause();
}

void MortalFileSystem::loseUnsyncedNames()
{
    // Each folder keeps what came first in it, up to any point.
    QHash<QString, qsizetype> kept;
    for (const UnsyncedName& name : m_unsyncedNames)
        ++kept[QFileInfo(name.path).path()];
    for (qsizetype& count : kept)
        count = static_cast<qsizetype>(m_random() % static_cast<quint32>(count + 1));
    QHash<QString, qsizetype> seen;
    std::vector<const UnsyncedName*> lost;
    for (const UnsyncedName& name : m_unsyncedNames) {
        const QString folder = QFileInfo(name.path).path();
        if (++seen[folder] > kept.value(folder))
            lost.push_back(&name);
    }
    for (auto name = lost.rbegin(); name != lost.rend(); ++name) {
        QFile file((*name)->path);
        if (!(*name)->earlier)
            file.remove();
        else if (file.open(QIODevice::WriteOnly))
            file.write(*(*name)->earlier);
    }
}

void MortalFileSystem::loseUnsyncedEnds()
{
    for (const auto& [path, synced] : m_syncedSizes.asKeyValueRange()) {
        const qint64 unsynced = QFileInfo(path).size() - synced;
        if (unsynced > 0)
            QFile::resize(path, synced + static_cast<qint64>(m_random()) % (unsynced + 1));
    }
    for (const QString& path : std::as_const(m_unsyncedFiles)) {
        if (QFileInfo::exists(path))
            QFile::resize(path, QFileInfo(path).size() / 2);
    }
}

} // namespace tw::test
