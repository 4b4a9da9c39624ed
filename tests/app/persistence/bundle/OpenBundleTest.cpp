#include "app/persistence/bundle/OpenBundle.h"
#include "app/persistence/bundle/BundleFixture.h"
#include "app/persistence/zip/ZipArchives.h"

#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::Literals::StringLiterals;
using namespace tw::app::persistence;

namespace {

/** Projects are told from each other by their names; "broken" is one that does not load. */
QList<BundleFile> filesOf(const QString& name)
{
    const QByteArray document = name == u"broken" ? "{ half"_ba : "{\"name\": \"" + name.toUtf8() + "\"}";
    return {{u"assets/map.png"_s, "pixels"}, {u"notes.md"_s, name.toUtf8()}, {u"project.json"_s, document}};
}

enum class Recorded
{
    Archive, ///< The hash of the archive that is there.
    Other,
    Blank,
    Nothing,
    Garbage,
    OtherPath,
};

class OpenBundle : public BundleFixture
{
protected:
    QString bundle() const { return path(u"My tide.vellory"_s); }
    WorkingCopy copy() const { return workingCopyOf(bundle(), m_environment.dataFolder); }

    void storeArchive(const QString& name) const
    {
        store(u"My tide.vellory"_s, packBundle(filesOf(name)).value());
    }

    void storeCopy(const QString& name)
    {
        QDir(copy().folder).removeRecursively();
        if (!name.isEmpty()) {
            ASSERT_TRUE(unpackBundle(m_environment, filesOf(name), copy().folder).isOk());
        }
    }

    void storeRecord(Recorded recorded)
    {
        QFile::remove(copy().recordPath);
        const QString stored = copy().recordPath.sliced(path({}).size() + 1);
        const QByteArray hash = bundleHash(content(bundle()));
        if (recorded == Recorded::Archive)
            ASSERT_TRUE(recordHash(m_environment, copy(), hash).isOk());
        else if (recorded == Recorded::Other)
            ASSERT_TRUE(recordHash(m_environment, copy(), bundleHash("another")).isOk());
        else if (recorded == Recorded::Blank)
            ASSERT_TRUE(recordHash(m_environment, copy(), {}).isOk());
        else if (recorded == Recorded::Garbage)
            store(stored, "{ half");
        else if (recorded == Recorded::OtherPath)
            store(stored, "{\"bundlePath\": \"/elsewhere\", \"bundleSha256\": \"" + hash + "\"}");
    }

    static QString nameIn(const QByteArray& archive)
    {
        const auto contents = readBundle(archive, u"test"_s);
        if (!contents)
            return u"(none)"_s;
        return QString::fromUtf8(contents.value().files.at(1).bytes);
    }

    QString backups() const
    {
        QStringList names;
        const QDir folder(m_environment.dataFolder + u"/backups/My tide"_s);
        for (const QString& file : folder.entryList(QDir::Files))
            names.append(nameIn(content(folder.filePath(file))));
        return names.join(u' ');
    }

    /** However it came about: archive, copy and record agree, and nothing else lies about. */
    void expectSettled(const QString& name)
    {
        EXPECT_EQ(nameIn(content(bundle())), name);
        EXPECT_TRUE(readAllFiles(m_files, copy().folder).value() == filesOf(name));
        EXPECT_EQ(recordedHash(m_files, copy()), bundleHash(content(bundle())));
        const QStringList beside = QDir(QFileInfo(copy().folder).path())
                                       .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
        EXPECT_EQ(beside.size(), 2) << beside.join(u' ').toStdString();
    }
};

} // namespace

