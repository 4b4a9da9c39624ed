#pragma once

#include <QByteArray>
#include <QJsonDocument>
#include <QString>
#include <QStringList>

#include <vector>

/**
 * What the program is measured against: the plainest code that does the unavoidable part of the work, on one
 * thread. Any failure ends the benchmark with a message.
 */
namespace tw::bench {

/** Paths of all files below a folder, those of other names than JSON files too. */
[[nodiscard]] QStringList filesBelow(const QString& folder);

/** One ::stat for each path. */
void statEvery(const std::vector<QByteArray>& encodedPaths);

/** Reads and parses one file after another. */
void parseEvery(const QStringList& paths);
[[nodiscard]] std::vector<QJsonDocument> parsedEvery(const QStringList& paths);

/** One QSaveFile, which has the bytes reach the medium before it takes the file's place. */
void writeWithSaveFile(const QString& path, const QByteArray& bytes);

/** Packs all files below a folder into an archive at the path, one after another, and takes its hash. */
void packEvery(const QString& folder, const QString& path);

[[nodiscard]] QByteArray readWhole(const QString& path);

/** Prints why the benchmark cannot go on, and ends it. */
[[noreturn]] void giveUp(const QString& reason);

} // namespace tw::bench
