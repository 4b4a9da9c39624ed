#pragma once

#include "desktop/finder/FinderSource.h"

#include <QCoreApplication>
#include <QStringList>

class QSettings;

namespace tw::desktop::icons {
class IconSet;
}
namespace tw::desktop::settings {
class Shortcuts;
}

namespace tw::desktop::finder {

/**
 * Every command of the menus, found by words of its text or of its menus; those that were run from here last
 * come first until something is typed. They are kept under "palette/recent". The parts must outlive it.
 */
class CommandPalette final : public FinderSource
{
    Q_DECLARE_TR_FUNCTIONS(CommandPalette)

public:
    CommandPalette(const settings::Shortcuts& shortcuts, const icons::IconSet& icons, QSettings& settings);

    [[nodiscard]] QString title() const override;
    [[nodiscard]] QString hint() const override;
    [[nodiscard]] QString emptyText(const QString& typed) const override;
    [[nodiscard]] std::vector<FinderRow> rowsFor(const QString& typed) override;
    void choose(std::size_t row, FinderTarget target) override;

private:
    [[nodiscard]] std::vector<std::size_t> recentFirst() const;
    [[nodiscard]] std::vector<std::size_t> fitting(const QString& typed) const;
    [[nodiscard]] FinderRow rowOf(std::size_t position) const;

    const settings::Shortcuts& m_shortcuts;
    const icons::IconSet& m_icons;
    QSettings& m_settings;
    /** Positions among the shortcuts, as they are shown. */
    std::vector<std::size_t> m_shown;
};

} // namespace tw::desktop::finder
