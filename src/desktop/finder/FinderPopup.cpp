#include "desktop/finder/FinderPopup.h"

#include "desktop/finder/FinderDelegate.h"
#include "desktop/finder/FinderModel.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMainWindow>
#include <QVBoxLayout>

#include <algorithm>

namespace tw::desktop::finder {

namespace {

constexpr int shownRows = 12;
constexpr int widthCharacters = 84;
constexpr int margin = 8;
/** What stays free of the window at either side. */
constexpr int windowMargin = 24;

} // namespace

FinderPopup::FinderPopup(const theme::ThemeManager& themes, QWidget* window)
    : QFrame(window)
    , m_line(new QLineEdit(this))
    , m_list(new QListView(this))
    , m_empty(new QLabel(this))
    , m_model(new FinderModel(this))
{
    setObjectName(QStringLiteral("finderPopup"));
    hide();
    m_line->setClearButtonEnabled(true);
    m_list->setModel(m_model);
    m_list->setItemDelegate(new FinderDelegate(themes, m_list));
    m_list->setUniformItemSizes(true);
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setAccessibleName(tr("What was found"));
    m_empty->setWordWrap(true);
    m_empty->setMargin(margin);
    m_empty->setForegroundRole(QPalette::PlaceholderText);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(margin / 2);
    layout->addWidget(m_line);
    layout->addWidget(m_list);
    layout->addWidget(m_empty);

    connect(m_line, &QLineEdit::textChanged, this, &FinderPopup::refill);
    connect(m_list, &QListView::clicked, this, [this] {
        const bool isBeside = QApplication::keyboardModifiers().testFlag(Qt::ControlModifier);
        choose(isBeside ? FinderTarget::OtherPane : FinderTarget::Here);
    });
    connect(
        m_list->selectionModel(), &QItemSelectionModel::currentChanged, this, &FinderPopup::announceCurrent);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { followFocus(now); });
}

FinderPopup::~FinderPopup()
{
    // Its widget loses the keyboard while it dies; nobody is left to follow it.
    qApp->disconnect(this);
}

void FinderPopup::open(FinderSource& source)
{
    if (!isVisible()) {
        m_focusBefore = QApplication::focusWidget();
        // A click beside it and the size of the window, wherever in the window that happens.
        qApp->installEventFilter(this);
    }
    fill(source);
    show();
    raise();
    window()->activateWindow();
    m_line->setFocus(Qt::ShortcutFocusReason);
}

void FinderPopup::fill(FinderSource& source)
{
    m_source = &source;
    setWindowTitle(source.title());
    setAccessibleName(source.title());
    m_line->setAccessibleName(source.title());
    m_line->setPlaceholderText(source.hint());
    m_line->clear();
    refill();
}

void FinderPopup::leave()
{
    if (!m_source)
        return;
    // First, so that nobody closes twice.
    m_source = nullptr;
    qApp->removeEventFilter(this);
    // Before the line goes, which would hand the keyboard to whoever is next.
    if (m_focusBefore)
        m_focusBefore->setFocus(Qt::PopupFocusReason);
    hide();
}

void FinderPopup::followFocus(QWidget* now)
{
    if (!isVisible() || !now || isAncestorOf(now))
        return;
    // Somebody else has asked for the keyboard and keeps it.
    m_focusBefore = now;
    leave();
}

void FinderPopup::choose(FinderTarget target)
{
    const QModelIndex current = m_list->currentIndex();
    if (!current.isValid() || !current.data(FinderModel::AvailableRole).toBool())
        return;
    FinderSource* const source = m_source;
    leave();
    source->choose(static_cast<std::size_t>(current.row()), target);
}

void FinderPopup::refill()
{
    if (!m_source)
        return;
    std::vector<FinderRow> rows = m_source->rowsFor(m_line->text());
    const auto first = std::ranges::find(rows, true, &FinderRow::isAvailable);
    const auto row = first == rows.end() ? 0 : static_cast<int>(first - rows.begin());
    const bool isEmpty = rows.empty();
    if (isEmpty)
        m_empty->setText(m_source->emptyText(m_line->text()));
    m_model->setRows(std::move(rows));
    m_list->setVisible(!isEmpty);
    m_empty->setVisible(isEmpty);
    m_list->setCurrentIndex(m_model->index(row, 0));
    m_list->scrollToTop();
    announceCurrent();
    place();
}

void FinderPopup::place()
{
    const QWidget* const over = parentWidget();
    if (!over)
        return;
    const auto* const mainWindow = qobject_cast<const QMainWindow*>(over);
    const QWidget* const menus = mainWindow ? mainWindow->menuWidget() : nullptr;
    const int top = menus ? menus->geometry().bottom() + margin : margin;
    const int rowHeight = std::max(m_list->sizeHintForRow(0), 1);
    const int roomForRows = (over->height() - top - m_line->sizeHint().height() - 4 * margin) / rowHeight - 1;
    const int rows = std::clamp(m_model->rowCount(), 1, std::clamp(roomForRows, 1, shownRows));
    m_list->setFixedHeight(rows * rowHeight);
    const int width =
        std::min(fontMetrics().averageCharWidth() * widthCharacters, over->width() - 2 * windowMargin);
    setFixedWidth(width);
    adjustSize();
    move((over->width() - width) / 2, top);
}

void FinderPopup::announceCurrent()
{
    // The line has the keyboard; what the arrow keys come to is told by it.
    m_line->setAccessibleDescription(m_list->currentIndex().data(Qt::AccessibleTextRole).toString());
}

void FinderPopup::showEvent(QShowEvent* event)
{
    QFrame::showEvent(event);
    place();
}

bool FinderPopup::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::ShortcutOverride:
    case QEvent::KeyPress: {
        const auto& key = *static_cast<QKeyEvent*>(event);
        if (watched != m_line || !isOwnKey(key))
            break;
        event->accept();
        if (event->type() == QEvent::KeyPress)
            takeKey(key);
        return true;
    }
    case QEvent::MouseButtonPress: {
        const auto* const pressed = qobject_cast<const QWidget*>(watched);
        if (isVisible() && pressed && pressed->window() == window() && pressed != this &&
            !isAncestorOf(pressed))
            leave();
        break;
    }
    case QEvent::Resize:
        if (isVisible() && watched == parentWidget())
            place();
        break;
    default:
        break;
    }
    return QFrame::eventFilter(watched, event);
}

bool FinderPopup::isOwnKey(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Escape:
        return true;
    default:
        return false;
    }
}

void FinderPopup::takeKey(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Backtab:
        stepRound(-1);
        break;
    case Qt::Key_Down:
    case Qt::Key_Tab:
        stepRound(1);
        break;
    case Qt::Key_PageUp:
        step(1 - shownRows);
        break;
    case Qt::Key_PageDown:
        step(shownRows - 1);
        break;
    case Qt::Key_Escape:
        leave();
        break;
    default:
        choose(
            event.modifiers().testFlag(Qt::ControlModifier) ? FinderTarget::OtherPane : FinderTarget::Here);
    }
}

void FinderPopup::step(int rows)
{
    const int last = m_model->rowCount() - 1;
    if (last >= 0) {
        m_list->setCurrentIndex(m_model->index(std::clamp(m_list->currentIndex().row() + rows, 0, last), 0));
    }
}

void FinderPopup::stepRound(int rows)
{
    const int count = m_model->rowCount();
    if (count > 0)
        m_list->setCurrentIndex(m_model->index((m_list->currentIndex().row() + rows + count) % count, 0));
}

} // namespace tw::desktop::finder
