#include "desktop/theme/InterfaceSize.h"

#include <QEvent>
#include <QFont>
#include <QWidget>

namespace tw::desktop::theme {

namespace {

/** A child of the widget. */
class SizeFollower final : public QObject
{
public:
    SizeFollower(QWidget& widget, qreal factor)
        : QObject(&widget)
        , m_widget(widget)
        , m_factor(factor)
    {
        takeUpSize();
        // The size of the interface comes down through the parents.
        widget.parentWidget()->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::FontChange)
            takeUpSize();
        return QObject::eventFilter(watched, event);
    }

private:
    void takeUpSize()
    {
        QFont font = m_widget.font();
        font.setPointSizeF(m_widget.parentWidget()->font().pointSizeF() * m_factor);
        m_widget.setFont(font);
    }

    QWidget& m_widget;
    qreal m_factor;
};

} // namespace

void followInterfaceSize(QWidget& widget, qreal factor)
{
    new SizeFollower(widget, factor);
}

} // namespace tw::desktop::theme
