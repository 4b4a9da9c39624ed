#include "desktop/project/PlaceRows.h"

#include "desktop/fields/NoteLabel.h"

#include <QButtonGroup>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

namespace tw::desktop::project {

using namespace Qt::Literals::StringLiterals;
using fields::NoteLabel;

PlaceRows::PlaceRows(const shell::DeskContext& desk, QFormLayout& form, QWidget* dialog)
    : QObject(dialog)
    , m_dialog(dialog)
    , m_name(new QLineEdit(dialog))
    , m_folder(new QLineEdit(dialog))
    , m_form(new QButtonGroup(dialog))
    , m_explanation(new NoteLabel(desk.themes, dialog))
    , m_note(new NoteLabel(desk.themes, dialog))
{
    m_name->setObjectName(u"projectName"_s);
    m_folder->setObjectName(u"projectFolder"_s);
    form.addRow(tr("&Name"), m_name);
    auto* const place = new QHBoxLayout;
    place->addWidget(m_folder, 1);
    auto* const choose = new QPushButton(tr("&Choose…"), dialog);
    choose->setToolTip(tr("Choose a folder for the project"));
    choose->setAutoDefault(false);
    place->addWidget(choose);
    auto* const placeLabel = new QLabel(tr("&Place"), dialog);
    placeLabel->setBuddy(m_folder);
    form.addRow(placeLabel, place);
    m_folder->setAccessibleName(tr("Place"));
    addFormChoice(form);
    form.addRow(QString(), m_note);
    m_note->setObjectName(u"placeNote"_s);

    connect(choose, &QPushButton::clicked, this, &PlaceRows::browse);
    connect(m_name, &QLineEdit::textChanged, this, &PlaceRows::check);
    connect(m_folder, &QLineEdit::textChanged, this, &PlaceRows::check);
    connect(m_form, &QButtonGroup::idToggled, this, &PlaceRows::check);
}

void PlaceRows::addFormChoice(QFormLayout& form)
{
    auto* const choices = new QVBoxLayout;
    for (const ProjectForm choice : {ProjectForm::SingleFile, ProjectForm::Folder}) {
        auto* const button = new QRadioButton(formTitle(choice), m_dialog);
        button->setToolTip(formExplanation(choice));
        m_form->addButton(button, static_cast<int>(choice));
        choices->addWidget(button);
    }
    choices->addWidget(m_explanation);
    form.addRow(tr("Kept as"), choices);
}

NewPlace PlaceRows::place() const
{
    return {
        m_name->text().trimmed(), QDir::fromNativeSeparators(m_folder->text().trimmed()),
        static_cast<ProjectForm>(m_form->checkedId())};
}

void PlaceRows::setPlace(const NewPlace& place)
{
    m_name->setText(place.name);
    m_folder->setText(QDir::toNativeSeparators(place.folder));
    m_form->button(static_cast<int>(place.form))->setChecked(true);
    m_name->selectAll();
    m_name->setFocus();
    check();
}

void PlaceRows::browse()
{
    const QString folder = QFileDialog::getExistingDirectory(
        m_dialog, tr("Place of the Project"), QDir::fromNativeSeparators(m_folder->text()));
    if (!folder.isEmpty())
        m_folder->setText(QDir::toNativeSeparators(folder));
}

void PlaceRows::check()
{
    if (m_form->checkedId() < 0)
        return;
    const NewPlace present = place();
    const auto possible = checkPlace(present);
    m_explanation->setNote(formExplanation(present.form));
    if (possible)
        m_note->setNote(tr("It will be %1").arg(QDir::toNativeSeparators(pathOf(present))));
    else
        m_note->setNote(possible.message(), NoteLabel::Tone::Error);
    emit checked(possible.isOk());
}

} // namespace tw::desktop::project
