#pragma once

#include "app/persistence/codec/ParseScratch.h"
#include "core/foundation/Result.h"
#include "core/taxonomy/Category.h"

#include <QByteArray>

namespace tw::app::persistence {

/** Appends the bytes of the category's file. */
void appendCategory(QByteArray& output, const core::taxonomy::Category& category);

[[nodiscard]] QByteArray serializeCategory(const core::taxonomy::Category& category);

/** The category that a file's bytes describe; failures name the path. May run on any thread. */
[[nodiscard]] core::Result<core::taxonomy::Category> parseCategory(
    const QByteArray& bytes, const QString& path, ParseScratch& scratch);

} // namespace tw::app::persistence
