#include "desktop/settings/SavingPage.h"

#include "app/persistence/bundle/BackupList.h"
#include "desktop/fields/NoteLabel.h"
#include "desktop/project/NewPlace.h"
#include "desktop/settings/AutosaveChoice.h"
#include "desktop/shell/ProjectSession.h"

#include <QCheckBox>
#include <QDir>
#include <QFormLayout>
#include <QLineEdit>
#include <QSettings>
#include <QSpinBox>

namespace tw::desktop::settings {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QLatin1StringView reopenKey = "general/reopenLast"_L1;

} // namespace

SavingPage::SavingPage(const shell::DeskContext& desk, QWidget* parent)
    : QWidget(parent)
    , m_desk(desk)
    , m_autosave(new QCheckBox(tr("Save &by itself while I write"), this))
    , m_interval(new QSpinBox(this))
{
    auto* const form = new QFormLayout(this);
    form->setContentsMargins(0, 0, 0, 0);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    addAutosave(*form);
    addForm(*form);
    addStart(*form);
    addBackups(*form);
}

void SavingPage::addAutosave(QFormLayout& form)
{
    const shell::AutosaveSettings present = autosaveFrom(m_desk.settings);
    m_autosave->setObjectName(u"autosave"_s);
    m_autosave->setChecked(present.isOn);
    m_interval->setObjectName(u"autosaveInterval"_s);
    m_interval->setRange(
        static_cast<int>(app::persistence::shortestAutosave.count()),
        static_cast<int>(app::persistence::longestAutosave.count()));
    m_interval->setSuffix(tr(" seconds"));
    m_interval->setValue(static_cast<int>(present.interval.count()));
    m_interval->setEnabled(present.isOn);
    m_interval->setKeyboardTracking(false);
    form.addRow(QString(), m_autosave);
    form.addRow(tr("&Every"), m_interval);
    connect(m_autosave, &QCheckBox::toggled, m_interval, &QSpinBox::setEnabled);
    connect(m_autosave, &QCheckBox::toggled, this, &SavingPage::storeAutosaveChoice);
    connect(m_interval, &QSpinBox::valueChanged, this, &SavingPage::storeAutosaveChoice);
}

void SavingPage::storeAutosaveChoice()
{
    const shell::AutosaveSettings chosen{m_autosave->isChecked(), std::chrono::seconds(m_interval->value())};
    storeAutosave(m_desk.settings, chosen);
    m_desk.session.setAutosave(chosen);
}

void SavingPage::addForm(QFormLayout& form)
{
    using project::ProjectForm;
    auto* const asFolder = new QCheckBox(tr("Keep new projects as &folders"), this);
    asFolder->setObjectName(u"folderProjects"_s);
    asFolder->setChecked(project::preferredForm(m_desk.settings) == ProjectForm::Folder);
    connect(asFolder, &QCheckBox::toggled, this, [this](bool isOn) {
        project::setPreferredForm(m_desk.settings, isOn ? ProjectForm::Folder : ProjectForm::SingleFile);
    });
    auto* const explanation = new fields::NoteLabel(m_desk.themes, this);
    explanation->setNote(
        tr("Off (recommended): the project is one .vellory file you can copy, back up, and double-click. On: "
           "the project is a folder of plain text files, ideal under Git, Perforce, or a sync client."));
    form.addRow(QString(), asFolder);
    form.addRow(QString(), explanation);
}

void SavingPage::addStart(QFormLayout& form)
{
    auto* const reopen = new QCheckBox(tr("&Open the last project when Vellory starts"), this);
    reopen->setObjectName(u"reopenLast"_s);
    reopen->setChecked(m_desk.settings.value(reopenKey, u"true"_s).toString() == u"true");
    connect(reopen, &QCheckBox::toggled, this, [this](bool isOn) {
        m_desk.settings.setValue(reopenKey, isOn ? u"true"_s : u"false"_s);
    });
    form.addRow(QString(), reopen);
}

void SavingPage::addBackups(QFormLayout& form)
{
    const QString folder = app::persistence::backupsFolder(m_desk.session.workspace().environment());
    auto* const place = new QLineEdit(QDir::toNativeSeparators(folder), this);
    place->setReadOnly(true);
    place->setCursorPosition(0);
    form.addRow(tr("Bac&kups are kept in"), place);
}

} // namespace tw::desktop::settings
