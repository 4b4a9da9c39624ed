#pragma once

#include "desktop/icons/Icon.h"

#include <QIcon>
#include <QObject>

#include <memory>

namespace tw::desktop::theme {
class ThemeManager;
}

namespace tw::desktop::icons {

struct IconColors;

/**
 * Gives out the program's icons in the colours of the theme. The icons follow a change of theme by themselves
 * and are drawn anew at every size and scale; they stay valid after the set is gone. Owned by main; main
 * thread only.
 */
class IconSet final : public QObject
{
    Q_OBJECT

public:
    /** `themes` must outlive the set. */
    explicit IconSet(const theme::ThemeManager& themes, QObject* parent = nullptr);
    ~IconSet() override;

    [[nodiscard]] QIcon icon(Icon icon) const;
    [[nodiscard]] QIcon icon(core::content::ContentKind kind) const { return this->icon(iconForKind(kind)); }

    /** The same drawing in a colour of its own, for example of a plot thread or a warning; it keeps that
     * colour. */
    [[nodiscard]] QIcon icon(Icon icon, const QColor& color) const;

private:
    void takeUpTheme();

    const theme::ThemeManager& m_themes;
    std::shared_ptr<IconColors> m_colors;
};

/** The program's own mark, for windows and the desktop; its colours are its own. */
[[nodiscard]] QIcon applicationIcon();

} // namespace tw::desktop::icons
