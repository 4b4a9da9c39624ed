// The work of a writer, until the program is killed.
#pragma once

#include "kill/KillLog.h"
#include "kill/MortalFileSystem.h"
#include "kill/Recovery.h"
#include "support/RandomCommands.h"

#include "app/persistence/codec/ProjectWriter.h"

#include <random>

namespace tw::test {

/** Where one of them works. */
struct KillPlace
{
    QString project; ///< A folder, or a path that ends as single files do.
    QString dataFolder;
    QString log;
};

/** Opens or makes the project, then works on it for ever: everything that touches a file, in any order. */
class KilledProgram
{
public:
    KilledProgram(const KillPlace& place, const MortalFileSystem::Plan& plan);

    /** Comes back when something went wrong; the log says what. */
    void run();

private:
    [[nodiscard]] bool exists() const;
    void make();
    void open();
    void close();

    void edit();
    void save();
    void backUp();
    void followOthers();
    void reopen();
    void loseWorkingCopy();

    /** Tells the log and the journal how the project's files are now. */
    void noteEdits();
    void flushJournal();
    /** As a co-author would: gives a file that is not edited here another content, in one step. */
    [[nodiscard]] bool writeAsOthers();
    void writeOutside(const QString& path, const QByteArray& bytes);
    void require(const core::Result<void>& result, const char* what);
    [[nodiscard]] int number(int least, int most);

    const KillPlace m_place;
    MortalFileSystem m_files;
    app::persistence::StorageEnvironment m_environment;
    KillLog m_log;
    std::mt19937 m_random;
    OpenedProject m_open;
    std::unique_ptr<RandomCommands> m_commands;
    /** As last told to log and journal. */
    app::persistence::ProjectFileMap m_noted;
    bool m_isFaulty = false;
};

} // namespace tw::test
