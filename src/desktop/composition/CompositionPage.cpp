#include "desktop/composition/CompositionPage.h"

#include "core/document/ActiveText.h"
#include "desktop/composition/SceneColumn.h"
#include "desktop/composition/SceneSlot.h"
#include "desktop/icons/IconSet.h"
#include "desktop/manuscript/BodyEditor.h"
#include "desktop/manuscript/PageStyle.h"
#include "desktop/manuscript/rich/RichPage.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/shell/ProjectSession.h"

#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

namespace tw::desktop::composition {

using core::ContentId;
using core::document::Document;
using manuscript::BodyEditor;

namespace {

/** Above and below the cursor when it is brought into view, in pixels. */
constexpr int cursorMargin = 64;
/** Of the window's height: so much beyond it is made ready. */
constexpr double readyBeyond = 0.5;

/** Whether the cursor can go no further up (or down) within its text. */
bool isAtEdge(const BodyEditor& editor, QTextCursor::MoveOperation operation)
{
    QTextCursor cursor = editor.textCursor();
    return !cursor.movePosition(operation);
}

} // namespace

CompositionPage::CompositionPage(const shell::DeskContext& desk, const ContentId& rootId, QWidget* parent)
    : TextPage({rootId, compositionView}, parent)
    , m_desk(desk)
    , m_places(desk.settings, desk.session.workspace().displayPath())
    , m_area(new QScrollArea(this))
    , m_findBar(new manuscript::FindBar(desk, this))
    , m_scenes(new SceneColumn(desk, rootId, nullptr))
{
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_area, 1);
    layout->addWidget(m_findBar);
    m_findBar->setSequence(this);
    connect(m_findBar, &manuscript::FindBar::placeShown, this, [this] {
        if (const BodyEditor* const editor = currentEditor())
            showCursor(*editor);
    });
    m_area->setWidget(m_scenes);
    m_area->setWidgetResizable(true);
    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Otherwise the first line would move sideways with the scroll bar.
    m_area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    m_area->setAccessibleName(tr("Continuous text"));
    m_area->setFocusPolicy(Qt::NoFocus);
    connect(m_area->verticalScrollBar(), &QScrollBar::valueChanged, this, &CompositionPage::wakeVisible);
    connect(m_area->verticalScrollBar(), &QScrollBar::rangeChanged, this, &CompositionPage::wakeVisible);
    connect(m_scenes, &SceneColumn::slotMade, this, &CompositionPage::follow);
    connect(m_scenes, &SceneColumn::changed, this, &CompositionPage::titleChanged);
    connect(m_scenes, &SceneColumn::changed, this, &CompositionPage::statusTextChanged);
    m_scenes->fill();
}

CompositionPage::~CompositionPage()
{
    rememberPlace();
    m_scenes->disconnect(this);
    m_area->verticalScrollBar()->disconnect(this);
}

const std::vector<SceneSlot*>& CompositionPage::slotsInOrder() const
{
    return m_scenes->slotsInOrder();
}

void CompositionPage::follow(SceneSlot* slot)
{
    connect(
        slot, &SceneSlot::editorMade, this, [this, slot](BodyEditor* editor) { prepare(*slot, *editor); });
}

void CompositionPage::prepare(SceneSlot& slot, BodyEditor& editor)
{
    editor.installEventFilter(this);
    emit editorMade(&editor, slot.documentId());
    connect(&editor, &QTextEdit::cursorPositionChanged, this, [this, &slot, &editor] {
        if (editor.hasFocus()) {
            setCurrentSlot(&slot);
            showCursor(editor);
        }
    });
    connect(&editor, &BodyEditor::zoomStepRequested, this, [this](int step) {
        manuscript::stepPageZoom(m_desk.settings, step);
        applyStyle();
    });
}

void CompositionPage::wakeVisible()
{
    if (m_isWaking || !isVisible())
        return;
    const QScopedValueRollback guard(m_isWaking, true);
    QScrollBar& bar = *m_area->verticalScrollBar();
    const int window = m_area->viewport()->height();
    const int beyond = static_cast<int>(window * readyBeyond);
    for (SceneSlot* const slot : slotsInOrder()) {
        const int top = slot->y() - bar.value();
        if (slot->editor() || top > window + beyond || top + slot->height() < -beyond)
            continue;
        // What is in the window must not move when something above turns out to be of another height.
        const int before = slot->height();
        slot->wake();
        m_scenes->settle();
        if (top + before <= 0)
            bar.setValue(bar.value() + slot->height() - before);
    }
}

