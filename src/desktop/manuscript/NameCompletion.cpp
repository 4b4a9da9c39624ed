#include "desktop/manuscript/NameCompletion.h"

#include <QKeyEvent>
#include <QScreen>

#include <algorithm>

namespace tw::desktop::manuscript {

namespace {

constexpr int shownRows = 8;
constexpr int widthCharacters = 36;

} // namespace

NameCompletion::NameCompletion(const QString& description, QWidget* parent)
    : QListWidget(parent)
{
    setWindowFlags(Qt::ToolTip);
    setObjectName(QStringLiteral("nameCompletion"));
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setUniformItemSizes(true);
    setAccessibleName(description);
    connect(this, &QListWidget::itemClicked, this, [this](const QListWidgetItem* item) {
        hide();
        emit chosen(item->text());
    });
}

void NameCompletion::showNames(const QStringList& names, const QRect& globalLine)
{
    if (names.isEmpty()) {
        hide();
        return;
    }
    clear();
    addItems(names);
    setCurrentRow(0);
    const int rows = std::min<int>(shownRows, static_cast<int>(names.size()));
    resize(
        fontMetrics().averageCharWidth() * widthCharacters, rows * sizeHintForRow(0) + 2 * frameWidth() + 2);
    const QRect area = screen()->availableGeometry();
    QPoint place = globalLine.bottomLeft();
    if (place.y() + height() > area.bottom())
        place.setY(globalLine.top() - height());
    place.setX(std::min(place.x(), area.right() - width()));
    move(place);
    show();
}

bool NameCompletion::takeKey(const QKeyEvent& event)
{
    if (!isVisible())
        return false;
    switch (event.key()) {
    case Qt::Key_Up:
        setCurrentRow((currentRow() + count() - 1) % count());
        return true;
    case Qt::Key_Down:
        setCurrentRow((currentRow() + 1) % count());
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab: {
        const QString name = currentItem() ? currentItem()->text() : QString();
        hide();
        if (!name.isEmpty())
            emit chosen(name);
        return true;
    }
    case Qt::Key_Escape:
        hide();
        return true;
    default:
        return false;
    }
}

} // namespace tw::desktop::manuscript
