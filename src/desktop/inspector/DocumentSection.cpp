#include "desktop/inspector/DocumentSection.h"

#include "core/document/DocumentCommands.h"
#include "desktop/fields/EditorKeys.h"
#include "desktop/fields/GrowingTextEdit.h"
#include "desktop/fields/StoryDateEdit.h"
#include "desktop/fields/WordsSuffix.h"
#include "desktop/manuscript/OutlineColumns.h"
#include "desktop/manuscript/StatusColors.h"
#include "desktop/shell/PendingEdit.h"
#include "desktop/shell/ProjectSession.h"

#include <QComboBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>

#include <algorithm>

namespace tw::desktop::inspector {

using core::document::Document;
using core::document::DocumentKind;

namespace {

constexpr int synopsisLines = 6;
constexpr int tensionSteps = 10;
constexpr int largestTarget = 1'000'000;
constexpr int targetStep = 100;

QComboBox* makeSuggestionBox(QWidget* parent)
{
    auto* const box = new QComboBox(parent);
    box->setEditable(true);
    box->setInsertPolicy(QComboBox::NoInsert);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    return box;
}

void setSuggestions(QComboBox& box, const QStringList& texts, const QString& shown)
{
    const QSignalBlocker blocker(box);
    box.clear();
    box.addItems(texts);
    box.setEditText(shown);
}

} // namespace

DocumentSection::DocumentSection(const shell::DeskContext& desk, QWidget* parent)
    : QWidget(parent)
    , m_desk(desk)
    , m_synopsis(new fields::GrowingTextEdit(this))
    , m_kind(new QComboBox(this))
    , m_status(makeSuggestionBox(this))
    , m_pointOfView(makeSuggestionBox(this))
    , m_tension(new QSpinBox(this))
    , m_sceneDate(new fields::StoryDateEdit(desk.themes, this))
    , m_target(new QSpinBox(this))
{
    auto* const form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->setVerticalSpacing(8);
    form->setRowWrapPolicy(QFormLayout::DontWrapRows);
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    form->setLabelAlignment(Qt::AlignLeft);
    auto* const synopsisLabel = new QLabel(tr("S&ynopsis"), this);
    synopsisLabel->setBuddy(m_synopsis);
    form->addRow(synopsisLabel);
    form->addRow(m_synopsis);
    auto* const dateLabel = new QLabel(tr("Sto&ry date"), this);
    dateLabel->setBuddy(m_sceneDate);
    form->addRow(dateLabel);
    form->addRow(m_sceneDate);
    form->addRow(tr("Stat&us"), m_status);
    form->addRow(tr("Poi&nt of view"), m_pointOfView);
    form->addRow(tr("Ten&sion"), m_tension);
    form->addRow(tr("Tar&get"), m_target);
    form->addRow(tr("&Kind"), m_kind);
    m_synopsis->setLeastLines(synopsisLines);
    m_synopsis->setPlaceholderText(tr("What happens here, in a few sentences"));
    m_synopsis->setAccessibleName(tr("Synopsis"));
    m_kind->addItem(tr("Prose"), static_cast<int>(DocumentKind::Prose));
    m_kind->addItem(tr("Screenplay"), static_cast<int>(DocumentKind::Screenplay));
    m_kind->addItem(tr("Note"), static_cast<int>(DocumentKind::Note));
    m_tension->setRange(0, tensionSteps);
    m_tension->setKeyboardTracking(false);
    m_target->setRange(0, largestTarget);
    m_target->setSingleStep(targetStep);
    m_target->setGroupSeparatorShown(true);
    m_target->setSpecialValueText(tr("None"));
    m_target->setKeyboardTracking(false);
    connectFields();
}

void DocumentSection::connectFields()
{
    namespace doc = core::document;
    holdTyping();
    connectSynopsis();
    connect(m_kind, &QComboBox::activated, this, [this] {
        apply<doc::SetDocumentKindCommand, &Document::documentKind>(
            static_cast<DocumentKind>(m_kind->currentData().toInt()));
    });
    const auto commitStatus = [this] {
        apply<doc::SetDocumentStatusCommand, &Document::status>(m_status->currentText());
    };
    connect(m_status, &QComboBox::activated, this, commitStatus);
    connect(m_status->lineEdit(), &QLineEdit::editingFinished, this, commitStatus);
    const auto commitPointOfView = [this] {
        apply<doc::SetDocumentPointOfViewCommand, &Document::pointOfView>(m_pointOfView->currentText());
    };
    connect(m_pointOfView, &QComboBox::activated, this, commitPointOfView);
    connect(m_pointOfView->lineEdit(), &QLineEdit::editingFinished, this, commitPointOfView);
    connect(m_tension, &QSpinBox::valueChanged, this, [this](int value) {
        apply<doc::SetDocumentTensionLevelCommand, &Document::tensionLevel>(value);
    });
    connect(m_target, &QSpinBox::valueChanged, this, [this](int value) {
        fields::fitWordsSuffix(*m_target);
        apply<doc::SetDocumentTargetCommand, &Document::wordCountTarget>(value);
    });
    connect(
        m_sceneDate, &fields::StoryDateEdit::instantEdited, this,
        [this](const std::optional<core::calendar::StoryInstant>& instant) {
            apply<doc::SetDocumentSceneInstantCommand, &Document::sceneInstant>(instant);
        });
}

template <class Command, auto Getter, class Value>
void DocumentSection::apply(Value value)
{
    auto* const shown = m_desk.session.projectForCommands().findAsForEdit<Document>(m_id);
    if (shown && !shown->isLocked() && (shown->*Getter)() != value)
        m_desk.session.apply(std::make_unique<Command>(*shown, std::move(value)));
}

const Document* DocumentSection::document() const
{
    return m_desk.session.project().findAs<Document>(m_id);
}

void DocumentSection::holdTyping()
{
    // Before the fields are connected to what stores them: a field that stores holds nothing any more.
    const auto hold = [this](std::function<void()> commit, shell::CommitReason least) {
        m_held.push_back(new shell::PendingEdit(m_desk.session, this, std::move(commit), least));
        return m_held.back();
    };
    m_heldSynopsis = hold([this] { commitSynopsis(); }, shell::CommitReason::InPassing);
    // Half a word, number or date is another one, and storing it writes it anew under the cursor.
    for (QComboBox* const box : {m_status, m_pointOfView}) {
        QLineEdit* const text = box->lineEdit();
        auto* const held = hold([text] { emit text->editingFinished(); }, shell::CommitReason::Asked);
        held->follow(*text);
        connect(box, &QComboBox::activated, held, &shell::PendingEdit::end);
    }
    for (QSpinBox* const box : {m_tension, m_target}) {
        auto* const held = hold([box] { box->interpretText(); }, shell::CommitReason::Asked);
        held->follow(*box->findChild<QLineEdit*>());
        connect(box, &QSpinBox::editingFinished, held, &shell::PendingEdit::end);
    }
    hold([this] { m_sceneDate->commit(); }, shell::CommitReason::Asked)->follow(m_sceneDate->lineEdit());
}

void DocumentSection::connectSynopsis()
{
    new fields::EditorKeys(*m_synopsis, [this] {
        if (m_synopsis->text() == m_shownSynopsis)
            return false;
        showSynopsis(m_shownSynopsis);
        m_heldSynopsis->end();
        return true;
    });
    connect(m_synopsis, &fields::GrowingTextEdit::left, this, &DocumentSection::commitSynopsis);
    connect(m_synopsis, &QTextEdit::textChanged, this, [this] {
        if (m_synopsis->text() != m_shownSynopsis)
            m_heldSynopsis->begin();
    });
}

void DocumentSection::showSynopsis(const QString& text)
{
    m_shownSynopsis = text;
    if (m_synopsis->text() != text)
        m_synopsis->setText(text);
}

void DocumentSection::commitSynopsis()
{
    const QString text = m_synopsis->text();
    if (text == m_shownSynopsis)
        return;
    m_shownSynopsis = text;
    m_heldSynopsis->end();
    apply<core::document::SetDocumentSynopsisCommand, &Document::synopsis>(text);
}

void DocumentSection::showDocument(const core::ContentId& id)
{
    if (id != m_id)
        std::ranges::for_each(m_held, &shell::PendingEdit::commit);
    m_id = id;
    const Document* const shown = document();
    setEnabled(shown && !shown->isLocked());
    if (!shown)
        return;
    showSynopsis(shown->synopsis());
    fillSuggestions();
    const QSignalBlocker kindBlocker(m_kind);
    m_kind->setCurrentIndex(m_kind->findData(static_cast<int>(shown->documentKind())));
    const QSignalBlocker tensionBlocker(m_tension);
    // A file may hold any number; showing it must not change it.
    m_tension->setRange(std::min(0, shown->tensionLevel()), std::max(tensionSteps, shown->tensionLevel()));
    m_tension->setValue(shown->tensionLevel());
    const QSignalBlocker targetBlocker(m_target);
    m_target->setRange(
        std::min(0, shown->wordCountTarget()), std::max(largestTarget, shown->wordCountTarget()));
    m_target->setValue(shown->wordCountTarget());
    fields::fitWordsSuffix(*m_target);
    m_sceneDate->setCalendar(m_desk.session.project().calendar());
    m_sceneDate->setInstant(shown->sceneInstant());
}

void DocumentSection::fillSuggestions()
{
    const core::project::Project& project = m_desk.session.project();
    setSuggestions(*m_status, manuscript::orderedStatuses(project), document()->status());
    setSuggestions(*m_pointOfView, manuscript::knownPointsOfView(project), document()->pointOfView());
}

} // namespace tw::desktop::inspector
