#include "desktop/overview/CountDelegate.h"

#include <QSpinBox>

#include <limits>

namespace tw::desktop::overview {

QWidget* CountDelegate::createEditor(
    QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    QWidget* const editor = QStyledItemDelegate::createEditor(parent, option, index);
    if (auto* const box = qobject_cast<QSpinBox*>(editor)) {
        box->setButtonSymbols(QAbstractSpinBox::NoButtons);
        box->setRange(0, std::numeric_limits<int>::max());
        box->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    return editor;
}

} // namespace tw::desktop::overview
