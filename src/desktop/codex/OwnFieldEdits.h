#pragma once

#include "core/foundation/Id.h"
#include "desktop/shell/DeskContext.h"

class QWidget;

namespace tw::desktop::codex {

// Everything comes by value: while a dialog is open, the page that asked may go.

/** Asks for a new field of an entity's own and adds it as one step. */
void addOwnField(shell::DeskContext desk, core::ContentId entityId, QWidget* parent);

/** Asks how an own field is to be from now on; its value stays. */
void editOwnField(shell::DeskContext desk, core::ContentId entityId, QString key, QWidget* parent);

/** Its value stays and is listed as hidden. */
void removeOwnField(shell::DeskContext desk, core::ContentId entityId, QString key);

} // namespace tw::desktop::codex
