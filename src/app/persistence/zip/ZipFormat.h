#pragma once

#include <QtGlobal>

namespace tw::app::persistence::zip {

/** The records of a ZIP archive: what marks them, how long they are before their names, what we put in. */
inline constexpr quint32 localSignature = 0x04034B50;
inline constexpr quint32 directorySignature = 0x02014B50;
inline constexpr quint32 endSignature = 0x06054B50;

inline constexpr qsizetype localSize = 30;
inline constexpr qsizetype directorySize = 46;
inline constexpr qsizetype endSize = 22;

inline constexpr quint16 version = 20;
/** 1 January 1980: an archive tells nothing of when it was made, so the same files give the same bytes. */
inline constexpr quint16 fixedDate = 0x0021;

inline constexpr quint16 methodStored = 0;
inline constexpr quint16 methodDeflated = 8;

/** What the fields of the records can hold. The largest value of a size marks an extended archive. */
inline constexpr quint64 mostEntries = 0xFFFF;
inline constexpr qint64 longestName = 0xFFFF;
inline constexpr quint64 largestOffset = 0xFFFFFFFE;

} // namespace tw::app::persistence::zip
