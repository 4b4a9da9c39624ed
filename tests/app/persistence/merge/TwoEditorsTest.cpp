#include "app/persistence/codec/ProjectLoader.h"
#include "app/persistence/merge/ProjectMerge.h"
#include "core/document/Document.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>

namespace tw::app::persistence {

using namespace Qt::Literals::StringLiterals;
using core::ContentId;
using core::document::Document;
using core::document::DocumentKind;
using core::project::Project;

namespace {

constexpr int paragraphs = 5;

/** What can be edited by itself: for each file, a value for each name; read from the objects, not the lines.
 */
using Cells = std::map<QString, std::map<QString, QString>>;

std::unique_ptr<Project> projectFrom(const ProjectFileMap& files)
{
    auto loaded = parseProject(files);
    EXPECT_TRUE(loaded) << loaded.message().toStdString();
    return loaded ? std::move(loaded.value().project) : std::make_unique<Project>();
}

Cells cellsOf(const ProjectFileMap& files)
{
    Cells cells;
    const std::unique_ptr<Project> project = projectFrom(files);
    cells[u"project.json"_s][u"name"_s] = project->name();
    for (const auto& [id, object] : project->objects()) {
        const auto& document = static_cast<const Document&>(*object);
        auto& values = cells[u"objects/%1.json"_s.arg(id.toString())];
        values = {
            {u"title"_s, document.title()},
            {u"synopsis"_s, document.synopsis()},
            {u"status"_s, document.status()},
            {u"pointOfView"_s, document.pointOfView()}};
        const QStringList lines = document.body().text.split(u'\n');
        for (int line = 0; line < paragraphs; ++line)
            values[u"paragraph %1"_s.arg(line)] = lines.value(line);
    }
    return cells;
}

/** One program with the project open: what it last read or saved, and what is in its memory. */
struct Editor
{
    ProjectFileMap base;
    std::unique_ptr<Project> project;

    void open(const ProjectFileMap& folder)
    {
        base = folder;
        project = projectFrom(folder);
    }
};

class TwoEditors
{
public:
    explicit TwoEditors(quint32 seed)
        : m_random(seed)
    {
        Project project;
        for (int count = 0; count < 4; ++count)
            project.add(newDocument());
        m_folder = serializeProject(project);
        for (Editor& editor : m_editors)
            editor.open(m_folder);
    }

    void runRound()
    {
        Editor& editor = m_editors[below(2)];
        for (std::size_t edits = below(3) + 1; edits > 0; --edits)
            edit(*editor.project);
        if (below(3) == 0)
            return; // goes on without saving
        if (m_folder == editor.base)
            save(editor);
        else
            merge(editor);
    }

    int mergedFiles = 0;
    int conflicts = 0;
    int paragraphMerges = 0;

private:
    std::size_t below(unsigned limit) { return m_random() % limit; }
    QString fresh() { return u"edit %1"_s.arg(++m_lastEdit); }

    std::unique_ptr<Document> newDocument()
    {
        // Ids from the seed, so that a failure repeats.
        const QUuid uuid(quint32(m_random()), 0x1000, 0x4000, 0x80, 0, 0, 0, 0, 0, 0, 0);
        auto document = std::make_unique<Document>(ContentId(uuid), DocumentKind::Prose, fresh());
        QStringList lines;
        for (int line = 0; line < paragraphs; ++line)
            lines.append(fresh());
        document->setBody({lines.join(u'\n'), {}});
        document->setSynopsis(fresh());
        return document;
    }

    void edit(Project& project)
    {
        const std::size_t count = project.objects().size();
        const std::size_t kind = below(20);
        if (count < 3 || kind == 0) {
            project.add(newDocument());
            return;
        }
        auto entry = project.objects().begin();
        std::advance(entry, below(unsigned(count)));
        auto& document = *project.findAsForEdit<Document>(entry->first);
        if (kind == 1)
            static_cast<void>(project.take(entry->first));
        else if (kind == 2)
            project.setName(fresh());
        else if (kind < 5)
            document.setTitle(fresh());
        else if (kind < 7)
            document.setSynopsis(fresh());
        else if (kind < 9)
            document.setStatus(below(2) == 0 ? QString() : fresh());
        else if (kind < 11)
            document.setPointOfView(fresh());
        else
            editParagraph(document);
    }

    void editParagraph(Document& document)
    {
        QStringList lines = document.body().text.split(u'\n');
        lines[qsizetype(below(paragraphs))] = fresh();
        document.setBody({lines.join(u'\n'), {}});
    }

