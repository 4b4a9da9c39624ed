#include "app/persistence/DiskState.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <map>
#include <random>

using namespace Qt::Literals::StringLiterals;

namespace tw::app::persistence {

namespace {

/** A folder that we and others write to, and what we should know about it. */
class SharedFolder
{
public:
    explicit SharedFolder(unsigned seed)
        : m_random(seed)
        , m_state(m_files, [this] { return systemClock() + m_clockAhead; })
    {
        for (const QString& name : names())
            writeOurselves(name);
    }

    /** One thing happens: we write or forget a file, or others do something behind our back. */
    void step()
    {
        const QString name = names().at(below(names().size()));
        switch (below(9)) {
        case 0:
            writeOurselves(name);
            break;
        case 1:
            m_known.erase(name);
            m_state.forget(name);
            break;
        case 2:
            QFile::remove(path(name));
            break;
        case 3:
            // The same bytes under another stamp are no change.
            if (const auto content = m_files.readFile(path(name)))
                replace(name, content->bytes);
            break;
        case 4:
            replace(name, anyBytes());
            break;
        case 5:
            overwrite(name, anyBytes());
            break;
        case 6:
            QFile::rename(path(name), path(names().at(below(names().size()))));
            break;
        default:
            m_clockAhead = below(2) * qint64{10'000'000'000};
        }
    }

    DiskChanges expectedChanges()
    {
        DiskChanges changes;
        for (const QString& name : names()) {
            const auto content = m_files.readFile(path(name));
            const auto known = m_known.find(name);
            if (known == m_known.end() && content)
                changes.added.append(name);
            else if (known != m_known.end() && !content)
                changes.removed.append(name);
            else if (known != m_known.end() && content->bytes != known->second)
                changes.changed.append(name);
        }
        return changes;
    }

    DiskChanges seenChanges() { return m_state.changesIn(m_folder.path()); }

private:
    static QStringList names()
    {
        static const QStringList list = [] {
            QStringList made{u"a.md"_s, u"ä.md"_s};
            for (int index = 0; index < 12; ++index)
                made.append(u"objects/%1.json"_s.arg(index));
            made.sort();
            return made;
        }();
        return list;
    }

    qsizetype below(qsizetype limit)
    {
        return static_cast<qsizetype>(m_random() % static_cast<std::size_t>(limit));
    }
    /** Few different ones, all of one length, so that only a look at them tells them apart. */
    QByteArray anyBytes() { return QByteArray::number(below(3)); }
    QString path(const QString& name) const { return m_folder.filePath(name); }

    void replace(const QString& name, const QByteArray& bytes)
    {
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path(name)).path()));
        const auto temporary = m_files.writeTemporary(path(name), bytes, Durability::OnMedium);
        ASSERT_TRUE(temporary && m_files.replace(*temporary, path(name)));
        giveOwnTime(name);
    }

    void overwrite(const QString& name, const QByteArray& bytes)
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();
        giveOwnTime(name);
    }

    /** As if the steps lay further apart than the ticks of the file system's clock. */
    void giveOwnTime(const QString& name)
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::ReadWrite));
        m_time = m_time.addMSecs(1);
        ASSERT_TRUE(file.setFileTime(m_time, QFileDevice::FileModificationTime));
    }

    void writeOurselves(const QString& name)
    {
        const QByteArray bytes = anyBytes();
        replace(name, bytes);
        m_known[name] = bytes;
        m_state.recordWritten(m_folder.path(), name, bytes);
    }

    std::mt19937 m_random;
    QTemporaryDir m_folder;
    DiskFileSystem m_files;
    QDateTime m_time = QDateTime::currentDateTimeUtc().addSecs(-60);
    qint64 m_clockAhead = 0;
    DiskState m_state;
    std::map<QString, QByteArray> m_known;
};

} // namespace

TEST(DiskState, seesWhatOthersDidWhateverItSawBefore)
{
    for (unsigned seed = 1; seed <= 8; ++seed) {
        SharedFolder folder(seed);
        for (int step = 0; step < 150; ++step) {
            folder.step();
            if (step % 3 == 2)
                continue;
            const DiskChanges expected = folder.expectedChanges();
            const DiskChanges seen = folder.seenChanges();
            ASSERT_EQ(seen.added, expected.added) << seed << ' ' << step;
            ASSERT_EQ(seen.removed, expected.removed) << seed << ' ' << step;
            ASSERT_EQ(seen.changed, expected.changed) << seed << ' ' << step;
        }
    }
}

} // namespace tw::app::persistence
