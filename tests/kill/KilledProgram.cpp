#include "kill/KilledProgram.h"

#include "app/persistence/bundle/ProjectBundle.h"
#include "app/persistence/bundle/WorkingCopy.h"
#include "app/persistence/codec/ObjectCodec.h"
#include "app/persistence/files/ProjectFiles.h"
#include "app/workspace/ExternalReview.h"
#include "core/document/Document.h"

#include <QDir>
#include <QFileInfo>

namespace tw::test {

using namespace Qt::Literals::StringLiterals;
using app::persistence::FileVersion;
using app::persistence::JournalEdit;
using app::workspace::ExternalReview;
using app::workspace::ReviewVerdict;
using app::workspace::Workspace;
using core::Result;

namespace {

/** The file with another title in it; null when it holds no document. */
QByteArray retitled(const QByteArray& bytes, const QString& path, const QString& title)
{
    app::persistence::ParseScratch scratch;
    const auto object = app::persistence::parseObject(bytes, path, scratch);
    auto* const document =
        object ? core::content::objectCast<core::document::Document>(object.value().get()) : nullptr;
    if (!document)
        return {};
    document->setTitle(title);
    return app::persistence::serializeObject(*document);
}

} // namespace

KilledProgram::KilledProgram(const KillPlace& place, const MortalFileSystem::Plan& plan)
    : m_place(place)
    , m_files(plan)
    , m_environment{m_files, place.dataFolder, {}, [](auto) {}}
    , m_log(place.log)
    , m_random(plan.seed)
{}

void KilledProgram::run()
{
    if (exists())
        open();
    else
        make();
    while (!m_isFaulty) {
        const int dice = number(0, 99);
        if (dice < 55)
            edit();
        else if (dice < 75)
            save();
        else if (dice < 85)
            followOthers();
        else if (dice < 91)
            reopen();
        else if (dice < 97)
            loseWorkingCopy();
        else
            backUp();
        const QString unsynced = m_files.unsyncedFile();
        if (!unsynced.isEmpty())
            require(core::Failure{u"not on the medium: "_s + unsynced}, "writing");
    }
}

bool KilledProgram::exists() const
{
    return QFileInfo::exists(
        app::persistence::isBundlePath(m_place.project)
            ? m_place.project
            : m_place.project + u'/' + app::persistence::projectFileName.toString());
}

void KilledProgram::make()
{
    // What is left of one that never came to be is nobody's.
    if (QFileInfo(m_place.project).isDir())
        QDir(m_place.project).removeRecursively();
    m_open.workspace = std::make_unique<Workspace>(m_environment);
    Workspace& workspace = *m_open.workspace;
    fillWithEveryKind(workspace.projectForEdit());
    const FileHashes hashes = hashesOf(workspace);
    m_log.mayBe(hashes);
    require(workspace.saveAs(m_place.project), "making");
    m_open.journal = std::make_unique<app::persistence::CrashJournal>(m_environment, workspace.displayPath());
    m_log.wasFound(hashes);
    m_log.isKept();
    m_noted = app::persistence::serializeProject(workspace.project());
    m_commands = std::make_unique<RandomCommands>(workspace.projectForEdit(), m_random());
}

void KilledProgram::open()
{
    auto opened = openAndRecover(m_environment, m_place.project);
    if (!opened) {
        require(core::Failure{opened.message()}, "opening");
        return;
    }
    m_open = std::move(opened).value();
    m_log.wasFound(hashesOf(*m_open.workspace));
    m_log.isKept();
    m_noted = app::persistence::serializeProject(m_open.workspace->project());
    m_commands = std::make_unique<RandomCommands>(m_open.workspace->projectForEdit(), m_random());
}

void KilledProgram::close()
{
    m_commands.reset();
    m_open = {};
}

void KilledProgram::edit()
{
    auto& history = m_open.workspace->undoStack();
    for (int count = number(1, 3); count > 0; --count) {
        if (number(0, 9) == 0)
            history.undo();
        else
            history.push(m_commands->next());
    }
    noteEdits();
    if (number(0, 9) < 7)
        flushJournal();
}

void KilledProgram::noteEdits()
{
    auto present = app::persistence::serializeProject(m_open.workspace->project());
    const auto& disk = m_open.workspace->diskState();
    QList<JournalEdit> edits;
    m_log.mayBe(hashesOf(present));
    const auto note = [&](const QString& path, const FileVersion& bytes) {
        const FileVersion base = disk.contains(path) ? FileVersion(disk.bytes(path)) : FileVersion();
        edits.append({path, base, bytes, {}});
    };
    for (const auto& [path, bytes] : m_noted) {
        if (!present.contains(path))
            note(path, {});
    }
    for (const auto& [path, bytes] : present) {
        const auto noted = m_noted.find(path);
        if (noted == m_noted.end() || noted->second != bytes)
            note(path, bytes);
    }
    m_noted = std::move(present);
    m_open.journal->append(std::move(edits));
}

void KilledProgram::flushJournal()
{
    const Result<void> written = m_open.journal->flush();
    require(written, "noting");
    if (written)
        m_log.isKept();
}

void KilledProgram::save()
{
    flushJournal();
    const auto extent =
        number(0, 3) == 0 ? app::persistence::SaveExtent::Everything : app::persistence::SaveExtent::Changed;
    const Result<void> saved = m_open.workspace->save(extent);
    require(saved, "saving");
    if (!saved)
        return;
    m_log.isKept();
    m_open.journal->discard();
}

void KilledProgram::backUp()
{
    const auto backup = m_open.workspace->backup(QDateTime::fromMSecsSinceEpoch(number(1, 1 << 30)));
    require(backup ? Result<void>() : core::Failure{backup.message()}, "backing up");
}

void KilledProgram::followOthers()
{
    flushJournal();
    if (!writeAsOthers())
        return;
    auto begun = ExternalReview::begin(*m_open.workspace);
    if (!begun) {
        require(core::Failure{begun.message()}, "reviewing");
        return;
    }
    ExternalReview& review = begun.value();
    m_commands.reset();
    if (review.verdict() == ReviewVerdict::OnlyTheirs)
        require(review.takeTheirs(), "taking theirs");
    else if (review.verdict() == ReviewVerdict::Mergeable)
        require(review.applyMerge(), "merging");
    else
        require(core::Failure{u"verdict %1"_s.arg(static_cast<int>(review.verdict()))}, "reviewing");
    if (m_isFaulty)
        return;
    m_log.wasFound(hashesOf(*m_open.workspace));
    m_log.isKept();
    m_open.journal->discard();
    m_noted = app::persistence::serializeProject(m_open.workspace->project());
    m_commands = std::make_unique<RandomCommands>(m_open.workspace->projectForEdit(), m_random());
}

bool KilledProgram::writeAsOthers()
{
    const Workspace& workspace = *m_open.workspace;
    for (const auto& [path, bytes] : m_noted) {
        const bool isEditedHere = workspace.diskState().bytes(path) != bytes;
        const QByteArray theirs =
            isEditedHere ? QByteArray() : retitled(bytes, path, u"Theirs %1"_s.arg(number(0, 1 << 30)));
        if (theirs.isEmpty() || number(0, 1) == 0)
            continue;
        app::persistence::ProjectFileMap together = m_noted;
        together.insert_or_assign(path, theirs);
        m_log.mayBe(hashesOf(together));
        if (!workspace.hasSingleFile()) {
            writeOutside(workspace.folderPath() + u'/' + path, theirs);
            return true;
        }
        app::persistence::DiskFileSystem disk;
        const QString archive = workspace.singleFilePath();
        const auto content = app::persistence::readArchive(disk, archive);
        auto files = content ? app::persistence::readBundle(content.value().bytes, archive)
                             : Result<app::persistence::BundleContents>(core::Failure{content.message()});
        if (!files) {
            require(core::Failure{files.message()}, "reading the archive");
            return false;
        }
        for (app::persistence::BundleFile& file : files.value().files) {
            if (file.path == path)
                file.bytes = theirs;
        }
        writeOutside(archive, app::persistence::packBundle(files.value().files).value());
        return true;
    }
    return false;
}

void KilledProgram::writeOutside(const QString& path, const QByteArray& bytes)
{
    // A disk of their own, since the others are not who dies.
    app::persistence::DiskFileSystem disk;
    const auto temporary = disk.writeTemporary(path, bytes, app::persistence::Durability::OnMedium);
    if (!temporary || !disk.replace(*temporary, path))
        require(core::Failure{path}, "writing as others");
}

void KilledProgram::reopen()
{
    flushJournal();
    close();
    open();
}

void KilledProgram::loseWorkingCopy()
{
    if (!m_open.workspace->hasSingleFile() || m_open.workspace->isModified())
        return;
    const QString folder = m_open.workspace->folderPath();
    m_open.journal->discard();
    close();
    QDir().rename(folder, folder + u".lost"_s);
    QDir(folder + u".lost"_s).removeRecursively();
    open();
}

void KilledProgram::require(const Result<void>& result, const char* what)
{
    if (result)
        return;
    m_isFaulty = true;
    m_log.fault(QString::fromLatin1(what) + u": "_s + result.message());
}

int KilledProgram::number(int least, int most)
{
    return least + static_cast<int>(m_random() % static_cast<quint32>(most - least + 1));
}

} // namespace tw::test
