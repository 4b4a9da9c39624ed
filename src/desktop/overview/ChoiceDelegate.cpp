#include "desktop/overview/ChoiceDelegate.h"

#include <QComboBox>

namespace tw::desktop::overview {

ChoiceDelegate::ChoiceDelegate(std::function<QStringList()> choices, QObject* parent)
    : QStyledItemDelegate(parent)
    , m_choices(std::move(choices))
{}

QWidget* ChoiceDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex&) const
{
    auto* const box = new QComboBox(parent);
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->addItems(m_choices());
    return box;
}

void ChoiceDelegate::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    static_cast<QComboBox*>(editor)->setEditText(index.data(Qt::EditRole).toString());
}

void ChoiceDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    model->setData(index, static_cast<QComboBox*>(editor)->currentText(), Qt::EditRole);
}

} // namespace tw::desktop::overview
