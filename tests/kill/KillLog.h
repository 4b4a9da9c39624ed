// What a program that is going to be killed says about its work, and what has to be true afterwards.
#pragma once

#include "kill/Recovery.h"

#include <QFile>
#include <QHash>
#include <QSet>

namespace tw::test {

/**
 * Written by the child, a line each and at once:
 *
 *   file PATH HASH   from here on, the file may be found like this
 *   open PATH HASH   like this it was found when the project was opened after the last death
 *   kept             the latest of all that was said before must never be lost
 *   fault TEXT       something that must not happen happened
 */
class KillLog
{
public:
    explicit KillLog(const QString& path);

    /** Tells only what is not the same as it was last told. */
    void mayBe(const FileHashes& files);
    void wasFound(const FileHashes& files);
    void isKept() { write("kept", {}, {}); }
    void fault(const QString& text) { write("fault", text, {}); }

private:
    void write(const char* verb, const QString& what, const QByteArray& hash);

    QFile m_file;
    FileHashes m_told;
};

/** Reads a log and holds what was found against it. */
class KillLedger
{
public:
    /** Takes in what the log says beyond what was read before; what is wrong with that is told. */
    [[nodiscard]] QStringList read(const QString& logPath);

    /** Whether anything was reported kept, so that there must be a project. */
    [[nodiscard]] bool hasKept() const { return !m_versions.isEmpty() && m_hasKept; }
    /** Compares a project just opened; from here on it has to stay like this. */
    [[nodiscard]] QStringList settle(const FileHashes& found);

private:
    [[nodiscard]] QStringList compare(const FileHashes& found) const;
    void keepLatest();

    QHash<QString, QList<QByteArray>> m_versions;
    bool m_hasKept = false;
    qint64 m_readSize = 0;
};

} // namespace tw::test
