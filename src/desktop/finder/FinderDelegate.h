#pragma once

#include <QStyledItemDelegate>

namespace tw::desktop::theme {
class ThemeManager;
}

namespace tw::desktop::finder {

/** Paints a row of a finder: icon, text, place, and the note at the end. */
class FinderDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    FinderDelegate(const theme::ThemeManager& themes, QObject* parent);

    void paint(
        QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    const theme::ThemeManager& m_themes;
};

} // namespace tw::desktop::finder
