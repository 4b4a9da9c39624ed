#pragma once

#include "desktop/theme/Theme.h"

#include <QDBusVariant>
#include <QObject>

namespace tw::desktop::theme {

/**
 * Whether the user's desktop is light or dark. Asks the desktop's settings portal without waiting for it;
 * until it answers, and where there is none, the tone given at the start holds. Main thread.
 */
class SystemColorScheme final : public QObject
{
    Q_OBJECT

public:
    /** `assumed` holds until the portal answers. */
    explicit SystemColorScheme(Theme::Tone assumed, QObject* parent = nullptr);

    [[nodiscard]] Theme::Tone tone() const { return m_tone; }

signals:
    void toneChanged(tw::desktop::theme::Theme::Tone tone);

private slots:
    // Called by the portal's signal, which cannot be connected to by member pointer.
    void onSettingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    void setPreference(const QVariant& preference);

    Theme::Tone m_tone;
};

} // namespace tw::desktop::theme