    void save(Editor& editor)
    {
        m_folder = serializeProject(*editor.project);
        editor.base = m_folder;
    }

    void merge(Editor& editor)
    {
        const ProjectVersions versions{editor.base, serializeProject(*editor.project), m_folder};
        ProjectMerge merge(versions);
        std::map<QString, Resolution> shown;
        for (const FileMerge* const conflict : merge.conflicts()) {
            ++conflicts;
            Resolution resolution = below(2) == 0 ? Resolution::Mine : Resolution::Theirs;
            if (conflict->byParagraphs && !conflict->hasMarks && below(3) > 0) {
                resolution = Resolution::Paragraphs;
                ++paragraphMerges;
            }
            merge.resolve(conflict->path, resolution);
            shown.emplace(conflict->path, resolution);
        }
        for (const FileMerge& change : merge.changes())
            mergedFiles += change.standing == FileStanding::Merged ? 1 : 0;
        const auto applied = merge.applied();
        ASSERT_TRUE(applied) << applied.message().toStdString();
        checkNothingLost(versions, applied.value(), shown);
        m_folder = applied.value();
        editor.open(m_folder);
    }

    /** Value by value: whoever changed one alone gets it; where both did, somebody was asked. */
    static void checkNothingLost(
        const ProjectVersions& versions, const ProjectFileMap& result,
        const std::map<QString, Resolution>& shown)
    {
        const Cells base = cellsOf(versions.base);
        const Cells mine = cellsOf(versions.mine);
        const Cells theirs = cellsOf(versions.theirs);
        const Cells merged = cellsOf(result);
        std::set<QString> paths;
        for (const Cells* const cells : {&base, &mine, &theirs, &merged}) {
            for (const auto& entry : *cells)
                paths.insert(entry.first);
        }
        for (const QString& path : paths) {
            const auto resolution = shown.find(path);
            if (resolution != shown.end() && resolution->second != Resolution::Paragraphs) {
                const Cells& chosen = resolution->second == Resolution::Mine ? mine : theirs;
                EXPECT_EQ(valuesOf(merged, path), valuesOf(chosen, path)) << path.toStdString();
                continue;
            }
            const bool isWholeFile = base.contains(path) && mine.contains(path) && theirs.contains(path);
            if (!isWholeFile) {
                expectThreeWay(
                    valuesOf(base, path), valuesOf(mine, path), valuesOf(theirs, path),
                    valuesOf(merged, path), path);
                continue;
            }
            for (const auto& [name, value] : base.at(path)) {
                expectThreeWay(
                    value, mine.at(path).at(name), theirs.at(path).at(name), valuesOf(merged, path)[name],
                    path + u' ' + name);
            }
        }
    }

    static std::map<QString, QString> valuesOf(const Cells& cells, const QString& path)
    {
        const auto entry = cells.find(path);
        return entry == cells.end() ? std::map<QString, QString>() : entry->second;
    }

    template <class Value>
    static void expectThreeWay(
        const Value& base, const Value& mine, const Value& theirs, const Value& merged, const QString& where)
    {
        if (mine == base || mine == theirs)
            EXPECT_EQ(merged, theirs) << where.toStdString();
        else if (theirs == base)
            EXPECT_EQ(merged, mine) << where.toStdString();
        else
            ADD_FAILURE() << "nobody was asked about " << where.toStdString();
    }

    std::mt19937 m_random;
    int m_lastEdit = 0;
    ProjectFileMap m_folder;
    Editor m_editors[2];
};

} // namespace

TEST(TwoEditorsTest, noEditDisappearsUnlessSomebodyWasAsked)
{
    int mergedFiles = 0;
    int conflicts = 0;
    int paragraphMerges = 0;
    for (quint32 seed = 1; seed <= 4; ++seed) {
        SCOPED_TRACE(seed);
        TwoEditors editors(seed);
        for (int round = 0; round < 500 && !testing::Test::HasFailure(); ++round)
            editors.runRound();
        mergedFiles += editors.mergedFiles;
        conflicts += editors.conflicts;
        paragraphMerges += editors.paragraphMerges;
    }
    // All ways through were taken, each of them often.
    EXPECT_GT(mergedFiles, 100);
    EXPECT_GT(conflicts, 100);
    EXPECT_GT(paragraphMerges, 20);
}

} // namespace tw::app::persistence
