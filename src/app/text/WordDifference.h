#pragma once

#include "core/foundation/SequenceDiff.h"

#include <QString>
#include <QStringView>

#include <vector>

namespace tw::app::text {

using core::foundation::IndexRange;

/** Whole lines that differ between two texts, and what within them. Offsets are characters of the whole
 * texts. */
struct ChangedPassage
{
    IndexRange before;
    IndexRange after;
    /** The words that differ, in order. */
    std::vector<core::foundation::DiffHunk> words;
};

/** What turns one text into another, word by word. Work is bounded also for texts that have nothing in
 * common. */
[[nodiscard]] std::vector<ChangedPassage> compareTexts(QStringView before, QStringView after);

/** `after` with one passage as it was in `before`. */
[[nodiscard]] QString withPassageRestored(
    QStringView before, const QString& after, const ChangedPassage& passage);

enum class PieceKind
{
    Same,
    Removed,
    Added,
};

/** A stretch of both texts laid over each other, as a reader of the difference sees it. */
struct DifferencePiece
{
    PieceKind kind = PieceKind::Same;
    QString text;
    /** The index of the passage; -1 outside. */
    int passage = -1;

    friend bool operator==(const DifferencePiece&, const DifferencePiece&) = default;
};

[[nodiscard]] std::vector<DifferencePiece> layOver(
    QStringView before, QStringView after, const std::vector<ChangedPassage>& passages);

} // namespace tw::app::text
