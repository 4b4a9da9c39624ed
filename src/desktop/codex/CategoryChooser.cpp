#include "desktop/codex/CategoryChooser.h"

#include "core/entity/Schema.h"
#include "desktop/codex/CategoryPaths.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QVBoxLayout>

namespace tw::desktop::codex {

using core::CategoryId;

namespace {

constexpr QSize popupSize(320, 340);
constexpr int idRole = Qt::UserRole;

} // namespace

CategoryChooser::CategoryChooser(
    const core::project::Project& project, const core::entity::Entity& entity, QWidget* parent)
    : QFrame(parent, Qt::Popup)
    , m_filter(new QLineEdit(this))
    , m_list(new QListWidget(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setFrameShape(QFrame::StyledPanel);
    resize(popupSize);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->addWidget(m_filter);
    layout->addWidget(m_list);
    m_filter->setPlaceholderText(tr("Find a category"));
    m_filter->setAccessibleName(m_filter->placeholderText());
    m_list->setAccessibleName(tr("Categories"));
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->addItem(tr("No category"));
    m_list->setCurrentRow(0);
    for (const CategoryChoice& choice : categoryChoices(project)) {
        if (!core::entity::checkMoveOfEntity(project, entity, choice.id))
            continue;
        auto* const item = new QListWidgetItem(choice.path, m_list);
        item->setData(idRole, choice.id.toString());
        item->setToolTip(choice.path);
        if (choice.id == entity.categoryId())
            m_list->setCurrentItem(item);
    }
    m_filter->installEventFilter(this);
    setFocusProxy(m_filter);
    connect(m_filter, &QLineEdit::textChanged, this, &CategoryChooser::filter);
    connect(m_filter, &QLineEdit::returnPressed, this, &CategoryChooser::choose);
    connect(m_list, &QListWidget::itemClicked, this, &CategoryChooser::choose);
}

void CategoryChooser::popUpUnder(const QWidget& anchor)
{
    move(anchor.mapToGlobal(anchor.rect().bottomLeft()));
    show();
    m_filter->setFocus(Qt::PopupFocusReason);
    m_list->scrollToItem(m_list->currentItem());
}

bool CategoryChooser::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            // The keyboard stays in the filter while the arrows walk the list.
            QCoreApplication::sendEvent(m_list, event);
            return true;
        }
    }
    return QFrame::eventFilter(watched, event);
}

void CategoryChooser::filter(const QString& text)
{
    QListWidgetItem* first = nullptr;
    for (int row = 0; row < m_list->count(); ++row) {
        QListWidgetItem* const item = m_list->item(row);
        item->setHidden(!item->text().contains(text, Qt::CaseInsensitive));
        if (!first && !item->isHidden())
            first = item;
    }
    if (!m_list->currentItem() || m_list->currentItem()->isHidden())
        m_list->setCurrentItem(first);
}

void CategoryChooser::choose()
{
    const QListWidgetItem* const item = m_list->currentItem();
    if (!item || item->isHidden())
        return;
    const auto id = CategoryId::fromString(item->data(idRole).toString());
    close();
    emit chosen(id);
}

} // namespace tw::desktop::codex
