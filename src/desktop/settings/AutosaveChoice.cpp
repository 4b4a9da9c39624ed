#include "desktop/settings/AutosaveChoice.h"

#include <QSettings>

namespace tw::desktop::settings {

using namespace Qt::Literals::StringLiterals;
using shell::AutosaveSettings;

namespace {

constexpr QLatin1StringView onKey = "editor/autosave"_L1;
constexpr QLatin1StringView intervalKey = "editor/autosaveIntervalSeconds"_L1;

} // namespace

AutosaveSettings autosaveFrom(const QSettings& settings)
{
    AutosaveSettings autosave;
    autosave.isOn = settings.value(onKey, u"true"_s).toString() == u"true";
    const QString standard = QString::number(autosave.interval.count());
    autosave.interval = app::persistence::autosaveInterval(settings.value(intervalKey, standard).toString());
    return autosave;
}

void storeAutosave(QSettings& settings, const AutosaveSettings& autosave)
{
    settings.setValue(onKey, autosave.isOn ? u"true"_s : u"false"_s);
    settings.setValue(intervalKey, QString::number(autosave.interval.count()));
}

} // namespace tw::desktop::settings
