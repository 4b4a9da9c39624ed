#include "desktop/project/RestoreDialog.h"

#include "desktop/project/BackupModel.h"
#include "desktop/project/PlaceRows.h"
#include "desktop/project/ProjectFileDialogs.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

namespace tw::desktop::project {

using namespace Qt::Literals::StringLiterals;
using app::persistence::BackupFile;

namespace {

constexpr int charactersWide = 84;
constexpr int linesHigh = 34;
constexpr int listLines = 6;

} // namespace

std::vector<BackupFile> backupsToShow(const RestoreSubject& subject, bool isEveryProject)
{
    std::vector<BackupFile> shown = subject.backups;
    if (!isEveryProject)
        std::erase_if(
            shown, [&](const BackupFile& file) { return file.name.project != subject.projectName; });
    return shown;
}

QString nameOfBackup(const QString& path)
{
    const QFileInfo file(path);
    const auto name = app::persistence::parseBackupName(file.fileName());
    return name ? name->project : file.completeBaseName();
}

RestoreDialog::RestoreDialog(const shell::DeskContext& desk, RestoreSubject subject, QWidget* parent)
    : QDialog(parent)
    , m_subject(std::move(subject))
    , m_model(new BackupModel(this))
    , m_table(new QTableView(this))
    , m_empty(new QLabel(tr("There are no backups yet. “Back Up Project” makes one."), this))
    , m_everyProject(new QCheckBox(tr("Show the backups of &all projects"), this))
    , m_chosen(new QLabel(this))
{
    setWindowTitle(tr("Restore from a Backup"));
    setSizeGripEnabled(true);
    auto* const layout = new QVBoxLayout(this);
    auto* const introduction =
        new QLabel(tr("A backup becomes a new project. The project it was made of stays as it is."), this);
    introduction->setWordWrap(true);
    layout->addWidget(introduction);
    addList(*layout);
    addPlace(desk, *layout);

    const bool hasOwn = !backupsToShow(m_subject, false).empty();
    m_everyProject->setVisible(hasOwn);
    m_everyProject->setChecked(!hasOwn);
    connect(m_everyProject, &QCheckBox::toggled, this, &RestoreDialog::showBackups);
    connect(
        m_table->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this](const auto& row) {
            if (row.isValid())
                choose(m_model->backup(row.row()).path);
        });
    showBackups();
    if (!m_subject.chosenFile.isEmpty()) {
        m_table->setCurrentIndex({});
        choose(m_subject.chosenFile);
    }
    refresh();
    resize(fontMetrics().averageCharWidth() * charactersWide, fontMetrics().height() * linesHigh);
}

void RestoreDialog::addList(QVBoxLayout& layout)
{
    m_table->setModel(m_model);
    m_table->setObjectName(u"backups"_s);
    m_table->setAccessibleName(tr("Backups"));
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_table->setSelectionMode(QAbstractItemView::SingleSelection);
    m_table->setTabKeyNavigation(false);
    m_table->setShowGrid(false);
    m_table->setWordWrap(false);
    m_table->verticalHeader()->hide();
    m_table->horizontalHeader()->setHighlightSections(false);
    m_table->horizontalHeader()->setDefaultAlignment(Qt::AlignLeading | Qt::AlignVCenter);
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_table->horizontalHeader()->setSectionResizeMode(BackupModel::Project, QHeaderView::Stretch);
    m_table->setMinimumHeight(fontMetrics().lineSpacing() * listLines);
    m_empty->setAlignment(Qt::AlignCenter);
    m_empty->setWordWrap(true);
    m_empty->setForegroundRole(QPalette::PlaceholderText);
    layout.addWidget(m_table, 1);
    layout.addWidget(m_empty, 1);
    layout.addWidget(m_everyProject);

    auto* const line = new QHBoxLayout;
    m_chosen->setTextFormat(Qt::PlainText);
    m_chosen->setWordWrap(true);
    line->addWidget(m_chosen, 1);
    auto* const chooseOther = new QPushButton(tr("Choose a &File…"), this);
    chooseOther->setAutoDefault(false);
    connect(chooseOther, &QPushButton::clicked, this, &RestoreDialog::chooseFile);
    line->addWidget(chooseOther);
    layout.addLayout(line);
}

void RestoreDialog::addPlace(const shell::DeskContext& desk, QVBoxLayout& layout)
{
    auto* const form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_place = new PlaceRows(desk, *form, this);
    layout.addLayout(form);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_restore = buttons->addButton(tr("Restore as New Project"), QDialogButtonBox::AcceptRole);
    m_restore->setObjectName(u"restoreBackup"_s);
    m_restore->setDefault(true);
    layout.addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &RestoreDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &RestoreDialog::reject);
    connect(m_place, &PlaceRows::checked, this, [this](bool isPossible) {
        m_isPlacePossible = isPossible;
        refresh();
    });
    m_place->setPlace(m_subject.place);
    m_suggestedName = m_subject.place.name;
}

void RestoreDialog::showBackups()
{
    m_model->setBackups(backupsToShow(m_subject, m_everyProject->isChecked()));
    const bool isEmpty = m_model->rowCount() == 0;
    m_table->setVisible(!isEmpty);
    m_empty->setVisible(isEmpty);
    if (!isEmpty)
        m_table->selectRow(0);
}

void RestoreDialog::chooseFile()
{
    const QString start = m_backupPath.isEmpty() ? m_subject.place.folder : QFileInfo(m_backupPath).path();
    const QString path = askForBackupFile(start, this);
    if (path.isEmpty())
        return;
    m_table->clearSelection();
    m_table->setCurrentIndex({});
    choose(path);
}

void RestoreDialog::choose(const QString& path)
{
    m_backupPath = path;
    NewPlace place = m_place->place();
    // A name that the user gave stays.
    if (place.name == m_suggestedName) {
        place.name = nameOfBackup(path);
        place = withFreeName(place);
        m_suggestedName = place.name;
        m_place->setPlace(place);
    }
    refresh();
}

void RestoreDialog::refresh()
{
    m_chosen->setText(
        m_backupPath.isEmpty() ? tr("No backup is chosen.")
                               : tr("From %1").arg(QDir::toNativeSeparators(m_backupPath)));
    m_restore->setEnabled(m_isPlacePossible && !m_backupPath.isEmpty());
}

Restoration RestoreDialog::restoration() const
{
    return {m_backupPath, m_place->place()};
}

} // namespace tw::desktop::project
