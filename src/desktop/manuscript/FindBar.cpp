#include "desktop/manuscript/FindBar.h"

#include "desktop/icons/IconSet.h"
#include "desktop/manuscript/BodyEditor.h"
#include "desktop/manuscript/TypingBursts.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/theme/ThemeManager.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTextBlock>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>

namespace tw::desktop::manuscript {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;
using icons::Icon;

namespace {

constexpr auto countRest = 200ms;
constexpr int spacing = 4;
/** More are not counted while one types. */
constexpr std::size_t mostCounted = 5000;
constexpr int fieldCharacters = 28;

QToolButton* button(const icons::IconSet& icons, Icon icon, const QString& text, QWidget* parent)
{
    auto* const made = new QToolButton(parent);
    made->setAutoRaise(true);
    made->setIcon(icons.icon(icon));
    made->setToolTip(text);
    made->setAccessibleName(text);
    return made;
}

QLineEdit* field(const QString& hint, QWidget* parent)
{
    auto* const made = new QLineEdit(parent);
    made->setPlaceholderText(hint);
    made->setAccessibleName(hint);
    made->setClearButtonEnabled(true);
    made->setMaximumWidth(made->fontMetrics().averageCharWidth() * fieldCharacters * 2);
    return made;
}

} // namespace

FindBar::FindBar(const shell::DeskContext& desk, QWidget* parent)
    : QWidget(parent)
    , m_desk(desk)
    , m_text(field(tr("Find in this text"), this))
    , m_replacement(field(tr("Replace with"), this))
    , m_found(new QLabel(this))
    , m_case(addSwitch(u"Aa"_s, tr("Match case")))
    , m_word(addSwitch(u"|ab|"_s, tr("Whole words")))
    , m_expression(addSwitch(u".*"_s, tr("Regular expression")))
    , m_replaceRow(new QWidget(this))
{
    auto* const previous = button(desk.icons, Icon::ChevronUp, tr("Previous place (Shift+F3)"), this);
    auto* const next = button(desk.icons, Icon::ChevronDown, tr("Next place (F3)"), this);
    auto* const closeButton = button(desk.icons, Icon::Close, tr("Close (Escape)"), this);
    auto* const replace = new QPushButton(tr("&Replace"), m_replaceRow);
    auto* const all = new QPushButton(tr("Replace &All"), m_replaceRow);
    m_found->setForegroundRole(QPalette::PlaceholderText);
    m_found->setMinimumWidth(m_found->fontMetrics().averageCharWidth() * 9);
    m_found->setWordWrap(true);

    auto* const findRow = new QHBoxLayout;
    for (QWidget* const widget :
         std::initializer_list<QWidget*>{m_text, previous, next, m_case, m_word, m_expression})
        findRow->addWidget(widget);
    // Beside another text there is little room; what is looked for gets most of it.
    findRow->setStretchFactor(m_text, 3);
    findRow->addWidget(m_found, 1);
    findRow->addWidget(closeButton);
    auto* const replaceRow = new QHBoxLayout(m_replaceRow);
    replaceRow->setContentsMargins(0, 0, 0, 0);
    for (QWidget* const widget : std::initializer_list<QWidget*>{m_replacement, replace, all})
        replaceRow->addWidget(widget);
    replaceRow->addStretch(1);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(2 * spacing, spacing, 2 * spacing, spacing);
    layout->setSpacing(spacing);
    layout->addLayout(findRow);
    layout->addWidget(m_replaceRow);
    setAccessibleName(tr("Find and replace"));
    hide();

    m_count.setSingleShot(true);
    m_count.setInterval(countRest);
    connect(&m_count, &QTimer::timeout, this, &FindBar::countPlaces);
    connect(m_text, &QLineEdit::textEdited, this, &FindBar::search);
    for (QToolButton* const each : {m_case, m_word, m_expression})
        connect(each, &QToolButton::toggled, this, &FindBar::search);
    connect(previous, &QToolButton::clicked, this, [this] { step(false); });
    connect(next, &QToolButton::clicked, this, [this] { step(true); });
    connect(closeButton, &QToolButton::clicked, this, &FindBar::close);
    connect(replace, &QPushButton::clicked, this, &FindBar::replaceOne);
    connect(all, &QPushButton::clicked, this, &FindBar::replaceAll);
}

QToolButton* FindBar::addSwitch(const QString& text, const QString& name)
{
    auto* const made = new QToolButton(this);
    made->setAutoRaise(true);
    made->setCheckable(true);
    made->setText(text);
    made->setToolTip(name);
    made->setAccessibleName(name);
    return made;
}

void FindBar::setEditor(BodyEditor* editor, TypingBursts* bursts)
{
    if (m_editor == editor)
        return;
    if (m_editor) {
        m_editor->setFoundPlaces({});
        disconnect(m_editor, nullptr, this, nullptr);
    }
    m_editor = editor;
    m_bursts = bursts;
    connect(editor, &BodyEditor::edited, this, [this] {
        if (isVisible())
            m_count.start();
    });
    if (isVisible())
        m_count.start();
}

app::search::TextQuery FindBar::query() const
{
    return {m_text->text(), m_case->isChecked(), m_word->isChecked(), m_expression->isChecked()};
}

void FindBar::open(Row row)
{
    if (!m_editor)
        return;
    m_replaceRow->setVisible(row == Row::FindAndReplace && !m_editor->isReadOnly());
    QWidget::show();
    const QTextCursor cursor = m_editor->textCursor();
    const bool isWithinParagraph = cursor.document()->findBlock(cursor.selectionStart()) ==
                                   cursor.document()->findBlock(cursor.selectionEnd());
    if (cursor.hasSelection() && isWithinParagraph)
        m_text->setText(cursor.selectedText());
    m_text->setFocus(Qt::ShortcutFocusReason);
    m_text->selectAll();
    m_finder = TextFinder(query());
    countPlaces();
}

void FindBar::close()
{
    hide();
    if (!m_editor)
        return;
    m_editor->setFoundPlaces({});
    m_editor->setFocus(Qt::OtherFocusReason);
}

void FindBar::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        close();
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (m_replacement->hasFocus())
            replaceOne();
        else
            step(!event->modifiers().testFlag(Qt::ShiftModifier));
    } else {
        QWidget::keyPressEvent(event);
    }
}

