#pragma once

#include <QStyledItemDelegate>

namespace tw::desktop::theme {
class ThemeManager;
}

namespace tw::desktop::trees {

/** Draws a row of a navigator: icon and title, then at the end a status dot and a quiet count. */
class TreeRowDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    TreeRowDelegate(const theme::ThemeManager& themes, QObject* parent);

    void paint(
        QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    [[nodiscard]] int trailingWidth(const QStyleOptionViewItem& option, const QModelIndex& index) const;

    const theme::ThemeManager& m_themes;
};

} // namespace tw::desktop::trees
