#include "desktop/proofreading/EditorProofreader.h"

#include "desktop/proofreading/ProofreadingService.h"
#include "desktop/proofreading/ProseText.h"
#include "desktop/proofreading/UnderlineOverlay.h"

#include <QContextMenuEvent>
#include <QDeadlineTimer>
#include <QMenu>
#include <QTextBlock>
#include <QTextEdit>

#include <algorithm>
#include <chrono>

namespace tw::desktop::proofreading {

using namespace std::chrono_literals;

namespace {

/** A rest this long lets the checks begin. */
constexpr auto typingRest = 250ms;
constexpr auto sliceLength = 4ms;
/** A longer paragraph does not fit into a slice; the list of problems has what is wrong with it. */
constexpr int longestParagraph = 20'000;

} // namespace

EditorProofreader::EditorProofreader(
    ProofreadingService& service, QTextEdit& editor, const core::ContentId& document)
    : QObject(&editor)
    , m_service(service)
    , m_editor(editor)
    , m_documentId(document)
    , m_findings(*editor.document())
    , m_overlay(new UnderlineOverlay(service.themes(), editor, m_findings))
{
    m_rest.setSingleShot(true);
    m_rest.setInterval(typingRest);
    connect(&m_rest, &QTimer::timeout, this, [this] { m_slice.start(0ms); });
    connect(&m_slice, &QTimer::timeout, this, &EditorProofreader::checkSlice);
    connect(
        editor.document(), &QTextDocument::contentsChange, this,
        [this](int position, int removed, int added) {
            m_findings.noteChange(position, removed, added);
            m_slice.stop();
            m_rest.start();
        });
    connect(&service, &ProofreadingService::checksChanged, this, &EditorProofreader::restart);
    connect(&service, &ProofreadingService::ignoredChanged, this, [this](const core::ContentId& changed) {
        if (changed == m_documentId)
            restart();
    });
    editor.viewport()->installEventFilter(this);
    restart();
}

void EditorProofreader::restart()
{
    m_findings.expireAll();
    m_slice.start(0ms);
}

void EditorProofreader::checkSlice()
{
    // A page in a hidden tab waits until it is shown.
    if (!m_editor.isVisible()) {
        m_slice.stop();
        return;
    }
    const QDeadlineTimer deadline(sliceLength);
    // Nothing scrolls within a slice, and asking costs about as much as a paragraph.
    const VisibleBlocks inSight = visibleBlocks(m_editor);
    while (!deadline.hasExpired()) {
        if (!checkNext(inSight)) {
            m_slice.stop();
            return;
        }
    }
}

void EditorProofreader::finishNow()
{
    const VisibleBlocks inSight = visibleBlocks(m_editor);
    while (checkNext(inSight)) {
    }
    m_slice.stop();
}

bool EditorProofreader::checkNext(const VisibleBlocks& inSight)
{
    int block = m_findings.nextExpired(inSight.first, inSight.last);
    if (block < 0)
        block = m_findings.nextExpired();
    if (block < 0)
        return false;
    check(block);
    return true;
}

void EditorProofreader::check(int block)
{
    const QString text = proseOf(m_editor.document()->findBlockByNumber(block));
    std::vector<ProseFinding> findings;
    if (text.size() <= longestParagraph) {
        findings = m_service.check(m_documentId, CheckScope::WhileTyping)->findings(text);
        m_service.ignored(m_documentId).removeFrom(findings, text);
    }
    const bool isNew = findings != m_findings.of(block);
    m_findings.set(block, std::move(findings));
    if (isNew)
        m_overlay->updateBlock(block);
}

std::optional<EditorProofreader::Place> EditorProofreader::findingAt(int position) const
{
    const QTextBlock block = m_editor.document()->findBlock(position);
    const auto& findings = m_findings.of(block.blockNumber());
    const int offset = position - block.position();
    const auto isHit = [offset](const ProseFinding& finding) {
        return finding.start <= offset && offset <= finding.end();
    };
    // Of several, the shortest: a word rather than the sentence around it.
    std::optional<Place> best;
    for (const ProseFinding& finding : findings) {
        if (isHit(finding) && (!best || finding.length < best->finding.length))
            best = Place{block.blockNumber(), finding};
    }
    return best;
}

QTextBlock EditorProofreader::blockOf(const Place& place) const
{
    return m_editor.document()->findBlockByNumber(place.block);
}

QString EditorProofreader::textOf(const Place& place) const
{
    return blockOf(place).text().mid(place.finding.start, place.finding.length);
}

void EditorProofreader::show(const Place& place)
{
    QTextCursor cursor(blockOf(place));
    cursor.setPosition(cursor.position() + static_cast<int>(place.finding.start));
    const int end = cursor.position() + static_cast<int>(place.finding.length);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    m_editor.setTextCursor(cursor);
    m_editor.ensureCursorVisible();
    m_editor.setFocus(Qt::OtherFocusReason);
}

void EditorProofreader::replace(const Place& place, const QString& suggestion)
{
    if (m_editor.isReadOnly())
        return;
    m_service.asOneStep(m_editor, tr("Take suggestion “%1”").arg(suggestion), [&] {
        QTextCursor cursor(blockOf(place));
        const int start = cursor.position() + static_cast<int>(place.finding.start);
        // The words get the looks of the first letter that they replace.
        cursor.setPosition(start + 1);
        const QTextCharFormat format = cursor.charFormat();
        cursor.setPosition(start);
        cursor.setPosition(start + static_cast<int>(place.finding.length), QTextCursor::KeepAnchor);
        cursor.insertText(suggestion, format);
        m_editor.setTextCursor(cursor);
    });
}

void EditorProofreader::fillMenu(QMenu& menu, const Place& place)
{
    const QString text = textOf(place);
    const auto check = m_service.check(m_documentId, CheckScope::WhileTyping);
    QAction* const message = menu.addAction(place.finding.message);
    message->setEnabled(false);
    if (!m_editor.isReadOnly()) {
        for (const QString& suggestion : check->suggestions(place.finding, blockOf(place).text())) {
            QAction* const action = menu.addAction(suggestion);
            QFont font = action->font();
            font.setBold(true);
            action->setFont(font);
            connect(action, &QAction::triggered, this, [this, place, suggestion, text] {
                // The menu may have stood open while the text changed.
                if (textOf(place) == text)
                    replace(place, suggestion);
            });
        }
    }
    menu.addSeparator();
    connect(menu.addAction(tr("&Ignore Here")), &QAction::triggered, this, [this, place, text] {
        m_service.ignore(m_documentId, place.finding.kind, text);
    });
    if (place.finding.kind == ProblemKind::Spelling) {
        connect(menu.addAction(tr("&Add to Dictionary")), &QAction::triggered, this, [this, text] {
            m_service.addToDictionary(text);
        });
    } else {
        connect(menu.addAction(tr("&Turn Off This Rule")), &QAction::triggered, this, [this, place] {
            m_service.disableRule(place.finding.kind);
        });
    }
}

bool EditorProofreader::popUpSuggestions()
{
    const std::optional<Place> place = findingAt(m_editor.textCursor().position());
    if (!place)
        return false;
    auto* const menu = new QMenu(&m_editor);
    menu->setObjectName(QStringLiteral("suggestionsMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    fillMenu(*menu, *place);
    menu->popup(m_editor.viewport()->mapToGlobal(m_editor.cursorRect().bottomLeft()));
    // With the keyboard, the first suggestion is one press of Return away.
    const auto actions = menu->actions();
    const auto usable =
        std::ranges::find_if(actions, [](const QAction* action) { return action->isEnabled(); });
    menu->setActiveAction(usable == actions.end() ? nullptr : *usable);
    return true;
}

bool EditorProofreader::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show && m_findings.nextExpired() >= 0)
        m_slice.start(0ms);
    if (event->type() != QEvent::ContextMenu)
        return QObject::eventFilter(watched, event);
    const auto* const asked = static_cast<QContextMenuEvent*>(event);
    const bool isByKey = asked->reason() == QContextMenuEvent::Keyboard;
    const int position =
        isByKey ? m_editor.textCursor().position() : m_editor.cursorForPosition(asked->pos()).position();
    const std::optional<Place> place = findingAt(position);
    if (!place)
        return QObject::eventFilter(watched, event);
    auto* const menu = m_editor.createStandardContextMenu(asked->pos());
    QMenu suggestions;
    fillMenu(suggestions, *place);
    QAction* const first = menu->actions().value(0);
    for (QAction* const action : suggestions.actions()) {
        action->setParent(menu);
        menu->insertAction(first, action);
    }
    menu->insertSeparator(first);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->popup(asked->globalPos());
    return true;
}

} // namespace tw::desktop::proofreading
