#pragma once

#include "app/persistence/merge/FileMerge.h"
#include "core/foundation/SequenceDiff.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace tw::desktop::review {

/** Where a line of a comparison stands. */
enum class LineSide
{
    Both,
    Mine,
    Theirs,
    Gap, ///< Lines that are the same were left out here.
};

struct DifferenceLine
{
    LineSide side = LineSide::Both;
    QString text;
    /** The words that the other side has not, where it has a line in this one's place. */
    std::vector<core::foundation::IndexRange> words = {};

    friend bool operator==(const DifferenceLine&, const DifferenceLine&) = default;
};

/**
 * The lines of a project file as a person reads them: names and values without the signs of JSON, and a text
 * of several paragraphs as these paragraphs.
 */
[[nodiscard]] QStringList readableLines(const QByteArray& json);

/** What the version here and the one on disk do not have in common, with a little of what is around it. */
[[nodiscard]] std::vector<DifferenceLine> fileDifferences(const app::persistence::FileMerge& file);

} // namespace tw::desktop::review
