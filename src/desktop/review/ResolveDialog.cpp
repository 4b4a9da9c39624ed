#include "desktop/review/ResolveDialog.h"

#include "desktop/review/ConflictModel.h"
#include "desktop/review/FileDifferences.h"
#include "desktop/theme/ThemeManager.h"

#include <QButtonGroup>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QTextBlock>
#include <QVBoxLayout>

namespace tw::desktop::review {

using app::persistence::FileMerge;
using app::persistence::ProjectMerge;
using app::persistence::Resolution;

namespace {

constexpr int columnsWide = 96; // characters
constexpr int linesHigh = 42;   // of text
constexpr int tableLines = 6;   // rows seen at once without a scroll bar, at least

struct LineLook
{
    QString mark;
    std::optional<theme::Role> background;
    theme::Role ink = theme::Role::Ink;
};

LineLook lookOf(LineSide side)
{
    switch (side) {
    case LineSide::Mine:
        return {ResolveDialog::tr("− "), theme::Role::Deletion};
    case LineSide::Theirs:
        return {ResolveDialog::tr("+ "), theme::Role::Insertion};
    case LineSide::Gap:
        return {ResolveDialog::tr("⋯"), std::nullopt, theme::Role::QuietInk};
    case LineSide::Both:
        break;
    }
    return {QStringLiteral("  "), std::nullopt, theme::Role::QuietInk};
}

} // namespace

ResolveDialog::ResolveDialog(const shell::DeskContext& desk, const ProjectMerge& merge, QWidget* parent)
    : QDialog(parent)
    , m_desk(desk)
    , m_model(new ConflictModel(merge, desk.icons, this))
    , m_table(new QTableView(this))
    , m_differences(new QPlainTextEdit(this))
{
    setWindowTitle(tr("Resolve External Changes"));
    setSizeGripEnabled(true);
    auto* const layout = new QVBoxLayout(this);
    addIntroduction(*layout, merge);
    addTable(*layout);
    addChoices(*layout);
    auto* const title = makeLabel(tr("Differences for the selected file — your version in red (−), the "
                                     "on-disk version in green (+):"));
    title->setBuddy(m_differences);
    layout->addWidget(title);
    m_differences->setReadOnly(true);
    m_differences->setAccessibleName(tr("Differences for the selected file"));
    layout->addWidget(m_differences, 1);
    addButtons(*layout);

    connect(m_model, &ConflictModel::chosen, this, &ResolveDialog::showChoice);
    connect(
        m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
        &ResolveDialog::showCurrent);
    connect(&desk.themes, &theme::ThemeManager::themeChanged, this, &ResolveDialog::showDifferences);
    m_table->selectRow(0);
    showCurrent();
    resize(fontMetrics().averageCharWidth() * columnsWide, fontMetrics().height() * linesHigh);
}

QLabel* ResolveDialog::makeLabel(const QString& text)
{
    auto* const label = new QLabel(text, this);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

void ResolveDialog::addIntroduction(QVBoxLayout& layout, const ProjectMerge& merge)
{
    const int conflicts = m_model->rowCount();
    layout.addWidget(makeLabel(
        tr("%n file(s) changed both on disk and in this window over the same lines and can't be merged "
           "automatically. Choose which version to keep for each.",
           nullptr, conflicts)));
    const int others = static_cast<int>(std::ssize(merge.changes())) - conflicts;
    if (others > 0) {
        layout.addWidget(
            makeLabel(tr("%n other external change(s) will be merged in automatically.", nullptr, others)));
    }
}

void ResolveDialog::addTable(QVBoxLayout& layout)
{
    m_table->setModel(m_model);
    m_table->setAccessibleName(tr("Files to choose for"));
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_table->setTabKeyNavigation(false);
    m_table->setShowGrid(false);
    m_table->setWordWrap(false);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
    m_table->horizontalHeader()->setSectionResizeMode(ConflictModel::FileColumn, QHeaderView::Stretch);
    m_table->horizontalHeader()->setSectionResizeMode(
        ConflictModel::ResolutionColumn, QHeaderView::ResizeToContents);
    m_table->setMinimumHeight(m_table->verticalHeader()->defaultSectionSize() * tableLines);
    layout.addWidget(m_table);
}

void ResolveDialog::addChoices(QVBoxLayout& layout)
{
    auto* const row = new QHBoxLayout;
    auto* const group = new QButtonGroup(this);
    for (const Resolution resolution : {Resolution::Mine, Resolution::Theirs, Resolution::Paragraphs}) {
        auto* const button = new QRadioButton(this);
        group->addButton(button);
        row->addWidget(button);
        m_choices.push_back({resolution, button});
        connect(button, &QRadioButton::clicked, this, [this, resolution] { chooseForSelected(resolution); });
    }
    row->addStretch();
    const auto addBulk = [&](const QString& text, Resolution resolution) {
        auto* const button = new QPushButton(text, this);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, resolution] { chooseForAll(resolution); });
        row->addWidget(button);
    };
    addBulk(tr("Keep All Mine"), Resolution::Mine);
    addBulk(tr("Take All from Disk"), Resolution::Theirs);
    layout.addLayout(row);
}

