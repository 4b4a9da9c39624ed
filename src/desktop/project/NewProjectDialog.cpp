#include "desktop/project/NewProjectDialog.h"

#include "desktop/fields/NoteLabel.h"
#include "desktop/icons/IconSet.h"
#include "desktop/project/PlaceRows.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace tw::desktop::project {

using namespace Qt::Literals::StringLiterals;
using app::workspace::templates::ProjectTemplate;
using app::workspace::templates::TemplateDescription;
using icons::Icon;

namespace {

constexpr int charactersWide = 72;
constexpr int idRole = Qt::UserRole;
constexpr int descriptionRole = Qt::UserRole + 1;

Icon iconOf(ProjectTemplate chosen)
{
    switch (chosen) {
    case ProjectTemplate::Novel:
        return Icon::Manuscript;
    case ProjectTemplate::Screenplay:
        return Icon::Screenplay;
    case ProjectTemplate::Campaign:
        return Icon::RandomTable;
    case ProjectTemplate::Empty:
        break;
    }
    return Icon::New;
}

} // namespace

NewProjectDialog::NewProjectDialog(const shell::DeskContext& desk, const NewProject& start, QWidget* parent)
    : QDialog(parent)
    , m_description(new fields::NoteLabel(desk.themes, this))
{
    setWindowTitle(tr("New Project"));
    auto* const form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    // The keyboard goes from the name downwards: in the order in which the controls are made.
    m_place = new PlaceRows(desk, *form, this);
    m_templates = new QListWidget(this);
    fillTemplates(start.chosen);
    for (int row = 0; row < m_templates->count(); ++row) {
        QListWidgetItem& item = *m_templates->item(row);
        item.setIcon(desk.icons.icon(iconOf(static_cast<ProjectTemplate>(item.data(idRole).toInt()))));
    }
    form->addRow(tr("&Template"), m_templates);
    form->addRow(QString(), m_description);

    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    QPushButton* const create = buttons->addButton(tr("Create Project"), QDialogButtonBox::AcceptRole);
    create->setObjectName(u"createProject"_s);
    create->setDefault(true);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addStretch();
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &NewProjectDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &NewProjectDialog::reject);
    connect(m_place, &PlaceRows::checked, create, &QPushButton::setEnabled);
    m_place->setPlace(start.place);
    setMinimumWidth(fontMetrics().averageCharWidth() * charactersWide);
}

void NewProjectDialog::fillTemplates(ProjectTemplate chosen)
{
    m_templates->setObjectName(u"projectTemplates"_s);
    m_templates->setAccessibleName(tr("Template"));
    m_templates->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(m_templates, &QListWidget::currentRowChanged, this, &NewProjectDialog::describeTemplate);
    connect(m_templates, &QListWidget::itemDoubleClicked, this, [this] {
        if (checkPlace(m_place->place()))
            accept();
    });
    for (const TemplateDescription& description : app::workspace::templates::templateDescriptions()) {
        auto* const item = new QListWidgetItem(description.title, m_templates);
        item->setData(idRole, static_cast<int>(description.id));
        item->setData(descriptionRole, description.description);
        if (description.id == chosen)
            m_templates->setCurrentItem(item);
    }
    m_templates->setFixedHeight(
        m_templates->sizeHintForRow(0) * m_templates->count() + 2 * m_templates->frameWidth() +
        m_templates->contentsMargins().top() + m_templates->contentsMargins().bottom());
}

void NewProjectDialog::describeTemplate()
{
    m_description->setNote(m_templates->currentItem()->data(descriptionRole).toString());
}

NewProject NewProjectDialog::project() const
{
    return {m_place->place(), static_cast<ProjectTemplate>(m_templates->currentItem()->data(idRole).toInt())};
}

std::optional<NewProject> askForNewProject(
    const shell::DeskContext& desk, QWidget* parent, const NewProject& start)
{
    NewProjectDialog dialog(desk, start, parent);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    setUsualFolder(desk.settings, dialog.project().place.folder);
    return dialog.project();
}

std::optional<NewProject> askForNewProject(const shell::DeskContext& desk, QWidget* parent)
{
    const NewProject start{withFreeName(
        {NewProjectDialog::tr("Untitled"), usualFolder(desk.settings), preferredForm(desk.settings)})};
    return askForNewProject(desk, parent, start);
}

} // namespace tw::desktop::project
