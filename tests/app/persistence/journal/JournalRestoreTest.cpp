#include "app/persistence/journal/JournalRestore.h"

#include "app/persistence/codec/ObjectCodec.h"
#include "app/persistence/files/ProjectFiles.h"
#include "core/document/Document.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace tw::app::persistence {

namespace {

const FileVersion none;

QByteArray json(const char* first, const char* second)
{
    return QByteArray("{\n    \"a\": ") + first + ",\n    \"b\": 0,\n    \"c\": " + second + "\n}\n";
}

} // namespace

TEST(JournalRestore, bringsBackWhatIsNotThere)
{
    const FileVersion base = json("1", "1");
    const FileVersion mine = json("2", "1");
    const FileVersion theirs = json("1", "2");
    const struct
    {
        const char* name;
        JournaledFile journaled;
        FileVersion now;
        std::optional<FileVersion> restored; // nothing when the file needs no change
        bool isOverridden = false;
    } cases[] = {
        {"an edit", {base, mine}, base, mine},
        {"an edit that was saved", {base, mine}, mine, {}},
        {"an edit taken back", {base, base}, base, {}},
        {"a new file", {none, mine}, none, mine},
        {"a removed file", {base, none}, base, none},
        {"a removal that was saved", {base, none}, none, {}},
        {"others changed other lines", {base, mine}, theirs, FileVersion(json("2", "2"))},
        {"others changed what is the same here", {base, base}, theirs, {}},
        {"others changed the same line", {base, mine}, FileVersion(json("3", "1")), mine, true},
        {"others removed it", {base, mine}, none, mine, true},
        {"others changed what was removed here", {base, none}, theirs, none, true},
        {"others made it as well", {none, mine}, theirs, mine, true},
        {"merged, it could not be read", {"{\n}\n", "{\n\n}\n"}, FileVersion("[\n]\n"), "{\n\n}\n", true},
    };
    for (const auto& [name, journaled, now, restored, isOverridden] : cases) {
        SCOPED_TRACE(name);
        const QString path = u"taxonomy/a.json"_s;
        Journal journal;
        journal.files.emplace(path, journaled);
        const JournalRestore plan = planRestore(journal, [&](const QString& asked) {
            EXPECT_EQ(asked, path);
            return now;
        });
        ASSERT_EQ(plan.isEmpty(), !restored.has_value());
        if (restored) {
            EXPECT_EQ(plan.files.at(path), *restored);
        }
        EXPECT_EQ(plan.overridden, isOverridden ? QStringList{path} : QStringList());
    }
}

TEST(JournalRestore, knowsTheSameObjectInOtherWords)
{
    const core::ContentId id = core::ContentId::create();
    core::document::Document document(id, core::document::DocumentKind::Prose, u"Entry"_s);
    const QByteArray base = serializeObject(document);
    document.setTitle(u"Entry 4,117"_s);
    const QByteArray saved = serializeObject(document);
    // Nothing that reads the file keeps an empty id.
    const QByteArray mine =
        QByteArray(saved).replace("\n}", ",\n    \"sourceIds\": [\n        \"\"\n    ]\n}");
    Journal journal;
    journal.files.emplace(objectPath(id), JournaledFile{base, mine});
    const JournalRestore plan = planRestore(journal, [&](const QString&) { return FileVersion(saved); });
    EXPECT_TRUE(plan.isEmpty());
    EXPECT_TRUE(plan.overridden.isEmpty());
}

} // namespace tw::app::persistence