TEST_F(OpenBundle, resolvesWhateverACrashLeftBehind)
{
    struct Row
    {
        const char* what;
        QString archive, copy;
        Recorded recorded;
        BundleOpening opening;
        QString project, backup;
    };
    const QString a = u"A"_s;
    const QString b = u"B"_s;
    const QString none;
    const QString broken = u"broken"_s;
    const QList<Row> rows{
        {"first time", a, none, Recorded::Nothing, BundleOpening::Unpacked, a, none},
        {"copy lost, record left", a, none, Recorded::Archive, BundleOpening::Unpacked, a, none},
        {"ended in order", a, a, Recorded::Archive, BundleOpening::Intact, a, none},
        {"after the archive, before the record", a, a, Recorded::Other, BundleOpening::Intact, a, none},
        {"same content without a record", a, a, Recorded::Nothing, BundleOpening::Intact, a, none},
        {"same content, blank record", a, a, Recorded::Blank, BundleOpening::Intact, a, none},
        {"during the save of the copy", a, b, Recorded::Archive, BundleOpening::Restored, b, a},
        {"replaced by another machine", a, b, Recorded::Other, BundleOpening::Replaced, a, b},
        {"no record to trust", a, b, Recorded::Nothing, BundleOpening::Disowned, a, b},
        {"blank record", a, b, Recorded::Blank, BundleOpening::Disowned, a, b},
        {"damaged record", a, b, Recorded::Garbage, BundleOpening::Disowned, a, b},
        {"record of another file", a, b, Recorded::OtherPath, BundleOpening::Disowned, a, b},
        {"copy does not load", a, broken, Recorded::Archive, BundleOpening::SetAside, a, broken},
        {"stale copy does not load", a, broken, Recorded::Other, BundleOpening::Replaced, a, broken},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        QDir(m_environment.dataFolder).removeRecursively();
        storeArchive(row.archive);
        storeCopy(row.copy);
        storeRecord(row.recorded);
        // What an interrupted attempt left is in nobody's way.
        store(copy().freshFolder().sliced(path({}).size() + 1) + u"/objects/half.json"_s, "{");
        if (row.opening == BundleOpening::Intact || row.opening == BundleOpening::Restored)
            discardFreshCopy(copy());

        const auto opened = openBundle(m_environment, bundle());
        ASSERT_TRUE(opened.isOk()) << opened.message().toStdString();
        EXPECT_EQ(opened.value().opening, row.opening);
        EXPECT_EQ(opened.value().project.project->name(), row.project);
        EXPECT_EQ(backups(), row.backup);
        EXPECT_EQ(opened.value().backupPath.isEmpty(), row.backup.isEmpty());
        expectSettled(row.project);
        EXPECT_EQ(openBundle(m_environment, bundle()).value().opening, BundleOpening::Intact);
    }
}

TEST_F(OpenBundle, losesNothingWhereverTheMediumFails)
{
    struct Row
    {
        QString copy;
        Recorded recorded;
        QString project, backup;
    };
    for (const Row& row :
         {Row{{}, Recorded::Nothing, u"A"_s, {}}, Row{u"B"_s, Recorded::Archive, u"B"_s, u"A"_s},
          Row{u"B"_s, Recorded::Other, u"A"_s, u"B"_s}}) {
        int writes = 0;
        for (bool isDone = false; !isDone; ++writes) {
            SCOPED_TRACE(row.project.toStdString() + " fails after " + std::to_string(writes));
            ASSERT_LT(writes, 20);
            QDir(m_environment.dataFolder).removeRecursively();
            storeArchive(u"A"_s);
            storeCopy(row.copy);
            storeRecord(row.recorded);
            m_files.writesLeft = writes;
            const auto first = openBundle(m_environment, bundle());
            m_files.writesLeft = FaultyFileSystem::always;
            isDone = first.isOk();
            EXPECT_NE(first.isOk(), !first.message().isEmpty());
            const auto second = openBundle(m_environment, bundle());
            ASSERT_TRUE(second.isOk()) << second.message().toStdString();
            EXPECT_EQ(second.value().project.project->name(), row.project);
            EXPECT_EQ(backups().contains(row.backup), true);
            expectSettled(row.project);
        }
        EXPECT_GT(writes, 3);
    }
}

