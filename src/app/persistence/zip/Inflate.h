#pragma once

#include "core/foundation/Result.h"

#include <QByteArray>
#include <QByteArrayView>

namespace tw::app::persistence {

/**
 * Unpacks a raw deflate stream (RFC 1951) that must give exactly `size` bytes and end with its last byte.
 * Anything else fails: damaged or truncated data, other sizes, bytes left over. Reads and writes stay in
 * bounds whatever the data; the memory needed is `size`, so judge a size from outside before. Any thread.
 */
[[nodiscard]] core::Result<QByteArray> inflate(QByteArrayView compressed, qsizetype size);

} // namespace tw::app::persistence
