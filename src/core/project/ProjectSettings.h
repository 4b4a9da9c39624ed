#pragma once

#include <QString>

namespace tw::core::project {

struct SavedSearch
{
    QString name;
    QString query;

    friend bool operator==(const SavedSearch&, const SavedSearch&) = default;
};

/** Another project whose objects can be read, and referred to, from this one. */
struct LibraryMount
{
    /** A folder or a single file; relative paths are relative to the project. */
    QString path;
    bool isWritable = false;

    friend bool operator==(const LibraryMount&, const LibraryMount&) = default;
};

/** The state of the one-off move of codex properties to where they are inherited. */
struct PropertyMigration
{
    /** "pending", "applied" or "declined". */
    QString answer;

    friend bool operator==(const PropertyMigration&, const PropertyMigration&) = default;
};

} // namespace tw::core::project