void CompositionPage::showCursor(const BodyEditor& editor)
{
    const QRect cursor = editor.cursorRect();
    const QPoint place = editor.viewport()->mapTo(m_scenes, cursor.center());
    // A selection that is drawn with the mouse must not move under the pointer.
    if (manuscript::isTypewriterScrolling(m_desk.settings) && !editor.textCursor().hasSelection()) {
        const int target = static_cast<int>(m_area->viewport()->height() * manuscript::heldLine);
        m_area->verticalScrollBar()->setValue(place.y() - target);
        return;
    }
    m_area->ensureVisible(m_scenes->width() / 2, place.y(), 0, cursorMargin);
}

void CompositionPage::setCurrentSlot(SceneSlot* slot)
{
    if (m_current == slot)
        return;
    rememberPlace();
    m_current = slot;
    if (slot) {
        m_findBar->setEditor(slot->editor(), slot->bursts());
        m_desk.navigator.setCurrent(slot->documentId());
    }
    emit editorChanged();
    emit statusTextChanged();
}

bool CompositionPage::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::FocusIn)
        return TextPage::eventFilter(watched, event);
    auto* const slot = qobject_cast<SceneSlot*>(watched->parent());
    if (slot && slot->editor() == watched) {
        if (event->type() == QEvent::FocusIn)
            setCurrentSlot(slot);
        else if (const auto* const key = static_cast<QKeyEvent*>(event); key->modifiers() == Qt::NoModifier)
            return leaveEditor(*slot, key->key());
    }
    return TextPage::eventFilter(watched, event);
}

bool CompositionPage::leaveEditor(SceneSlot& slot, int key)
{
    const auto index =
        static_cast<std::size_t>(std::ranges::find(slotsInOrder(), &slot) - slotsInOrder().begin());
    const BodyEditor& editor = *slot.editor();
    QScrollBar& bar = *m_area->verticalScrollBar();
    switch (key) {
    case Qt::Key_Up:
    case Qt::Key_Left:
        if (index == 0 || !isAtEdge(editor, key == Qt::Key_Up ? QTextCursor::Up : QTextCursor::Left))
            return false;
        enter(index - 1, true);
        return true;
    case Qt::Key_Down:
    case Qt::Key_Right:
        if (index + 1 == slotsInOrder().size() ||
            !isAtEdge(editor, key == Qt::Key_Down ? QTextCursor::Down : QTextCursor::Right))
            return false;
        enter(index + 1, false);
        return true;
    case Qt::Key_PageUp:
        bar.setValue(bar.value() - bar.pageStep());
        return true;
    case Qt::Key_PageDown:
        bar.setValue(bar.value() + bar.pageStep());
        return true;
    default:
        return false;
    }
}

void CompositionPage::enter(std::size_t index, bool atEnd)
{
    BodyEditor& editor = slotsInOrder()[index]->wake();
    editor.moveCursor(atEnd ? QTextCursor::End : QTextCursor::Start);
    editor.setFocus(Qt::OtherFocusReason);
    m_scenes->settle();
    showCursor(editor);
}

void CompositionPage::resizeEvent(QResizeEvent* event)
{
    TextPage::resizeEvent(event);
    QTimer::singleShot(0, this, &CompositionPage::wakeVisible);
}

void CompositionPage::showEvent(QShowEvent* event)
{
    TextPage::showEvent(event);
    QTimer::singleShot(0, this, &CompositionPage::wakeVisible);
}

void CompositionPage::takeFocus()
{
    if (m_current && m_current->editor())
        m_current->editor()->setFocus(Qt::OtherFocusReason);
    else if (!enterLatestPlace() && !slotsInOrder().empty())
        enter(0, false);
}

QList<QWidget*> CompositionPage::parts()
{
    return {m_area, m_findBar};
}

