#pragma once

#include "core/foundation/Id.h"
#include "desktop/shell/DeskContext.h"

class QWidget;

namespace tw::desktop::codex {

/** Asks for a new field of an entity's own and adds it as one step. */
void addOwnField(const shell::DeskContext& desk, const core::ContentId& entityId, QWidget* parent);

/** Asks how an own field is to be from now on; its value stays. */
void editOwnField(
    const shell::DeskContext& desk, const core::ContentId& entityId, const QString& key, QWidget* parent);

/** Its value stays and is listed as hidden. */
void removeOwnField(const shell::DeskContext& desk, const core::ContentId& entityId, const QString& key);

} // namespace tw::desktop::codex
