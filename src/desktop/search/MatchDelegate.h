#pragma once

#include <QStyledItemDelegate>

namespace tw::desktop::theme {
class ThemeManager;
}

namespace tw::desktop::search {

/** Rows of a SearchModel: a document with its count, or a match in its line, with what would replace it. */
class MatchDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    MatchDelegate(const theme::ThemeManager& themes, QObject* parent);

    void paint(
        QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    const theme::ThemeManager& m_themes;
};

} // namespace tw::desktop::search
