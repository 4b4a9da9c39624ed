#pragma once

#include "core/foundation/Id.h"

#include <QString>

#include <optional>
#include <utility>
#include <vector>

class QSettings;

namespace tw::desktop::manuscript {

/** Where somebody was in a text. */
struct ReadingPlace
{
    /** Of the cursor, and the length of the text then, in characters. */
    int position = 0;
    int length = 0;
    /** Of the cursor's line below the top of the window, in pixels. */
    int top = 0;

    /** The position in a text of another length, as near as can be told. */
    [[nodiscard]] int positionIn(int presentLength) const;

    friend bool operator==(const ReadingPlace&, const ReadingPlace&) = default;
};

/**
 * Where the writer was in the documents visited last, over the ends of the program: kept in the settings
 * under "editor/places", the newest first; the oldest are forgotten.
 */
class ReadingPlaces
{
public:
    static constexpr qsizetype mostPlaces = 300;

    /** `settings` must outlive this. A project is known by its path. */
    ReadingPlaces(QSettings& settings, const QString& projectPath);

    [[nodiscard]] std::optional<ReadingPlace> find(const core::ContentId& documentId) const;
    /** The document of these that was visited last, and where; none when none of them is known. */
    [[nodiscard]] std::optional<std::pair<core::ContentId, ReadingPlace>> latestOf(
        const std::vector<core::ContentId>& documentIds) const;
    void remember(const core::ContentId& documentId, const ReadingPlace& place);

private:
    [[nodiscard]] QString keyOf(const core::ContentId& documentId) const;

    QSettings& m_settings;
    QString m_project;
};

} // namespace tw::desktop::manuscript