TEST_F(OpenBundle, comparesContentsAndNotArchives)
{
    QList<ArchiveFile> packed;
    for (const BundleFile& file : filesOf(QString(500, u'x')))
        packed.append({file.path, file.bytes, ZipMethod::Deflated});
    const QByteArray archive = makeArchive(packed);
    store(u"My tide.vellory"_s, archive);
    EXPECT_EQ(openBundle(m_environment, bundle()).value().opening, BundleOpening::Unpacked);
    EXPECT_EQ(openBundle(m_environment, bundle()).value().opening, BundleOpening::Intact);
    EXPECT_TRUE(content(bundle()) == archive);
}

TEST_F(OpenBundle, saysWhatIsWrong)
{
    const auto message = [this](BundlePurpose purpose = BundlePurpose::Open) {
        return openBundle(m_environment, bundle(), purpose).message();
    };
    const QString unreadable = u"The project file is not readable right now; try again."_s;
    EXPECT_EQ(message(), u"Could not open the project file: "_s + bundle());
    EXPECT_EQ(message(BundlePurpose::Reload), unreadable);
    store(u"My tide.vellory"_s, "half of an archive");
    EXPECT_EQ(message(), u"Not a valid Vellory project file: "_s + bundle());
    EXPECT_EQ(message(BundlePurpose::Reload), unreadable);

    storeArchive(u"A"_s);
    const QString file = copy().freshFolder() + u"/notes.md"_s;
    m_files.failingWrites[file] = FaultyFileSystem::always;
    EXPECT_EQ(
        message(),
        u"Could not prepare the project's working folder: Could not write a project file: "_s + file);
    EXPECT_TRUE(
        message(BundlePurpose::Reload).startsWith(u"Could not refresh the project's working folder: "));
    m_files.failingWrites.clear();

    storeCopy(u"B"_s);
    storeRecord(Recorded::Archive);
    m_files.failingReplacements[bundle()] = FaultyFileSystem::always;
    EXPECT_TRUE(message().startsWith(u"Could not restore unsaved changes into the project file: "));
    EXPECT_EQ(nameIn(content(bundle())), u"A"_s);
    m_files.failingReplacements.clear();

    storeArchive(u"broken"_s);
    EXPECT_TRUE(message().startsWith(u"Invalid JSON in file: ")) << message().toStdString();
}

TEST_F(OpenBundle, namesWorkingCopiesByFileAndPlace)
{
    const auto nameOf = [](const QString& bundlePath) {
        return QFileInfo(workingCopyOf(bundlePath, u"/data"_s).folder).fileName();
    };
    EXPECT_EQ(nameOf(u"/books/tide.v2.vellory"_s).size(), 7 + 1 + 12);
    EXPECT_TRUE(nameOf(u"/books/tide.v2.vellory"_s).startsWith(u"tide.v2-"));
    EXPECT_EQ(nameOf(u"/books/../books//tide.vellory"_s), nameOf(u"/books/tide.vellory"_s));
    EXPECT_NE(nameOf(u"/books/tide.vellory"_s), nameOf(u"/other/tide.vellory"_s));

    for (const auto& [name, safe] : std::initializer_list<std::pair<QString, QString>>{
             {u"Tide: a *story*?"_s, u"Tide- a -story--"_s},
             {u"..hidden. "_s, u"hidden"_s},
             {{}, u"project"_s},
             {u" . "_s, u"project"_s},
             {u"Con"_s, u"_Con"_s},
             {u"lpt1.txt"_s, u"_lpt1.txt"_s},
             {u"Flut \u6D77"_s, u"Flut \u6D77"_s},
             {u"a\nb"_s, u"a-b"_s}})
        EXPECT_EQ(safeFileName(name), safe);
    EXPECT_LE(safeFileName(QString(300, u'\u6D77')).toUtf8().size(), 200);
}
