#include "desktop/manuscript/NotesPane.h"

#include "desktop/fields/GrowingTextEdit.h"
#include "desktop/icons/IconSet.h"
#include "desktop/manuscript/Footnotes.h"
#include "desktop/shell/ProjectSession.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QScrollArea>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace tw::desktop::manuscript {

using core::document::Footnote;

namespace {

constexpr int spacing = 8;
constexpr int shownLines = 6;

} // namespace

NotesPane::NotesPane(const shell::DeskContext& desk, const core::ContentId& documentId, QWidget* parent)
    : QWidget(parent)
    , m_desk(desk)
    , m_documentId(documentId)
    , m_scroll(new QScrollArea(this))
    , m_layout(nullptr)
{
    auto* const content = new QWidget(m_scroll);
    m_layout = new QVBoxLayout(content);
    m_layout->setContentsMargins(2 * spacing, spacing, 2 * spacing, spacing);
    m_layout->setSpacing(spacing / 2);
    auto* const heading = new QLabel(tr("Notes"), content);
    heading->setForegroundRole(QPalette::PlaceholderText);
    m_layout->addWidget(heading);
    m_layout->addStretch(1);
    m_scroll->setWidget(content);
    m_scroll->setWidgetResizable(true);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_scroll);
    setAccessibleName(tr("Notes of the document"));
    connect(&desk.session, &shell::ProjectSession::commitRequested, this, &NotesPane::commit);
}

QSize NotesPane::sizeHint() const
{
    const int lines = fontMetrics().lineSpacing() * shownLines * 3 / 2;
    return {QWidget::sizeHint().width(), std::min(m_scroll->widget()->sizeHint().height(), lines)};
}

NotesPane::Row NotesPane::makeRow(const Footnote& note)
{
    Row row{note, new QWidget(this), nullptr, nullptr};
    auto* const layout = new QHBoxLayout(row.widget);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* const jump = new QToolButton(row.widget);
    jump->setAutoRaise(true);
    jump->setText(note.id);
    jump->setToolTip(
        note.isEndnote ? tr("Endnote: go to its place in the text")
                       : tr("Footnote: go to its place in the text"));
    jump->setAccessibleName(tr("Place of note %1 in the text").arg(note.id));
    row.text = new fields::GrowingTextEdit(row.widget);
    row.text->setText(note.text);
    row.text->setPlaceholderText(note.isEndnote ? tr("Text of the endnote") : tr("Text of the footnote"));
    row.text->setAccessibleName(tr("Text of note %1").arg(note.id));
    row.remove = new QToolButton(row.widget);
    auto* const remove = row.remove;
    remove->setAutoRaise(true);
    remove->setIcon(m_desk.icons.icon(icons::Icon::Remove));
    remove->setToolTip(tr("Remove the note; its reference in the text stays"));
    remove->setAccessibleName(tr("Remove note %1").arg(note.id));
    layout->addWidget(jump, 0, Qt::AlignTop);
    layout->addWidget(row.text, 1);
    layout->addWidget(remove, 0, Qt::AlignTop);
    connect(jump, &QToolButton::clicked, this, [this, label = note.id] { emit referenceRequested(label); });
    connect(row.text, &fields::GrowingTextEdit::left, this, &NotesPane::commit);
    connect(row.text, &QTextEdit::textChanged, this, [this, text = row.text] {
        if (text->hasFocus())
            m_desk.session.setTypingPending(*this, true);
    });
    connect(
        remove, &QToolButton::clicked, this,
        [this, label = note.id] { removeNote(m_desk.session, m_documentId, label); }, Qt::QueuedConnection);
    applyReadOnly(row);
    return row;
}

void NotesPane::applyReadOnly(const Row& row) const
{
    row.text->setReadOnly(m_isReadOnly);
    row.remove->setEnabled(!m_isReadOnly);
}

void NotesPane::setReadOnly(bool isReadOnly)
{
    m_isReadOnly = isReadOnly;
    for (const Row& row : m_rows)
        applyReadOnly(row);
}

void NotesPane::showNotes(const std::vector<Footnote>& notes, const QStringList& references)
{
    const std::vector<Footnote> ordered = inReadingOrder(notes, references);
    const auto isSameNote = [](const Row& row, const Footnote& note) {
        return row.note.id == note.id && row.note.isEndnote == note.isEndnote;
    };
    if (!std::ranges::equal(m_rows, ordered, isSameNote)) {
        for (const Row& row : m_rows) {
            row.widget->hide();
            row.widget->deleteLater();
        }
        m_rows.clear();
        for (const Footnote& note : ordered) {
            m_rows.push_back(makeRow(note));
            m_layout->insertWidget(m_layout->count() - 1, m_rows.back().widget);
        }
    }
    for (std::size_t index = 0; index < ordered.size(); ++index) {
        Row& row = m_rows[index];
        // What is being typed is not taken away.
        if (row.text->text() == row.note.text)
            row.text->setText(ordered[index].text);
        row.note = ordered[index];
    }
    updateGeometry();
}

bool NotesPane::focusNote(const QString& label)
{
    const auto found = std::ranges::find(m_rows, label, [](const Row& row) { return row.note.id; });
    if (found == m_rows.end())
        return false;
    found->text->setFocus(Qt::OtherFocusReason);
    m_scroll->ensureWidgetVisible(found->widget);
    return true;
}

void NotesPane::commit()
{
    // Every edit announces itself, and the rows may be others afterwards.
    std::vector<std::pair<QString, QString>> changed;
    for (Row& row : m_rows) {
        if (const QString text = row.text->text(); text != row.note.text) {
            changed.emplace_back(row.note.id, text);
            row.note.text = text;
        }
    }
    for (const auto& [label, text] : changed)
        setNoteText(m_desk.session, m_documentId, label, text);
    if (!changed.empty())
        m_desk.session.setTypingPending(*this, false);
}

} // namespace tw::desktop::manuscript
