#include "desktop/shell/SettingsMigration.h"

#include <QSettings>
#include <QStringList>

namespace tw::desktop::shell {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1StringView markerKey = "migration/fromTarnwick"_L1;

} // namespace

void migrateLegacySettings(QSettings& legacyStore, QSettings& store)
{
    if (store.contains(markerKey))
        return;
    const QStringList keys = legacyStore.allKeys();
    if (legacyStore.status() == QSettings::AccessError)
        return;
    for (const QString& key : keys) {
        if (!store.contains(key))
            store.setValue(key, legacyStore.value(key));
    }
    store.setValue(markerKey, u"true"_s);
    store.sync();
}

} // namespace tw::desktop::shell
