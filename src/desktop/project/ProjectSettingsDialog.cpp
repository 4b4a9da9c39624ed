#include "desktop/project/ProjectSettingsDialog.h"

#include "app/workspace/ProjectPlace.h"
#include "desktop/fields/ListEditor.h"
#include "desktop/fields/NoteLabel.h"
#include "desktop/project/ProjectFileDialogs.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/shell/Questions.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace tw::desktop::project {

using namespace Qt::Literals::StringLiterals;
using core::project::LibraryMount;

namespace {

constexpr int charactersWide = 88;
constexpr int linesHigh = 32;

/** Of an audience's row: the name that objects know it by. */
constexpr int originalRole = Qt::UserRole;
/** Of a library's row: what the project keeps. */
constexpr int pathRole = Qt::UserRole;
constexpr int writableRole = Qt::UserRole + 1;

} // namespace

ProjectSettingsDialog::ProjectSettingsDialog(
    const shell::DeskContext& desk, const ProjectSettings& settings, QWidget* parent)
    : QDialog(parent)
    , m_desk(desk)
    , m_name(new QLineEdit(settings.name, this))
    , m_audiences(new fields::ListEditor(
          desk, tr("Audiences"), tr("No audiences: everything is for everyone."), this))
    , m_libraries(new fields::ListEditor(
          desk, tr("Libraries"), tr("No libraries: add another project to refer to what it holds."), this))
    , m_note(new fields::NoteLabel(desk.themes, this))
{
    setWindowTitle(tr("Project Settings"));
    setSizeGripEnabled(true);
    m_name->setObjectName(u"projectName"_s);
    auto* const audiencesNote = new fields::NoteLabel(desk.themes, this);
    audiencesNote->setNote(tr("What is new is visible to the ticked ones; with none ticked, to everyone."));
    auto* const librariesNote = new fields::NoteLabel(desk.themes, this);
    librariesNote->setNote(
        tr("Other projects whose entities can be referred to from this one. They are only read."));
    auto* const form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(tr("&Name"), m_name);
    form->addRow(tr("Audiences"), m_audiences);
    form->addRow(QString(), audiencesNote);
    form->addRow(tr("Libraries"), m_libraries);
    form->addRow(QString(), librariesNote);

    addAudiences();
    addLibraries();
    for (const AudienceRow& row : settings.audiences)
        addAudience(row);
    for (const LibraryMount& mount : settings.libraries)
        addLibrary(mount);

    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    buttons->addButton(tr("Apply Settings"), QDialogButtonBox::AcceptRole)->setDefault(true);
    connect(buttons, &QDialogButtonBox::accepted, this, &ProjectSettingsDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ProjectSettingsDialog::reject);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(form, 1);
    layout->addWidget(m_note);
    layout->addWidget(buttons);
    resize(fontMetrics().averageCharWidth() * charactersWide, fontMetrics().height() * linesHigh);
}

void ProjectSettingsDialog::addAudiences()
{
    m_audiences->list().setObjectName(u"audiences"_s);
    connect(m_audiences->addButton(tr("&Add Audience")), &QPushButton::clicked, this, [this] {
        addAudience({{}, tr("New audience")});
        QListWidget& list = m_audiences->list();
        list.setCurrentRow(list.count() - 1);
        list.setFocus();
        list.editItem(list.currentItem());
    });
    connect(m_audiences, &fields::ListEditor::removeRequested, this, &ProjectSettingsDialog::removeAudience);
}

void ProjectSettingsDialog::addAudience(const AudienceRow& row)
{
    auto* const item = new QListWidgetItem(row.name, &m_audiences->list());
    item->setData(originalRole, row.original);
    item->setFlags(item->flags() | Qt::ItemIsEditable | Qt::ItemIsUserCheckable);
    item->setCheckState(row.isDefault ? Qt::Checked : Qt::Unchecked);
}

