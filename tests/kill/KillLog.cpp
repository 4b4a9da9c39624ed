#include "kill/KillLog.h"

#include <cstdlib>

namespace tw::test {

using namespace Qt::Literals::StringLiterals;

KillLog::KillLog(const QString& path)
    : m_file(path)
{
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered))
        std::abort();
}

void KillLog::mayBe(const FileHashes& files)
{
    for (const auto& [path, hash] : m_told) {
        if (!files.contains(path))
            write("file", path, goneHash);
    }
    for (const auto& [path, hash] : files) {
        const auto told = m_told.find(path);
        if (told == m_told.end() || told->second != hash)
            write("file", path, hash);
    }
    m_told = files;
}

void KillLog::wasFound(const FileHashes& files)
{
    m_told = files;
    for (const auto& [path, hash] : files)
        write("open", path, hash);
}

void KillLog::write(const char* verb, const QString& what, const QByteArray& hash)
{
    // One call, so that the system has the line whole or not at all.
    m_file.write(verb + QByteArray(" ") + what.toUtf8().replace('\n', ' ') + ' ' + hash + '\n');
}

QStringList KillLedger::read(const QString& logPath)
{
    QFile file(logPath);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    file.seek(m_readSize);
    QStringList faults;
    FileHashes found;
    while (!file.atEnd()) {
        const QByteArray line = file.readLine();
        if (!line.endsWith('\n'))
            break;
        m_readSize += line.size();
        const QList<QByteArray> words = line.trimmed().split(' ');
        const QString path = QString::fromUtf8(words.value(1));
        if (words.first() == "file") {
            // A file that is told of for the first time may still not be there.
            if (!m_versions.contains(path))
                m_versions[path].append(goneHash);
            m_versions[path].append(words.value(2));
        } else if (words.first() == "open") {
            found.emplace(path, words.value(2));
        } else if (words.first() == "fault") {
            faults.append(QString::fromUtf8(line).trimmed());
        } else if (!found.empty()) {
            faults += settle(std::exchange(found, {}));
        } else {
            keepLatest();
        }
    }
    return faults;
}

QStringList KillLedger::settle(const FileHashes& found)
{
    const QStringList faults = compare(found);
    m_versions.clear();
    for (const auto& [path, hash] : found)
        m_versions.insert(path, {hash});
    m_hasKept = true;
    return faults;
}

QStringList KillLedger::compare(const FileHashes& found) const
{
    QStringList faults;
    for (const auto& [path, versions] : m_versions.asKeyValueRange()) {
        const auto file = found.find(path);
        const QByteArray hash = file == found.end() ? QByteArray(goneHash) : file->second;
        if (!versions.contains(hash))
            faults.append(u"%1 is %2, but was reported as %3"_s.arg(
                path, QString::fromLatin1(hash), QString::fromLatin1(versions.join(" or "))));
    }
    for (const auto& [path, hash] : found) {
        if (!m_versions.contains(path))
            faults.append(u"%1 came from nowhere"_s.arg(path));
    }
    return faults;
}

void KillLedger::keepLatest()
{
    for (auto versions = m_versions.begin(); versions != m_versions.end();) {
        *versions = {versions->last()};
        if (versions->first() == goneHash)
            versions = m_versions.erase(versions);
        else
            ++versions;
    }
    m_hasKept = true;
}

} // namespace tw::test
