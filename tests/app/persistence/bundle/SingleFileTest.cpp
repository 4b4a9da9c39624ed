#include "app/persistence/bundle/SingleFile.h"
#include "app/persistence/FolderSaver.h"
#include "app/persistence/bundle/BundleFixture.h"
#include "app/persistence/bundle/BundleUpdate.h"
#include "app/persistence/zip/ZipArchives.h"

#include <QRandomGenerator>

using namespace Qt::Literals::StringLiterals;
using namespace tw::app::persistence;

namespace {

class SingleFileTest : public BundleFixture
{
protected:
    SingleFileTest()
    {
        // Every stamp counts as old: the tests change sizes, so that none stands for two contents.
        m_environment.clock = [] { return systemClock() + 10'000'000'000; };
    }

    QString bundle() const { return path(u"tide.vellory"_s); }
    SingleFile newFile() { return {m_environment, workingCopyOf(bundle(), m_environment.dataFolder)}; }

    void expectUpToDate() { EXPECT_TRUE(content(bundle()) == buildBundle(m_files, project()).value()); }

    void markAllUnreadable()
    {
        const auto listed = listBundleFiles(project());
        for (const ListedFile& file : listed.value())
            m_files.unreadable.insert(project() + u'/' + file.path);
    }
};

} // namespace

TEST_F(SingleFileTest, givesTheBytesOfAFullBuildAfterAnyEdits)
{
    QRandomGenerator random(5);
    SingleFile file = newFile();
    ASSERT_TRUE(file.writeArchiveOf(project()).isOk());
    qsizetype size = 0;
    for (int round = 0; round < 60; ++round) {
        for (int edits = random.bounded(4); edits > 0; --edits) {
            const QString name = u"project/objects/%1.json"_s.arg(random.bounded(30));
            if (random.bounded(4) == 0)
                QFile::remove(path(name));
            else
                store(name, QByteArray(++size * (random.bounded(2) ? 7 : 1), char('a' + round % 26)));
        }
        const auto written = file.writeArchiveOf(project());
        ASSERT_TRUE(written.isOk()) << written.message().toStdString();
        expectUpToDate();
    }
}

TEST_F(SingleFileTest, readsOnlyWhatChanged)
{
    SingleFile file = newFile();
    ASSERT_TRUE(file.writeArchiveOf(project()).isOk());
    const auto before = m_files.stamp(bundle());
    markAllUnreadable();
    ASSERT_TRUE(file.writeArchiveOf(project()).isOk());
    EXPECT_TRUE(m_files.stamp(bundle()) == before) << "nothing to write";

    store(u"project/objects/b.json"_s, "{\"longer\": 1}\n");
    m_files.unreadable.remove(project() + u"/objects/b.json"_s);
    const auto written = file.writeArchiveOf(project());
    ASSERT_TRUE(written.isOk()) << written.message().toStdString();
    m_files.unreadable.clear();
    expectUpToDate();
}

TEST_F(SingleFileTest, makesAllAnewWhenNothingIsKnown)
{
    QList<ArchiveFile> packed;
    BundleIndex index;
    const auto files = collectBundleFiles(m_files, project());
    for (const BundleFile& file : files.value())
        packed.append({file.path, file.bytes, ZipMethod::Deflated});
    const QByteArray foreign = makeArchive(packed);
    const auto contents = readBundle(foreign, bundle());
    for (std::size_t place = 0; place < contents.value().places.size(); ++place) {
        const BundleFile& file = contents.value().files.at(qsizetype(place));
        const QString inFolder = project() + u'/' + file.path;
        index.push_back(
            {file.path, *m_files.stamp(inFolder), true, contents.value().places[place], file.bytes.size()});
    }
    // The archive of another tool holds the same: it stays until something changes.
    EXPECT_TRUE(
        updateBundle(m_environment, project(), index, [&] { return foreign; }).value().archive.isNull());
    store(u"project/notes.md"_s, "new");
    const QByteArray expected = buildBundle(m_files, project()).value();
    for (const QByteArray& present : {foreign, QByteArray(), foreign.first(40)}) {
        const auto update = updateBundle(m_environment, project(), index, [&] { return present; });
        EXPECT_TRUE(update.value().archive == expected);
    }
}

TEST_F(SingleFileTest, guardsWhatOthersWrote)
{
    SingleFile file = newFile();
    ASSERT_TRUE(file.writeArchiveOf(project()).isOk());
    const QByteArray ours = content(bundle());

    store(u"tide.vellory"_s, ours);
    EXPECT_FALSE(file.isChangedOnDisk()) << "only its time is another";
    store(u"tide.vellory"_s, ours);
    store(u"project/notes.md"_s, "mine");
    ASSERT_TRUE(file.writeArchiveOf(project()).isOk()) << "the index does not fit, so all is read";
    expectUpToDate();

    QByteArray theirs = content(bundle());
    theirs.replace("mine", "your");
    for (const QByteArray& bytes : {theirs, theirs + ' ', QByteArray()}) {
        store(u"tide.vellory"_s, bytes);
        EXPECT_TRUE(file.isChangedOnDisk());
        store(u"project/notes.md"_s, "mine " + bytes.first(bytes.size() % 3));
        EXPECT_EQ(file.writeArchiveOf(project()).message(), changedOnDiskFailure().message);
        EXPECT_TRUE(content(bundle()) == bytes);
    }
    QFile::remove(bundle());
    EXPECT_TRUE(file.isChangedOnDisk());
}
