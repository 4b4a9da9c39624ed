#pragma once

#include "app/persistence/zip/ZipWriter.h"

#include <QBuffer>
#include <QList>
#include <QtEndian>

#include <gtest/gtest.h>

#include <cstring>

namespace tw::app::persistence {

struct ArchiveFile
{
    QString name;
    QByteArray data;
    ZipMethod method = ZipMethod::Stored;
};

inline QByteArray makeArchive(const QList<ArchiveFile>& files)
{
    QByteArray archive;
    QBuffer buffer(&archive);
    EXPECT_TRUE(buffer.open(QIODevice::WriteOnly));
    ZipWriter writer(buffer);
    for (const ArchiveFile& file : files)
        EXPECT_TRUE(writer.add(file.name, file.data, file.method).isOk());
    EXPECT_TRUE(writer.finish().isOk());
    return archive;
}

/** Puts a number over the bytes of an archive. */
template <class Number>
void patch(QByteArray& archive, qsizetype offset, Number number)
{
    const Number littleEndian = qToLittleEndian(number);
    std::memcpy(archive.data() + offset, &littleEndian, sizeof littleEndian);
}

} // namespace tw::app::persistence
