#pragma once

#include <QLayout>

#include <memory>
#include <vector>

namespace tw::desktop::fields {

/** Lays items out as words in lines. Can let the last one take what is left of its line. */
class FlowLayout final : public QLayout
{
    Q_OBJECT

public:
    enum class LastItem
    {
        KeepsItsSize,
        FillsItsLine,
    };

    FlowLayout(LastItem lastItem, int spacing, QWidget* parent);
    ~FlowLayout() override;

    /** Puts a widget before the item at that position. */
    void insertWidget(int index, QWidget* widget);

    void addItem(QLayoutItem* item) override;
    int count() const override;
    QLayoutItem* itemAt(int index) const override;
    QLayoutItem* takeAt(int index) override;
    Qt::Orientations expandingDirections() const override;
    bool hasHeightForWidth() const override;
    int heightForWidth(int width) const override;
    QSize minimumSize() const override;
    QSize sizeHint() const override;
    void setGeometry(const QRect& rect) override;

private:
    enum class Pass
    {
        Measure,
        Place,
    };

    /** Gives the height that the items take. */
    int layOut(const QRect& rect, Pass pass) const;

    LastItem m_lastItem;
    std::vector<std::unique_ptr<QLayoutItem>> m_items;
};

} // namespace tw::desktop::fields