void CompositionPage::rememberPlace()
{
    const BodyEditor* const editor = currentEditor();
    if (!editor)
        return;
    const QRect cursor = editor->cursorRect();
    m_places.remember(
        m_current->documentId(), {editor->textCursor().position(), editor->document()->characterCount(),
                                  editor->viewport()->mapTo(m_area->viewport(), cursor.topLeft()).y()});
}

bool CompositionPage::enterLatestPlace()
{
    std::vector<ContentId> shown;
    for (const SceneSlot* const slot : slotsInOrder())
        shown.push_back(slot->documentId());
    const auto latest = m_places.latestOf(shown);
    if (!latest)
        return false;
    const auto& [documentId, place] = *latest;
    const auto index = static_cast<std::size_t>(std::ranges::find(shown, documentId) - shown.begin());
    enter(index, false);
    BodyEditor& editor = *slotsInOrder()[index]->editor();
    QTextCursor cursor = editor.textCursor();
    cursor.setPosition(place.positionIn(editor.document()->characterCount()));
    editor.setTextCursor(cursor);
    QScrollBar& bar = *m_area->verticalScrollBar();
    const int top = editor.viewport()->mapTo(m_area->viewport(), editor.cursorRect().topLeft()).y();
    bar.setValue(bar.value() + top - place.top);
    showCursor(editor);
    return true;
}

BodyEditor* CompositionPage::currentEditor() const
{
    return m_current ? m_current->editor() : nullptr;
}

manuscript::rich::RichPage* CompositionPage::richPage() const
{
    return qobject_cast<manuscript::rich::RichPage*>(currentEditor());
}

ContentId CompositionPage::editedDocument() const
{
    return m_current ? m_current->documentId() : ContentId();
}

manuscript::FindBar* CompositionPage::findBar()
{
    if (!currentEditor())
        takeFocus();
    return currentEditor() ? m_findBar : nullptr;
}

bool CompositionPage::hasMatch(const SceneSlot& slot, const manuscript::TextFinder& finder) const
{
    const auto* const document = m_desk.session.project().findAs<Document>(slot.documentId());
    return document && finder.hasMatchIn(core::document::activeText(*document));
}

bool CompositionPage::goOn(const manuscript::TextFinder& finder, bool isForward)
{
    const auto count = static_cast<std::ptrdiff_t>(slotsInOrder().size());
    const auto present = std::ranges::find(slotsInOrder(), m_current.data()) - slotsInOrder().begin();
    for (std::ptrdiff_t step = 1; step < count; ++step) {
        SceneSlot& slot =
            *slotsInOrder()[static_cast<std::size_t>((present + (isForward ? step : count - step)) % count)];
        if (!hasMatch(slot, finder))
            continue;
        slot.wake();
        m_scenes->settle();
        setCurrentSlot(&slot);
        return true;
    }
    return false;
}

void CompositionPage::visitAll(const manuscript::TextFinder& finder, const std::function<void()>& work)
{
    SceneSlot* const present = m_current;
    for (SceneSlot* const slot : slotsInOrder()) {
        if (!hasMatch(*slot, finder))
            continue;
        slot->wake();
        setCurrentSlot(slot);
        work();
    }
    setCurrentSlot(present);
}

void CompositionPage::showNote(const QString&)
{
    m_desk.navigator.open(editedDocument());
}

void CompositionPage::applyStyle()
{
    for (SceneSlot* const slot : slotsInOrder())
        slot->applyStyle();
}

QString CompositionPage::title() const
{
    const auto* const object = m_desk.session.project().find(objectId());
    return object ? shell::objectTitle(*object) : tr("Manuscript");
}

QIcon CompositionPage::icon() const
{
    return m_desk.icons.icon(icons::Icon::Manuscript);
}

std::vector<core::ContentId> CompositionPage::shownObjects() const
{
    std::vector<core::ContentId> documents;
    for (const SceneSlot* const slot : slotsInOrder())
        documents.push_back(slot->documentId());
    return documents;
}

QString CompositionPage::statusText() const
{
    const QString total = tr("%Ln words", nullptr, static_cast<int>(m_scenes->wordCount()));
    const auto* const object = m_desk.session.project().find(editedDocument());
    return object ? tr("%1 · %2").arg(shell::objectTitle(*object), total) : total;
}

} // namespace tw::desktop::composition
