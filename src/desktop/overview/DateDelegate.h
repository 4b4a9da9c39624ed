#pragma once

#include "desktop/shell/DeskContext.h"

#include <QStyledItemDelegate>

namespace tw::desktop::overview {

/**
 * Cells with a story date, which is typed as the writer says it; how it reads stands beneath the cell. Text
 * that is no date keeps the editor open, with the reason. The model takes and gives an instant in minutes, or
 * nothing.
 */
class DateDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    DateDelegate(const shell::DeskContext& desk, QObject* parent);

    QWidget* createEditor(
        QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void updateEditorGeometry(
        QWidget* editor, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    shell::DeskContext m_desk;
};

} // namespace tw::desktop::overview
