#pragma once

class QSettings;

namespace tw::desktop::shell {

/**
 * Brings the settings of the product's former name over, once: what `store` holds already stays. Both stores
 * must have their fallbacks off. A former store that cannot be read is tried again at the next start.
 */
void migrateLegacySettings(QSettings& legacyStore, QSettings& store);

} // namespace tw::desktop::shell
