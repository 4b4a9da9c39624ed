#pragma once

#include "core/entity/Entity.h"

namespace tw::core::entity {

/** A named set of values that a new entity of a category starts with. */
struct EntityTemplate
{
    QString name;
    CategoryId categoryId;
    FieldValues fieldValues;

    friend bool operator==(const EntityTemplate&, const EntityTemplate&) = default;
};

} // namespace tw::core::entity
