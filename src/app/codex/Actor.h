#pragma once

#include "core/content/ContentObject.h"

namespace tw::app::codex {

/** Who has the world changed. */
enum class Actor
{
    Writer,
    Assistant,
};

/** Whether an object is to be left as it is: locked, or for an assistant excluded from AI. */
[[nodiscard]] inline bool isLeftAlone(const core::content::ContentObject& object, Actor actor)
{
    return object.isLocked() || (actor == Actor::Assistant && object.isAiExcluded());
}

} // namespace tw::app::codex
