#include "bench/storage-benchmark/References.h"

#include "app/persistence/zip/ZipWriter.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QDirIterator>
#include <QFile>
#include <QSaveFile>

#include <cstdio>
#include <cstdlib>

#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

namespace tw::bench {

void giveUp(const QString& reason)
{
    std::fprintf(stderr, "%s\n", qUtf8Printable(reason));
    std::exit(1);
}

QStringList filesBelow(const QString& folder)
{
    QStringList paths;
    QDirIterator files(folder, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        paths.append(files.next());
    paths.sort();
    return paths;
}

void statEvery(const std::vector<QByteArray>& encodedPaths)
{
    for (const QByteArray& path : encodedPaths) {
        struct stat status = {};
        if (::stat(path.constData(), &status) != 0)
            giveUp(u"Cannot stat "_s + QFile::decodeName(path));
    }
}

QByteArray readWhole(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        giveUp(u"Cannot read "_s + path);
    return file.readAll();
}

void parseEvery(const QStringList& paths)
{
    for (const QString& path : paths) {
        if (QJsonDocument::fromJson(readWhole(path)).isNull())
            giveUp(u"Cannot parse "_s + path);
    }
}

std::vector<QJsonDocument> parsedEvery(const QStringList& paths)
{
    std::vector<QJsonDocument> documents;
    documents.reserve(static_cast<std::size_t>(paths.size()));
    for (const QString& path : paths)
        documents.push_back(QJsonDocument::fromJson(readWhole(path)));
    return documents;
}

void writeWithSaveFile(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        giveUp(u"Cannot write "_s + path);
}

void packEvery(const QString& folder, const QString& path)
{
    QByteArray archive;
    QBuffer buffer(&archive);
    buffer.open(QIODevice::WriteOnly);
    app::persistence::ZipWriter writer(buffer);
    for (const QString& file : filesBelow(folder)) {
        const QString name = file.sliced(folder.size() + 1);
        if (!writer.add(name, readWhole(file), app::persistence::ZipMethod::Stored))
            giveUp(u"Cannot pack "_s + file);
    }
    if (!writer.finish())
        giveUp(u"Cannot pack "_s + folder);
    writeWithSaveFile(path, archive);
    const QByteArray hash = QCryptographicHash::hash(archive, QCryptographicHash::Sha256);
    writeWithSaveFile(path + u".sha256"_s, hash.toHex());
}

} // namespace tw::bench
