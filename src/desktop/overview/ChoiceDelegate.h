#pragma once

#include <QStringList>
#include <QStyledItemDelegate>

#include <functional>

namespace tw::desktop::overview {

/** Cells whose text is chosen from a list, or typed. */
class ChoiceDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /** `choices` is asked each time a cell is edited. */
    ChoiceDelegate(std::function<QStringList()> choices, QObject* parent);

    QWidget* createEditor(
        QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

private:
    std::function<QStringList()> m_choices;
};

} // namespace tw::desktop::overview
