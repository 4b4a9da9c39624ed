#include "desktop/theme/SystemColorScheme.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace tw::desktop::theme {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1String portalService = "org.freedesktop.portal.Desktop"_L1;
constexpr QLatin1String portalPath = "/org/freedesktop/portal/desktop"_L1;
constexpr QLatin1String settingsInterface = "org.freedesktop.portal.Settings"_L1;
constexpr QLatin1String appearanceGroup = "org.freedesktop.appearance"_L1;
constexpr QLatin1String colorSchemeKey = "color-scheme"_L1;

// The portal's values; 0 states no preference.
constexpr uint prefersDark = 1;
constexpr uint prefersLight = 2;

} // namespace

SystemColorScheme::SystemColorScheme(Theme::Tone assumed, QObject* parent)
    : QObject(parent)
    , m_tone(assumed)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.connect(
        QString(portalService), QString(portalPath), QString(settingsInterface), u"SettingChanged"_s, this,
        SLOT(onSettingChanged(QString, QString, QDBusVariant)));

    QDBusMessage read = QDBusMessage::createMethodCall(
        QString(portalService), QString(portalPath), QString(settingsInterface), u"Read"_s);
    read << QString(appearanceGroup) << QString(colorSchemeKey);
    auto* watcher = new QDBusPendingCallWatcher(bus.asyncCall(read), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* finished) {
        const QDBusPendingReply<QDBusVariant> reply = *finished;
        finished->deleteLater();
        if (reply.isValid())
            setPreference(reply.value().variant());
    });
}

void SystemColorScheme::onSettingChanged(const QString& group, const QString& key, const QDBusVariant& value)
{
    if (group == appearanceGroup && key == colorSchemeKey)
        setPreference(value.variant());
}

void SystemColorScheme::setPreference(const QVariant& preference)
{
    // Reading wraps the value in one more variant than the change signal does.
    const QVariant value =
        preference.canConvert<QDBusVariant>() ? preference.value<QDBusVariant>().variant() : preference;
    const uint scheme = value.toUInt();
    if (scheme != prefersDark && scheme != prefersLight)
        return;
    const Theme::Tone tone = scheme == prefersDark ? Theme::Tone::Dark : Theme::Tone::Light;
    if (tone == m_tone)
        return;
    m_tone = tone;
    emit toneChanged(tone);
}

} // namespace tw::desktop::theme