void FindBar::search()
{
    m_finder = TextFinder(query());
    if (m_editor && m_finder.error().isEmpty() && !m_finder.isEmpty())
        searchFrom(m_editor->textCursor().selectionStart());
    m_count.start();
}

void FindBar::searchFrom(int position)
{
    auto place = m_finder.findFrom(*m_editor->document(), position);
    if (!place && m_sequence)
        m_sequence->goOn(m_finder, true);
    if (!place)
        place = m_finder.findFrom(*m_editor->document(), 0);
    show(place);
}

void FindBar::step(bool isForward)
{
    if (m_text->text().isEmpty() || !m_editor) {
        open(Row::Find);
        return;
    }
    m_finder = TextFinder(query());
    const QTextCursor cursor = m_editor->textCursor();
    if (isForward) {
        searchFrom(cursor.selectionEnd());
    } else {
        auto place = m_finder.findBefore(*m_editor->document(), cursor.selectionStart());
        if (!place && m_sequence)
            m_sequence->goOn(m_finder, false);
        if (!place)
            place = m_finder.findBefore(*m_editor->document(), m_editor->document()->characterCount());
        show(place);
    }
    m_count.start();
}

void FindBar::show(const std::optional<FoundPlace>& place)
{
    if (!place)
        return;
    QTextCursor cursor(m_editor->document());
    cursor.setPosition(place->position);
    cursor.setPosition(place->position + place->length, QTextCursor::KeepAnchor);
    m_editor->setTextCursor(cursor);
    m_editor->ensureCursorVisible();
    emit placeShown();
}

void FindBar::countPlaces()
{
    if (!m_editor)
        return;
    if (!m_finder.error().isEmpty()) {
        m_found->setText(m_finder.error());
        m_editor->setFoundPlaces({});
        return;
    }
    const std::vector<FoundPlace> places = m_finder.findAll(*m_editor->document(), mostCounted);
    m_editor->setFoundPlaces(places);
    const int position = m_editor->textCursor().selectionStart();
    const auto current = std::ranges::find(places, position, &FoundPlace::position);
    if (m_finder.isEmpty())
        m_found->clear();
    else if (places.empty())
        m_found->setText(tr("Not found"));
    else if (places.size() == mostCounted)
        m_found->setText(tr("More than %Ln places", nullptr, static_cast<int>(mostCounted)));
    else if (current != places.end())
        m_found->setText(tr("%1 of %2").arg(current - places.begin() + 1).arg(places.size()));
    else
        m_found->setText(tr("%Ln places", nullptr, static_cast<int>(places.size())));
}

void FindBar::replaceOne()
{
    if (!m_editor || m_editor->isReadOnly())
        return;
    const QTextCursor cursor = m_editor->textCursor();
    const auto place = m_finder.findFrom(*m_editor->document(), cursor.selectionStart());
    const bool isSelected = place && place->position == cursor.selectionStart() &&
                            place->position + place->length == cursor.selectionEnd();
    if (isSelected) {
        m_bursts->applyAsStep(tr("Replace"), [&] {
            QTextCursor edit = cursor;
            m_editor->replaceText(
                edit, m_finder.replacementFor(*m_editor->document(), *place, m_replacement->text()));
        });
    }
    step(true);
}

void FindBar::replaceAll()
{
    m_finder = TextFinder(query());
    if (!m_editor || !m_finder.error().isEmpty())
        return;
    qsizetype replaced = 0;
    if (m_sequence) {
        m_bursts->commit();
        const auto macro = m_desk.session.macro(tr("Replace all"));
        m_sequence->visitAll(m_finder, [&] { replaced += replaceAllHere(); });
    } else {
        replaced = replaceAllHere();
    }
    m_desk.navigator.say(
        replaced > 0 ? tr("Replaced %Ln places.", nullptr, static_cast<int>(replaced))
                     : tr("Nothing was replaced."));
    countPlaces();
}

qsizetype FindBar::replaceAllHere()
{
    if (m_editor->isReadOnly())
        return 0;
    QTextDocument& document = *m_editor->document();
    QTextCursor cursor(&document);
    const auto select = [&cursor](const FoundPlace& place) {
        cursor.setPosition(place.position);
        cursor.setPosition(place.position + place.length, QTextCursor::KeepAnchor);
    };
    std::vector<std::pair<FoundPlace, QString>> edits;
    for (const FoundPlace& place : m_finder.findAll(document, std::numeric_limits<std::size_t>::max())) {
        select(place);
        QString text = m_finder.replacementFor(document, place, m_replacement->text());
        if (cursor.selectedText() != text)
            edits.emplace_back(place, std::move(text));
    }
    if (edits.empty())
        return 0;
    m_bursts->applyAsStep(tr("Replace all"), [&] {
        cursor.beginEditBlock();
        // From the end, so that the places before stay where they are.
        for (auto edit = edits.rbegin(); edit != edits.rend(); ++edit) {
            select(edit->first);
            m_editor->replaceText(cursor, edit->second);
        }
        cursor.endEditBlock();
    });
    return std::ssize(edits);
}

} // namespace tw::desktop::manuscript
