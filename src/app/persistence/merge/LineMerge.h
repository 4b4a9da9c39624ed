#pragma once

#include "core/foundation/SequenceDiff.h"

#include <QByteArray>

#include <vector>

namespace tw::app::persistence {

/** A region that both sides changed differently: its lines in each of the three texts. */
struct MergeConflict
{
    core::foundation::IndexRange base;
    core::foundation::IndexRange mine;
    core::foundation::IndexRange theirs;

    friend bool operator==(const MergeConflict&, const MergeConflict&) = default;
};

struct LineMerge
{
    /** In conflicts both versions stand between lines of "<<<<<<<", "=======" and ">>>>>>>". */
    QByteArray text;
    std::vector<MergeConflict> conflicts;

    [[nodiscard]] bool isClean() const { return conflicts.empty(); }
};

/**
 * Merges two edits of one text line by line. Changes that touch different lines of the base both apply, those
 * of neighbouring lines too; the same change on both sides applies once; anything else is a conflict, and so
 * are two different insertions at one place. A missing final newline survives. Any thread.
 */
[[nodiscard]] LineMerge mergeLines(const QByteArray& base, const QByteArray& mine, const QByteArray& theirs);

} // namespace tw::app::persistence
