#include "desktop/fields/TabOrder.h"

#include <QLayout>
#include <QScrollArea>

namespace tw::desktop::fields {

namespace {

void collect(QWidget& widget, QList<QWidget*>& controls);

void collectFrom(const QLayout& layout, QList<QWidget*>& controls)
{
    for (int index = 0; index < layout.count(); ++index) {
        QLayoutItem& item = *layout.itemAt(index);
        if (QWidget* const widget = item.widget())
            collect(*widget, controls);
        else if (const QLayout* const inner = item.layout())
            collectFrom(*inner, controls);
    }
}

void collect(QWidget& widget, QList<QWidget*>& controls)
{
    if ((widget.focusPolicy() & Qt::TabFocus) && !widget.focusProxy())
        controls.append(&widget);
    if (const auto* const scroll = qobject_cast<QScrollArea*>(&widget); scroll && scroll->widget())
        collect(*scroll->widget(), controls);
    else if (const QLayout* const layout = widget.layout())
        collectFrom(*layout, controls);
}

} // namespace

void setTabOrderAsLaidOut(QWidget& area)
{
    QList<QWidget*> controls;
    collect(area, controls);
    for (qsizetype index = 1; index < controls.size(); ++index)
        QWidget::setTabOrder(controls[index - 1], controls[index]);
}

} // namespace tw::desktop::fields
