#include "desktop/settings/KeysPage.h"

#include "desktop/fields/NoteLabel.h"
#include "desktop/settings/KeysModel.h"
#include "desktop/settings/Shortcuts.h"
#include "desktop/shell/Questions.h"

#include <QAccessibleWidget>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeySequenceEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <QVBoxLayout>

namespace tw::desktop::settings {

using namespace Qt::Literals::StringLiterals;

namespace {

QPushButton* makeButton(const QString& text, QWidget* parent)
{
    auto* const button = new QPushButton(text, parent);
    button->setAutoDefault(false);
    return button;
}

/** The toolkit has a screen reader take the field for a pane. */
QAccessibleInterface* describeKeyField(const QString& className, QObject* object)
{
    auto* const field =
        className == "QKeySequenceEdit"_L1 ? qobject_cast<QKeySequenceEdit*>(object) : nullptr;
    return field ? new QAccessibleWidget(field, QAccessible::HotkeyField) : nullptr;
}

} // namespace

KeysPage::KeysPage(const shell::DeskContext& desk, Shortcuts& shortcuts, QWidget* parent)
    : QWidget(parent)
    , m_shortcuts(shortcuts)
    , m_rows(new QSortFilterProxyModel(this))
    , m_table(new QTableView(this))
    , m_keys(new QKeySequenceEdit(this))
    , m_note(new fields::NoteLabel(desk.themes, this))
{
    QAccessible::installFactory(describeKeyField);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    addTable(*layout);
    addEditor(*layout);
    layout->addWidget(m_note);
    addResets(*layout);
    connect(&shortcuts, &Shortcuts::changed, this, &KeysPage::showCurrent);
    connect(m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this, &KeysPage::showCurrent);
    m_table->selectRow(0);
    showCurrent();
}

void KeysPage::addTable(QVBoxLayout& layout)
{
    auto* const filter = new QLineEdit(this);
    filter->setPlaceholderText(tr("Search commands and keys"));
    filter->setAccessibleName(tr("Search commands and keys"));
    filter->setClearButtonEnabled(true);
    layout.addWidget(filter);
    m_rows->setSourceModel(new KeysModel(m_shortcuts, m_rows));
    m_rows->setFilterKeyColumn(-1);
    m_rows->setFilterCaseSensitivity(Qt::CaseInsensitive);
    connect(filter, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_rows->setFilterFixedString(text);
        if (!m_table->currentIndex().isValid())
            m_table->selectRow(0);
        showCurrent();
    });
    m_table->setModel(m_rows);
    m_table->setObjectName(u"shortcuts"_s);
    m_table->setAccessibleName(tr("Commands and their keys"));
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setTabKeyNavigation(false);
    m_table->setShowGrid(false);
    m_table->setWordWrap(false);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_table->horizontalHeader()->setSectionResizeMode(KeysModel::Command, QHeaderView::Stretch);
    layout.addWidget(m_table, 1);
}

void KeysPage::addEditor(QVBoxLayout& layout)
{
    auto* const line = new QHBoxLayout;
    auto* const label = new QLabel(tr("New &keys"), this);
    label->setBuddy(m_keys);
    line->addWidget(label);
    m_keys->setAccessibleName(tr("New keys"));
    m_keys->setToolTip(tr("Press the keys here"));
    line->addWidget(m_keys, 1);
    m_assign = makeButton(tr("&Assign"), this);
    m_clear = makeButton(tr("&Remove Keys"), this);
    line->addWidget(m_assign);
    line->addWidget(m_clear);
    layout.addLayout(line);
    connect(m_keys, &QKeySequenceEdit::keySequenceChanged, this, &KeysPage::checkKeys);
    connect(m_assign, &QPushButton::clicked, this, &KeysPage::assign);
    connect(m_clear, &QPushButton::clicked, this, [this] {
        if (const auto position = current())
            m_shortcuts.clear(*position);
    });
}

void KeysPage::addResets(QVBoxLayout& layout)
{
    auto* const line = new QHBoxLayout;
    m_reset = makeButton(tr("R&eset This One"), this);
    auto* const resetAll = makeButton(tr("Reset A&ll…"), this);
    line->addStretch();
    line->addWidget(m_reset);
    line->addWidget(resetAll);
    layout.addLayout(line);
    connect(m_reset, &QPushButton::clicked, this, [this] {
        if (const auto position = current())
            m_shortcuts.reset(*position);
    });
    connect(resetAll, &QPushButton::clicked, this, [this] {
        const shell::Question question{
            tr("Reset All Keys"),
            tr("Every command gets back the keys it came with. Your own ones are given up."),
            {{tr("Reset All"), QMessageBox::DestructiveRole}}};
        if (shell::ask(this, question))
            m_shortcuts.resetAll();
    });
}

std::optional<std::size_t> KeysPage::current() const
{
    const QModelIndex index = m_rows->mapToSource(m_table->currentIndex());
    return index.isValid() ? std::optional(static_cast<std::size_t>(index.row())) : std::nullopt;
}

void KeysPage::showCurrent()
{
    const auto position = current();
    const Shortcut* const shortcut = position ? &m_shortcuts.all()[*position] : nullptr;
    m_keys->clear();
    m_keys->setEnabled(shortcut != nullptr);
    m_clear->setEnabled(shortcut && !shortcut->current.isEmpty());
    m_reset->setEnabled(shortcut && shortcut->isChanged());
    checkKeys();
}

void KeysPage::checkKeys()
{
    const auto position = current();
    const QKeySequence keys = m_keys->keySequence();
    m_assign->setEnabled(position && !keys.isEmpty());
    const Shortcut* const other =
        position ? findConflict(m_shortcuts.all(), m_shortcuts.all()[*position], keys) : nullptr;
    if (!other) {
        m_note->setNote({});
        return;
    }
    m_note->setNote(
        tr("%1 belongs to “%2” in the menu %3, which would lose it.")
            .arg(keys.toString(QKeySequence::NativeText), other->title, other->menu),
        fields::NoteLabel::Tone::Warning);
}

void KeysPage::assign()
{
    if (const auto position = current())
        m_shortcuts.assign(*position, m_keys->keySequence());
}

} // namespace tw::desktop::settings