void ResolveDialog::addButtons(QVBoxLayout& layout)
{
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_apply = buttons->addButton(tr("Apply and Reload"), QDialogButtonBox::AcceptRole);
    m_apply->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &ResolveDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ResolveDialog::reject);
    layout.addWidget(buttons);
}

std::vector<FileResolution> ResolveDialog::resolutions() const
{
    std::vector<FileResolution> result;
    for (int row = 0; row < m_model->rowCount(); ++row)
        result.push_back({m_model->file(row).path, m_model->resolution(row)});
    return result;
}

void ResolveDialog::chooseForSelected(Resolution resolution)
{
    for (const QModelIndex& index : m_table->selectionModel()->selectedRows())
        m_model->choose(index.row(), resolution);
}

void ResolveDialog::chooseForAll(Resolution resolution)
{
    for (int row = 0; row < m_model->rowCount(); ++row)
        m_model->choose(row, resolution);
}

void ResolveDialog::showCurrent()
{
    showChoice();
    showDifferences();
}

void ResolveDialog::showChoice()
{
    m_apply->setEnabled(m_model->isDecided());
    m_apply->setToolTip(m_model->isDecided() ? QString() : tr("Choose a version for every file first."));
    const QModelIndex current = m_table->currentIndex();
    if (!current.isValid())
        return;
    const FileMerge& file = m_model->file(current.row());
    for (const auto& [resolution, button] : m_choices) {
        const QString text = ConflictModel::choiceText(file, resolution);
        button->setVisible(!text.isEmpty());
        button->setText(text);
        // A group always has one checked button, unless it may have none for the moment.
        button->group()->setExclusive(false);
        button->setChecked(m_model->resolution(current.row()) == resolution);
        button->group()->setExclusive(true);
    }
}

void ResolveDialog::showDifferences()
{
    m_differences->clear();
    const QModelIndex current = m_table->currentIndex();
    if (!current.isValid())
        return;
    QTextCursor cursor(m_differences->document());
    bool isFirst = true;
    for (const auto& [side, text, words] : fileDifferences(m_model->file(current.row()))) {
        const LineLook look = lookOf(side);
        QTextBlockFormat block;
        if (look.background)
            block.setBackground(m_desk.themes.theme().color(*look.background));
        QTextCharFormat characters;
        characters.setForeground(m_desk.themes.theme().color(look.ink));
        if (isFirst)
            cursor.setBlockFormat(block);
        else
            cursor.insertBlock(block);
        isFirst = false;
        cursor.insertText(look.mark + text, characters);
        QTextCharFormat emphasis;
        emphasis.setFontWeight(QFont::Bold);
        emphasis.setFontUnderline(true);
        for (const core::foundation::IndexRange& word : words) {
            QTextCursor marked(cursor.block());
            marked.setPosition(cursor.block().position() + static_cast<int>(look.mark.size() + word.first));
            marked.setPosition(marked.position() + static_cast<int>(word.count), QTextCursor::KeepAnchor);
            marked.mergeCharFormat(emphasis);
        }
    }
    m_differences->moveCursor(QTextCursor::Start);
}

} // namespace tw::desktop::review
