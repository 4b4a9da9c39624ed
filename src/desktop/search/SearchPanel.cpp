#include "desktop/search/SearchPanel.h"

#include "desktop/icons/IconSet.h"
#include "desktop/search/MatchDelegate.h"
#include "desktop/search/SearchEdits.h"
#include "desktop/search/SearchModel.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ProjectSession.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QStackedWidget>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>

#include <chrono>

namespace tw::desktop::search {

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;
using app::search::TextMatcher;
using icons::Icon;

namespace {

constexpr auto rest = 250ms;
constexpr int margin = 8;
constexpr int spacing = 4;

QLineEdit* field(const QString& hint, QWidget* parent)
{
    auto* const made = new QLineEdit(parent);
    made->setPlaceholderText(hint);
    made->setAccessibleName(hint);
    made->setClearButtonEnabled(true);
    return made;
}

} // namespace

SearchPanel::SearchPanel(const shell::DeskContext& desk, QWidget* parent)
    : QWidget(parent)
    , m_desk(desk)
    , m_search(new ProjectSearch(desk.session, this))
    , m_model(new SearchModel(desk.icons, this))
    , m_text(field(tr("Search the project"), this))
    , m_case(addSwitch(u"Aa"_s, tr("Match case")))
    , m_word(addSwitch(u"|ab|"_s, tr("Whole words")))
    , m_expression(addSwitch(u".*"_s, tr("Regular expression")))
    , m_replaceSwitch(new QToolButton(this))
    , m_replaceRow(new QWidget(this))
    , m_replacement(field(tr("Replace with"), m_replaceRow))
    , m_replace(new QPushButton(tr("&Replace"), m_replaceRow))
    , m_titles(new QCheckBox(tr("Titles and synopses"), this))
    , m_state(new QLabel(this))
    , m_cancel(new QPushButton(tr("Cancel"), this))
    , m_tree(new QTreeView(this))
    , m_hint(new QLabel(this))
    , m_results(new QStackedWidget(this))
{
    setAccessibleName(tr("Search"));
    setFocusProxy(m_text);
    buildLayout();
    connectParts();
    showReplaceRow(false);
    refreshState();
}

SearchPanel::~SearchPanel() = default;

QToolButton* SearchPanel::addSwitch(const QString& text, const QString& name)
{
    auto* const made = new QToolButton(this);
    made->setAutoRaise(true);
    made->setCheckable(true);
    made->setText(text);
    made->setToolTip(name);
    made->setAccessibleName(name);
    return made;
}

void SearchPanel::buildLayout()
{
    m_text->addAction(m_desk.icons.icon(Icon::Search), QLineEdit::LeadingPosition);
    m_replaceSwitch->setAutoRaise(true);
    m_replaceSwitch->setCheckable(true);
    m_replaceSwitch->setToolTip(tr("Replace"));
    m_replaceSwitch->setAccessibleName(tr("Replace"));
    m_titles->setChecked(true);
    m_state->setWordWrap(true);
    m_state->setForegroundRole(QPalette::PlaceholderText);
    m_hint->setWordWrap(true);
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setForegroundRole(QPalette::PlaceholderText);
    m_hint->setMargin(2 * margin);
    m_tree->setModel(m_model);
    m_tree->setHeaderHidden(true);
    m_tree->setUniformRowHeights(true);
    m_tree->setFrameShape(QFrame::NoFrame);
    m_tree->setItemDelegate(new MatchDelegate(m_desk.themes, m_tree));
    m_tree->setAccessibleName(tr("Search results"));
    m_tree->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_results->addWidget(m_hint);
    m_results->addWidget(m_tree);

    auto* const queryRow = new QHBoxLayout;
    queryRow->setSpacing(spacing);
    queryRow->addWidget(m_replaceSwitch);
    queryRow->addWidget(m_text, 1);
    auto* const replaceRow = new QHBoxLayout(m_replaceRow);
    replaceRow->setContentsMargins(0, 0, 0, 0);
    replaceRow->setSpacing(spacing);
    replaceRow->addWidget(m_replacement, 1);
    replaceRow->addWidget(m_replace);
    auto* const choices = new QHBoxLayout;
    choices->setSpacing(spacing);
    choices->addWidget(m_titles, 1);
    for (QToolButton* const button : {m_case, m_word, m_expression})
        choices->addWidget(button);
    auto* const stateRow = new QHBoxLayout;
    stateRow->addWidget(m_state, 1);
    stateRow->addWidget(m_cancel);
    auto* const top = new QVBoxLayout;
    top->setContentsMargins(margin, spacing, margin, spacing);
    top->setSpacing(spacing);
    top->addLayout(queryRow);
    top->addWidget(m_replaceRow);
    top->addLayout(choices);
    top->addLayout(stateRow);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(top);
    layout->addWidget(m_results, 1);
}

void SearchPanel::connectParts()
{
    m_rest.setSingleShot(true);
    m_rest.setInterval(rest);
    connect(&m_rest, &QTimer::timeout, this, &SearchPanel::search);
    connect(m_text, &QLineEdit::textChanged, &m_rest, qOverload<>(&QTimer::start));
    connect(m_text, &QLineEdit::returnPressed, this, &SearchPanel::search);
    for (QAbstractButton* const button :
         std::initializer_list<QAbstractButton*>{m_case, m_word, m_expression, m_titles})
        connect(button, &QAbstractButton::toggled, this, &SearchPanel::search);
    connect(m_replaceSwitch, &QToolButton::toggled, this, &SearchPanel::showReplaceRow);
    connect(m_replacement, &QLineEdit::textChanged, this, &SearchPanel::followReplacement);
    connect(m_replace, &QPushButton::clicked, this, &SearchPanel::replaceChecked);
    connect(m_cancel, &QPushButton::clicked, this, [this] {
        m_search->cancel();
        refreshState();
    });
    connect(m_search, &ProjectSearch::found, this, &SearchPanel::append);
    connect(m_search, &ProjectSearch::finished, this, &SearchPanel::end);
    connect(m_model, &SearchModel::checkedChanged, this, &SearchPanel::refreshState);
    connect(m_tree, &QTreeView::activated, this, &SearchPanel::openResult);
    // With boxes to choose, a click chooses.
    connect(m_tree, &QTreeView::clicked, this, [this](const QModelIndex& index) {
        if (!m_replaceSwitch->isChecked())
            openResult(index);
    });
    connect(
        &m_desk.session, &shell::ProjectSession::changed, this,
        [this](const core::project::ProjectChanges& changes) {
            if (changes.isEverything)
                search();
            for (int row = 0; row < m_model->rowCount() && !m_isOutdated; ++row)
                m_isOutdated = changes.concerns(m_model->documentAt(m_model->index(row, 0)));
            refreshState();
        });
}

void SearchPanel::lookFor(const QString& text)
{
    m_text->setFocus(Qt::ShortcutFocusReason);
    if (!text.isEmpty()) {
        m_text->setText(text);
        search();
    }
    m_text->selectAll();
}

app::search::TextQuery SearchPanel::query() const
{
    return {m_text->text(), m_case->isChecked(), m_word->isChecked(), m_expression->isChecked()};
}

void SearchPanel::search()
{
    m_rest.stop();
    m_search->cancel();
    m_model->clear();
    m_failure.clear();
    m_isLimitReached = false;
    m_isOutdated = false;
    m_matcher.reset();
    if (!m_text->text().isEmpty()) {
        auto matcher = TextMatcher::create(query());
        if (matcher)
            m_matcher = std::move(matcher).value();
        else
            m_failure = matcher.message();
    }
    followReplacement();
    if (m_matcher)
        m_search->start(*m_matcher, {.hasTitles = m_titles->isChecked()});
    refreshState();
}

void SearchPanel::append(const Results& results)
{
    const int first = m_model->rowCount();
    m_model->append(results);
    for (int row = first; row < m_model->rowCount(); ++row)
        m_tree->expand(m_model->index(row, 0));
    refreshState();
}

void SearchPanel::end(const SearchEnd& end)
{
    m_failure = end.failure;
    m_isLimitReached = end.isLimitReached;
    refreshState();
}

void SearchPanel::showReplaceRow(bool isShown)
{
    m_replaceRow->setVisible(isShown);
    m_replaceSwitch->setIcon(m_desk.icons.icon(isShown ? Icon::ChevronDown : Icon::ChevronRight));
    followReplacement();
    if (isShown)
        m_replacement->setFocus(Qt::OtherFocusReason);
}

void SearchPanel::followReplacement()
{
    m_model->setReplacement(m_replaceSwitch->isChecked() ? m_matcher : std::nullopt, m_replacement->text());
    refreshState();
}

void SearchPanel::replaceChecked()
{
    if (!m_matcher)
        return;
    const ReplacementOutcome outcome =
        replaceMatches(m_desk.session, *m_matcher, m_model->checked(), m_replacement->text());
    QString text = outcome.matches > 0
                       ? tr("%n matches replaced.", nullptr, static_cast<int>(outcome.matches))
                       : tr("Nothing was replaced.");
    if (outcome.refused > 0) {
        text += u' ' + tr("%n matches stand across marks and were left alone; change them in the text.",
                          nullptr, static_cast<int>(outcome.refused));
    }
    if (outcome.locked > 0)
        text += u' ' + tr("%n locked documents were left alone.", nullptr, static_cast<int>(outcome.locked));
    if (outcome.changed > 0) {
        text += u' ' + tr("%n documents changed since the search and were left alone; look at them again.",
                          nullptr, static_cast<int>(outcome.changed));
    }
    m_desk.navigator.say(text);
    search();
}

void SearchPanel::openResult(const QModelIndex& index)
{
    const app::search::TextMatch* const match = m_model->matchAt(index);
    const core::ContentId id = m_model->documentAt(index);
    if (match && match->field == app::search::MatchField::Body)
        m_desk.navigator.openPassage(id, {match->before, match->found, match->after});
    else if (match)
        m_desk.navigator.open(id);
}

void SearchPanel::refreshState()
{
    const auto matches = static_cast<int>(m_model->matchCount());
    const auto documents = static_cast<int>(m_model->documentCount());
    const QString counts = tr("%n matches", nullptr, matches) + u' ' +
                           tr("in %n documents", "after a number of matches", documents);
    QString state;
    if (!m_failure.isEmpty())
        state = m_failure;
    else if (m_search->isRunning())
        state = tr("Searching… %1").arg(counts);
    else if (m_matcher && matches > 0)
        state = m_isLimitReached ? tr("The first %1; there may be more.").arg(counts) : counts;
    if (m_isOutdated && !m_search->isRunning())
        state += u' ' + tr("The text has changed since; press Return to search again.");
    m_state->setText(state);
    m_state->setVisible(!state.isEmpty());
    m_cancel->setVisible(m_search->isRunning());
    m_hint->setText(
        m_matcher && !m_search->isRunning() && m_failure.isEmpty()
            ? tr("Nothing found. Look for fewer letters, or switch off what narrows the search.")
            : tr("Type what you are looking for: all documents are searched, with their titles and synopses. "
                 "The arrow beside the field shows how to replace."));
    m_results->setCurrentWidget(matches > 0 ? static_cast<QWidget*>(m_tree) : m_hint);
    const qsizetype checked = m_replaceSwitch->isChecked() ? m_model->checkedCount() : 0;
    m_replace->setEnabled(checked > 0 && !m_search->isRunning());
    m_replace->setText(checked > 0 ? tr("&Replace %1").arg(QLocale().toString(checked)) : tr("&Replace"));
}

} // namespace tw::desktop::search
