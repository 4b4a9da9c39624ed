#pragma once

#include <QHash>
#include <QString>

namespace tw::app::persistence {

/**
 * Size and time of the media of a project, so that what others added, replaced or removed can be told.
 * Pictures and sounds are too large to be compared byte by byte. Paths are relative to the project's root.
 */
class AssetStamps
{
public:
    /** Takes everything under the project's assets as it is now. */
    void record(const QString& projectFolder);
    /** Takes one file as it is now, after an import of our own. */
    void recordFile(const QString& projectFolder, const QString& relativePath);

    /** How many files were added, replaced or removed since. May run on any thread, on a copy of its own. */
    [[nodiscard]] qsizetype changesIn(const QString& projectFolder) const;

private:
    struct Stamp
    {
        qint64 size = 0;
        qint64 mtimeNs = 0;

        bool operator==(const Stamp&) const = default;
    };

    QHash<QString, Stamp> m_stamps;
};

} // namespace tw::app::persistence
