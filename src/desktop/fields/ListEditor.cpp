#include "desktop/fields/ListEditor.h"

#include "desktop/icons/IconSet.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QPaintEvent>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace tw::desktop::fields {

using icons::Icon;

namespace {

constexpr int leastLines = 5;
constexpr int padding = 12;

} // namespace

ListEditor::ListEditor(
    const shell::DeskContext& desk, const QString& title, const QString& placeholder, QWidget* parent)
    : QWidget(parent)
    , m_list(new QListWidget(this))
    , m_placeholder(placeholder)
    , m_buttons(new QVBoxLayout)
    , m_up(new QPushButton(desk.icons.icon(Icon::MoveUp), tr("Move Up"), this))
    , m_down(new QPushButton(desk.icons.icon(Icon::MoveDown), tr("Move Down"), this))
    , m_remove(new QPushButton(desk.icons.icon(Icon::Remove), tr("Remove"), this))
{
    m_list->setAccessibleName(title);
    m_list->setMinimumHeight(fontMetrics().lineSpacing() * leastLines);
    m_list->viewport()->installEventFilter(this);
    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_list, 1);
    layout->addLayout(m_buttons);
    for (QPushButton* const button : {m_up, m_down, m_remove}) {
        button->setAutoDefault(false);
        m_buttons->addWidget(button);
    }
    m_buttons->addStretch();
    connect(m_up, &QPushButton::clicked, this, [this] { moveCurrent(-1); });
    connect(m_down, &QPushButton::clicked, this, [this] { moveCurrent(1); });
    connect(m_remove, &QPushButton::clicked, this, [this] { emit removeRequested(m_list->currentRow()); });
    connect(m_list, &QListWidget::currentRowChanged, this, &ListEditor::refresh);
    connect(m_list->model(), &QAbstractItemModel::rowsInserted, this, &ListEditor::refresh);
    connect(m_list->model(), &QAbstractItemModel::rowsRemoved, this, &ListEditor::refresh);
    refresh();
}

QPushButton* ListEditor::addButton(const QString& text)
{
    auto* const button = new QPushButton(text, this);
    button->setAutoDefault(false);
    m_buttons->insertWidget(m_buttons->indexOf(m_up), button);
    // The order of the keyboard is that of the eye.
    setTabOrder(m_list, button);
    setTabOrder(button, m_up);
    return button;
}

void ListEditor::moveCurrent(int step)
{
    const int row = m_list->currentRow();
    QListWidgetItem* const item = m_list->takeItem(row);
    m_list->insertItem(row + step, item);
    m_list->setCurrentItem(item);
}

void ListEditor::refresh()
{
    const int row = m_list->currentRow();
    m_up->setEnabled(row > 0);
    m_down->setEnabled(row >= 0 && row < m_list->count() - 1);
    m_remove->setEnabled(row >= 0);
    m_list->viewport()->update();
}

bool ListEditor::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Paint && m_list->count() == 0) {
        QPainter painter(m_list->viewport());
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(
            m_list->viewport()->rect().adjusted(padding, 0, -padding, 0), Qt::AlignCenter | Qt::TextWordWrap,
            m_placeholder);
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace tw::desktop::fields
