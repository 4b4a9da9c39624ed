#pragma once

#include "app/persistence/codec/ParseScratch.h"
#include "core/content/ContentObject.h"
#include "core/foundation/Result.h"

#include <QByteArray>

#include <memory>

namespace tw::app::persistence {

/** Appends the bytes of the object's file. May run on any thread while nobody changes the object. */
void appendObject(QByteArray& output, const core::content::ContentObject& object);

[[nodiscard]] QByteArray serializeObject(const core::content::ContentObject& object);

/** The object that a file's bytes describe; failures name the path. May run on any thread. */
[[nodiscard]] core::Result<std::unique_ptr<core::content::ContentObject>> parseObject(
    const QByteArray& bytes, const QString& path, ParseScratch& scratch);

} // namespace tw::app::persistence
