#pragma once

#include "app/persistence/codec/Record.h"
#include "core/content/ContentObject.h"

#include <memory>

namespace tw::app::persistence {

/** How the own keys of one kind are written and read; the keys that all kinds have stand in ObjectCodec.cpp.
 */
struct KindCodec
{
    /** Into the object that the writer has open. */
    void (*write)(JsonWriter& writer, const core::content::ContentObject& object);
    /** The object of that id with what the file says about it. Never none. */
    std::unique_ptr<core::content::ContentObject> (*read)(
        const core::ContentId& id, const JsonNode& json, TextPool& texts);
};

[[nodiscard]] KindCodec documentCodec();
[[nodiscard]] KindCodec entityCodec();
[[nodiscard]] KindCodec spreadsheetCodec();
[[nodiscard]] KindCodec chartCodec();
[[nodiscard]] KindCodec mapCodec();
[[nodiscard]] KindCodec timelineCodec();
[[nodiscard]] KindCodec timelineEventCodec();
[[nodiscard]] KindCodec mediaCodec();
[[nodiscard]] KindCodec sourceCodec();
[[nodiscard]] KindCodec taskCodec();
[[nodiscard]] KindCodec canvasCodec();
[[nodiscard]] KindCodec commentCodec();
[[nodiscard]] KindCodec languageCodec();
[[nodiscard]] KindCodec randomTableCodec();
[[nodiscard]] KindCodec statBlockCodec();

/** The codec of a kind whose class itself is described as a record; `blank` makes a fresh object of an id. */
template <class Object, auto Blank>
[[nodiscard]] KindCodec objectKindCodec()
{
    return {
        [](JsonWriter& writer, const core::content::ContentObject& object) {
            writeEntries(writer, static_cast<const Object&>(object));
        },
        [](const core::ContentId& id, const JsonNode& json,
           TextPool& texts) -> std::unique_ptr<core::content::ContentObject> {
            std::unique_ptr<Object> object = Blank(id);
            readEntries(json, *object, texts);
            return object;
        }};
}

/** The codec of a kind that keeps all its data in one record, got by details(). */
template <class Object, class Details>
[[nodiscard]] KindCodec detailsKindCodec()
{
    return {
        [](JsonWriter& writer, const core::content::ContentObject& object) {
            writeEntries(writer, static_cast<const Object&>(object).details());
        },
        [](const core::ContentId& id, const JsonNode& json,
           TextPool& texts) -> std::unique_ptr<core::content::ContentObject> {
            Details details;
            readEntries(json, details, texts);
            return std::make_unique<Object>(id, std::move(details));
        }};
}

} // namespace tw::app::persistence