void ProjectSettingsDialog::removeAudience(int row)
{
    const QString original = m_audiences->list().item(row)->data(originalRole).toString();
    const AudienceUse use = useOf(m_desk.session.project(), original);
    if (use.objects > 0) {
        QString text = tr("“%1” is an audience of %n things.", nullptr, use.objects).arg(original);
        if (use.alone > 0) {
            text += u' ' +
                    tr("%n of them name no other audience, so everyone would see them.", nullptr, use.alone);
        }
        const shell::Question question{
            tr("Remove Audience"), text, {{tr("Remove Audience"), QMessageBox::DestructiveRole}}};
        if (!shell::ask(this, question))
            return;
    }
    delete m_audiences->list().takeItem(row);
}

void ProjectSettingsDialog::addLibraries()
{
    m_libraries->list().setObjectName(u"libraries"_s);
    connect(m_libraries->addButton(tr("Add &File…")), &QPushButton::clicked, this, [this] {
        chooseLibrary(askForProjectFile(m_desk.settings, this));
    });
    connect(m_libraries->addButton(tr("Add F&older…")), &QPushButton::clicked, this, [this] {
        chooseLibrary(askForProjectFolder(m_desk.settings, this));
    });
    connect(m_libraries, &fields::ListEditor::removeRequested, this, [this](int row) {
        delete m_libraries->list().takeItem(row);
    });
}

void ProjectSettingsDialog::addLibrary(const LibraryMount& mount)
{
    auto* const item = new QListWidgetItem(QDir::toNativeSeparators(mount.path), &m_libraries->list());
    item->setData(pathRole, mount.path);
    item->setData(writableRole, mount.isWritable);
    item->setToolTip(QDir::toNativeSeparators(mount.path));
}

void ProjectSettingsDialog::chooseLibrary(const QString& path)
{
    if (path.isEmpty())
        return;
    const app::workspace::Workspace& workspace = m_desk.session.workspace();
    const QString kept = mountPath(app::workspace::baseOfRelativePaths(workspace.displayPath()), path);
    if (QDir::cleanPath(path) == workspace.displayPath()) {
        m_note->setNote(
            tr("A project is no library of itself. Choose another one."), fields::NoteLabel::Tone::Error);
        return;
    }
    for (const LibraryMount& mount : settings().libraries) {
        if (mount.path == kept) {
            m_note->setNote(
                tr("%1 is already in the list.").arg(QDir::toNativeSeparators(path)),
                fields::NoteLabel::Tone::Error);
            return;
        }
    }
    m_note->setNote({});
    addLibrary({kept});
    m_libraries->list().setCurrentRow(m_libraries->list().count() - 1);
}

ProjectSettings ProjectSettingsDialog::settings() const
{
    ProjectSettings settings{m_name->text().trimmed(), {}, {}};
    for (int row = 0; row < m_audiences->list().count(); ++row) {
        const QListWidgetItem& item = *m_audiences->list().item(row);
        settings.audiences.push_back(
            {item.data(originalRole).toString(), item.text().trimmed(), item.checkState() == Qt::Checked});
    }
    for (int row = 0; row < m_libraries->list().count(); ++row) {
        const QListWidgetItem& item = *m_libraries->list().item(row);
        settings.libraries.push_back({item.data(pathRole).toString(), item.data(writableRole).toBool()});
    }
    return settings;
}

void ProjectSettingsDialog::focusAudiences()
{
    QListWidget& list = m_audiences->list();
    if (list.count() > 0)
        list.setCurrentRow(0);
    list.setFocus();
}

void ProjectSettingsDialog::accept()
{
    // A name that is still being edited counts.
    setFocus();
    if (const auto possible = checkSettings(settings()); !possible)
        return m_note->setNote(possible.message(), fields::NoteLabel::Tone::Error);
    QDialog::accept();
}

void editProjectSettings(const shell::DeskContext& desk, QWidget* parent, ProjectSettingsPart part)
{
    ProjectSettingsDialog dialog(desk, settingsOf(desk.session.project()), parent);
    if (part == ProjectSettingsPart::Audiences)
        dialog.focusAudiences();
    if (dialog.exec() == QDialog::Accepted)
        applySettings(desk.session, dialog.settings());
}

} // namespace tw::desktop::project
