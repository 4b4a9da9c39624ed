#pragma once

#include "desktop/shell/DeskContext.h"

#include <QStyledItemDelegate>

namespace tw::desktop::overview {

/** Documents as index cards: title, synopsis, status and words; title and synopsis are edited on the card. */
class CardDelegate final : public QStyledItemDelegate
{
    Q_OBJECT

public:
    CardDelegate(const shell::DeskContext& desk, QObject* parent);

    /** Of a card with the space around it. */
    [[nodiscard]] static QSize cellSize(const QFontMetrics& metrics);

    void paint(
        QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(
        QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    void updateEditorGeometry(
        QWidget* editor, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    void paintCard(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index) const;

    shell::DeskContext m_desk;
};

} // namespace tw::desktop::overview
