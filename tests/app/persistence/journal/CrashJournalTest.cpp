#include "app/persistence/journal/CrashJournal.h"

#include "app/persistence/codec/ObjectCodec.h"
#include "app/persistence/files/FaultyFileSystem.h"
#include "app/persistence/journal/JournalRestore.h"
#include "core/document/Document.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

using namespace Qt::Literals::StringLiterals;

namespace tw::app::persistence {

namespace {

/** Journals of one program after another; a destroyed one is what a crash leaves. */
class CrashJournalTest : public testing::Test
{
protected:
    QString journals() const { return root.filePath(u"data/journals"_s); }

    std::unique_ptr<CrashJournal> begin(const QString& project = u"/books/tide"_s) const
    {
        return std::make_unique<CrashJournal>(environment, project);
    }

    static JournalEdit edit(const QString& path, const QByteArray& bytes)
    {
        return {path, FileVersion("base of " + path.toUtf8()), bytes, {}};
    }

    /** What is found of a project after a crash: path to content, all journals together. */
    std::map<QString, QByteArray> found(const QString& project = u"/books/tide"_s) const
    {
        std::map<QString, QByteArray> contents;
        for (const AbandonedJournal& journal : AbandonedJournal::find(environment, project)) {
            for (const auto& [path, file] : journal.content().files) {
                EXPECT_EQ(file.base, FileVersion("base of " + path.toUtf8()));
                contents.insert_or_assign(path, file.bytes.value_or("(gone)"));
            }
        }
        return contents;
    }

    QStringList names() const { return QDir(journals()).entryList(QDir::Files); }

    QString journalPath() const
    {
        return QDir(journals()).filePath(QDir(journals()).entryList({u"*.journal"_s}).value(0));
    }

