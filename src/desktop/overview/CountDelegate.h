#pragma once

#include <QStyledItemDelegate>

namespace tw::desktop::overview {

/** Cells with a number from 0 on, which is typed: a cell has no room for a spin box's arrows. */
class CountDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QWidget* createEditor(
        QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

} // namespace tw::desktop::overview
