#pragma once

#include "core/foundation/Id.h"

#include <QHashFunctions>

namespace tw::desktop::codex {

/** What a row of the codex stands for: a category, an entity, or the group of entities without a category. */
struct CodexItem
{
    enum class Kind
    {
        /** No row: the space around the tree. */
        None,
        Category,
        Entity,
        Uncategorised,
    };

    Kind kind = Kind::None;
    core::CategoryId categoryId;
    core::ContentId entityId;

    [[nodiscard]] static CodexItem category(const core::CategoryId& id) { return {Kind::Category, id, {}}; }
    [[nodiscard]] static CodexItem entity(const core::ContentId& id) { return {Kind::Entity, {}, id}; }
    [[nodiscard]] static CodexItem uncategorised() { return {Kind::Uncategorised, {}, {}}; }

    [[nodiscard]] bool isCategory() const { return kind == Kind::Category; }
    [[nodiscard]] bool isEntity() const { return kind == Kind::Entity; }

    /** "category:<id>", "entity:<id>", "uncategorised"; empty for none. */
    [[nodiscard]] QString toString() const;
    /** None for any other text. */
    [[nodiscard]] static CodexItem fromString(QStringView text);

    friend bool operator==(const CodexItem&, const CodexItem&) = default;
    friend size_t qHash(const CodexItem& item, size_t seed = 0)
    {
        return qHashMulti(seed, static_cast<int>(item.kind), item.categoryId, item.entityId);
    }
};

} // namespace tw::desktop::codex