    QTemporaryDir root;
    FaultyFileSystem files;
    StorageEnvironment environment{files, root.filePath(u"data"_s), {}, [](auto) {}};
};

using Files = std::map<QString, QByteArray>;

} // namespace

TEST_F(CrashJournalTest, isThereFromTheFirstEditToTheSave)
{
    auto journal = begin();
    EXPECT_TRUE(journal->flush());
    EXPECT_TRUE(names().isEmpty());
    journal->append({edit(u"a"_s, "1"), edit(u"b"_s, "1")});
    journal->append({edit(u"a"_s, "2")});
    EXPECT_TRUE(journal->flush());
    EXPECT_TRUE(found().empty()) << "its program is still running";
    journal->discard();
    journal.reset();
    EXPECT_TRUE(names().isEmpty());

    journal = begin();
    journal->append({edit(u"a"_s, "long ago, and long as well")});
    journal->discard();
    journal->append({edit(u"b"_s, "3")});
    journal.reset();
    EXPECT_EQ(found(), (Files{{u"b"_s, "3"}}));
    for (AbandonedJournal& abandoned : AbandonedJournal::find(environment, u"/books/tide"_s))
        abandoned.remove();
    EXPECT_TRUE(names().isEmpty());
}

TEST_F(CrashJournalTest, twoCrashesInARowAreRestoredTogether)
{
    // The second program saw the disk's version, not what the first had not saved.
    const FileVersion base = QByteArray("{\n    \"a\": 0,\n    \"b\": 0\n}\n");
    const QByteArray mine = "{\n    \"a\": 1,\n    \"b\": 0\n}\n";
    const QByteArray later = "{\n    \"a\": 0,\n    \"b\": 2\n}\n";
    const QByteArray latest = "{\n    \"a\": 3,\n    \"b\": 0\n}\n";
    const QString merged = u"taxonomy/merged.json"_s;
    const QString overridden = u"taxonomy/overridden.json"_s;
    const QString first = u"taxonomy/first.json"_s;
    begin()->append({{merged, base, mine, {}}, {overridden, base, mine, {}}, {first, base, mine, {}}});
    begin()->append({{merged, base, later, {}}, {overridden, base, latest, {}}});

    const auto journals = AbandonedJournal::find(environment, u"/books/tide"_s);
    ASSERT_EQ(journals.size(), 2U);
    const JournalRestore plan = planRestore(journals, [&](const QString&) { return base; });
    EXPECT_EQ(plan.files.at(merged), QByteArray("{\n    \"a\": 1,\n    \"b\": 2\n}\n"));
    EXPECT_EQ(plan.files.at(overridden), latest) << "the writer's last words";
    EXPECT_EQ(plan.files.at(first), mine);
    EXPECT_EQ(plan.overridden, QStringList{overridden});
}

TEST_F(CrashJournalTest, belongsToOneProjectAndOneProgram)
{
    auto first = begin();
    auto second = begin();
    auto other = begin(u"/elsewhere/tide"_s);
    first->append({edit(u"a"_s, "first")});
    second->append({edit(u"b"_s, "second")});
    other->append({edit(u"c"_s, "other")});
    ASSERT_TRUE(first->flush() && second->flush() && other->flush());
    first.reset();
    EXPECT_EQ(found(), (Files{{u"a"_s, "first"}})) << "the second program is still at work";
    second.reset();
    other.reset();
    EXPECT_EQ(found(), (Files{{u"a"_s, "first"}, {u"b"_s, "second"}}));
    EXPECT_EQ(found(u"/elsewhere/tide"_s), (Files{{u"c"_s, "other"}}));

    const auto held = AbandonedJournal::find(environment, u"/books/tide"_s);
    EXPECT_EQ(held.size(), 2U);
    EXPECT_TRUE(found().empty()) << "somebody else is restoring them";
}

TEST_F(CrashJournalTest, leavesForeignFilesAlone)
{
    begin()->append({edit(u"a"_s, "1")});
    const QString path = journalPath();
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    const QByteArray whole = file.readAll();
    for (const QByteArray& content :
         {QByteArray(whole).replace("vellory-journal 1", "vellory-journal 9"), QByteArray("notes of my own"),
          QByteArray()}) {
        file.resize(0);
        file.seek(0);
        file.write(content);
        file.flush();
        EXPECT_TRUE(found().empty());
        EXPECT_EQ(names().size(), 1);
    }
}

TEST_F(CrashJournalTest, keepsTypingThatIsHeldBack)
{
    core::document::Document chapter(
        core::ContentId::create(), core::document::DocumentKind::Prose, u"Ebb"_s);
    chapter.setBody({u"One."_s, {}});
    const QString path = u"objects/%1.json"_s.arg(chapter.id().toString());
    const QByteArray before = serializeObject(chapter);
    chapter.setBody({u"One. And two."_s, {}});
    auto journal = begin();
    journal->append(
        {{path, before, before, u"One. And two."_s},
         {u"not a chapter"_s, FileVersion("base of not a chapter"), "{]", u"x"_s}});
    journal.reset();
    const auto abandoned = AbandonedJournal::find(environment, u"/books/tide"_s);
    ASSERT_EQ(abandoned.size(), 1U);
    EXPECT_EQ(abandoned.front().content().files.at(path).bytes, serializeObject(chapter));
    EXPECT_EQ(abandoned.front().content().files.at(u"not a chapter"_s).bytes, "{]");
}

TEST_F(CrashJournalTest, keepsTypingInTheVariantItWentInto)
{
    core::document::Document chapter(
        core::ContentId::create(), core::document::DocumentKind::Prose, u"Ebb"_s);
    chapter.setBody({u"Main."_s, {}});
    chapter.setVariants({{{u"Dark"_s, u"Night."_s}}, u"Dark"_s});
    const QString path = u"objects/%1.json"_s.arg(chapter.id().toString());
    const QByteArray before = serializeObject(chapter);
    chapter.setVariants({{{u"Dark"_s, u"Night fell."_s}}, u"Dark"_s});
    auto journal = begin();
    journal->append({{path, before, before, u"Night fell."_s}});
    journal.reset();
    const auto abandoned = AbandonedJournal::find(environment, u"/books/tide"_s);
    ASSERT_EQ(abandoned.size(), 1U);
    EXPECT_EQ(abandoned.front().content().files.at(path).bytes, serializeObject(chapter));
}

TEST_F(CrashJournalTest, isRewrittenWhenItSaysTheSameOverAndOver)
{
    auto journal = begin();
    constexpr qsizetype megabyte = 1 << 20;
    journal->append({edit(u"small"_s, "once")});
    for (int round = 0; round < 12; ++round)
        journal->append({edit(u"large"_s, QByteArray(megabyte, static_cast<char>('a' + round)))});
    journal->append({edit(u"last"_s, "after")});
    ASSERT_TRUE(journal->flush());
    EXPECT_LT(QFileInfo(journalPath()).size(), 6 * megabyte);
    journal.reset();
    EXPECT_EQ(
        found(),
        (Files{{u"small"_s, "once"}, {u"large"_s, QByteArray(megabyte, 'l')}, {u"last"_s, "after"}}));
}

TEST_F(CrashJournalTest, saysWhenItCannotBeWrittenAndCatchesUpAfterwards)
{
    auto journal = begin();
    const auto failing = [&] {
        const QString message = journal->flush().message();
        EXPECT_TRUE(message.contains(journals())) << message.toStdString();
        EXPECT_TRUE(message.startsWith(u"Save your work, and free some space: "));
        return !message.isEmpty();
    };
    // The folder cannot be made.
    QDir().mkpath(environment.dataFolder);
    QFile inTheWay(journals());
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
    journal->append({edit(u"a"_s, "1")});
    EXPECT_TRUE(failing());
    EXPECT_FALSE(journal->lastOutcome());
    inTheWay.remove();
    EXPECT_TRUE(journal->flush());

    // The file cannot be synced, then its name.
    files.failingSyncs.insert({}, FaultyFileSystem::always);
    journal->append({edit(u"b"_s, "2")});
    EXPECT_TRUE(failing());
    journal->append({edit(u"c"_s, "3")});
    EXPECT_TRUE(failing());
    files.failingSyncs.clear();
    journal->append({edit(u"b"_s, "4")});
    EXPECT_TRUE(journal->flush());

    // It was taken away.
    QFile::remove(journalPath());
    journal->append({edit(u"d"_s, "5")});
    journal.reset();
    EXPECT_EQ(found(), (Files{})) << "nothing, rather than half of it";

    journal = begin();
    files.failingSyncs.insert(journals(), FaultyFileSystem::always);
    journal->append({edit(u"e"_s, "6")});
    EXPECT_TRUE(failing());
    journal->discard();
    EXPECT_TRUE(journal->flush()) << "what was saved need not be noted";
    files.failingSyncs.clear();
    journal->append({edit(u"f"_s, "7")});
    journal.reset();
    EXPECT_EQ(found(), (Files{{u"f"_s, "7"}}));
}

#ifdef Q_OS_UNIX
TEST_F(CrashJournalTest, losesNothingOnAMediumThatIsFullFromAnyByteOn)
{
    rlimit usual = {};
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &usual), 0);
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    const auto allow = [&](rlim_t bytes) {
        const rlimit limit{bytes, usual.rlim_max};
        ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &limit), 0);
    };
    // A lock takes some bytes itself, so that the smallest of media fail at that.
    for (rlim_t room = 0; room < 700; room += 13) {
        SCOPED_TRACE(room);
        auto journal = begin();
        allow(room);
        journal->append({edit(u"a"_s, QByteArray(200, '1'))});
        const bool isFirstWritten = journal->flush().isOk();
        journal->append({edit(u"b"_s, QByteArray(200, '2'))});
        const bool isSecondWritten = journal->flush().isOk();
        EXPECT_TRUE(isFirstWritten || !isSecondWritten);
        allow(usual.rlim_cur);
        journal->append({edit(u"c"_s, "3")});
        EXPECT_TRUE(journal->flush());
        journal.reset();
        EXPECT_EQ(
            found(), (Files{{u"a"_s, QByteArray(200, '1')}, {u"b"_s, QByteArray(200, '2')}, {u"c"_s, "3"}}));
        QDir(journals()).removeRecursively();
    }
    allow(usual.rlim_cur);
    std::signal(SIGXFSZ, handler);
}
#endif

} // namespace tw::app::persistence
