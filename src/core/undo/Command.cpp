#include "core/undo/Command.h"

namespace tw::core::undo {

Command::~Command() = default;

} // namespace tw::core::undo
