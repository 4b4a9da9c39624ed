#include "desktop/codex/CategoryPropertiesDialog.h"

#include "desktop/codex/FieldDialog.h"
#include "desktop/fields/NoteLabel.h"
#include "desktop/icons/IconSet.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/shell/ProjectSession.h"

#include <QDialogButtonBox>
#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace tw::desktop::codex {

using namespace Qt::Literals::StringLiterals;
using core::taxonomy::Field;
using core::taxonomy::FieldList;
using icons::Icon;

namespace {

constexpr QSize dialogSize(620, 560);
constexpr int keyRole = Qt::UserRole;
constexpr int columnGap = 20;

FieldList without(FieldList fields, int index)
{
    if (index >= 0)
        fields.erase(fields.begin() + index);
    return fields;
}

QString marksOf(const Field& field)
{
    if (field.isFixed)
        return CategoryPropertiesDialog::tr("fixed: %1").arg(field.fixedValue.simplified());
    return field.isRequired ? CategoryPropertiesDialog::tr("required") : QString();
}

QLabel* sectionLabel(const QString& text, QWidget* parent)
{
    auto* const label = new QLabel(text, parent);
    QFont font = label->font();
    font.setWeight(QFont::DemiBold);
    label->setFont(font);
    return label;
}

} // namespace

CategoryPropertiesDialog::CategoryPropertiesDialog(
    const shell::DeskContext& desk, CategoryPropertiesSubject subject, QWidget* parent)
    : QDialog(parent)
    , m_desk(desk)
    , m_subject(std::move(subject))
    , m_properties(m_subject.properties)
    , m_own(new QTreeWidget(this))
    , m_note(new fields::NoteLabel(desk.themes, this))
{
    setWindowTitle(tr("Properties of “%1”").arg(m_subject.categoryName));
    resize(dialogSize);
    auto* const layout = new QVBoxLayout(this);
    makeOwnList(*layout);
    layout->addWidget(m_note);
    if (isUnderEntity() || !m_subject.fromAbove.empty())
        makeAboveList(*layout);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    buttons->addButton(tr("Save Properties"), QDialogButtonBox::AcceptRole)->setDefault(true);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    showFields(0);
}

void CategoryPropertiesDialog::makeOwnList(QVBoxLayout& layout)
{
    QLabel* const heading = sectionLabel(tr("Properties declared here"), this);
    heading->setBuddy(m_own);
    layout.addWidget(heading);
    auto* const row = new QHBoxLayout;
    layout.addLayout(row, 3);
    row->addWidget(m_own, 1);
    m_own->setColumnCount(3);
    m_own->setHeaderHidden(true);
    m_own->setRootIsDecorated(false);
    m_own->setUniformRowHeights(true);
    m_own->setAllColumnsShowFocus(true);
    m_own->setAccessibleName(heading->text());
    auto* const column = new QVBoxLayout;
    row->addLayout(column);
    const auto addButton = [&](Icon icon, const QString& text, auto handler) {
        auto* const button = new QPushButton(m_desk.icons.icon(icon), text, this);
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, handler);
        column->addWidget(button);
        return button;
    };
    addButton(Icon::Add, tr("&Add…"), [this] { addField(); });
    m_edit = addButton(Icon::Rename, tr("&Edit…"), [this] { editField(); });
    m_moveUp = addButton(Icon::MoveUp, tr("Move &Up"), [this] { moveField(-1); });
    m_moveDown = addButton(Icon::MoveDown, tr("Move &Down"), [this] { moveField(1); });
    m_remove = addButton(Icon::Remove, tr("&Remove"), [this] { removeField(); });
    column->addStretch();
    connect(m_own, &QTreeWidget::currentItemChanged, this, &CategoryPropertiesDialog::refreshButtons);
    connect(m_own, &QTreeWidget::itemDoubleClicked, this, &CategoryPropertiesDialog::editField);
}

void CategoryPropertiesDialog::makeAboveList(QVBoxLayout& layout)
{
    m_above = new QListWidget(this);
    QLabel* const heading = sectionLabel(
        isUnderEntity() ? tr("Properties taken from “%1”").arg(m_subject.entityName)
                        : tr("Inherited properties to leave out"),
        this);
    auto* const help = new QLabel(
        isUnderEntity() ? tr("A category under an entity starts with NO inherited properties — nothing "
                             "crosses from an entity "
                             "unless the category asks for it. Tick what it asks for.")
                        : tr("Ticking a property hides it; values already entered stay exactly where they "
                             "are and come back "
                             "the moment you untick it."),
        this);
    help->setWordWrap(true);
    help->setForegroundRole(QPalette::PlaceholderText);
    layout.addWidget(heading);
    layout.addWidget(help);
    layout.addWidget(m_above, 2);
    m_above->setAccessibleName(heading->text());
    const auto& taxonomy = m_desk.session.project().taxonomy();
    for (const auto& resolved : m_subject.fromAbove) {
        const auto* const source = taxonomy.category(resolved.definedBy);
        const QString name = resolved.field.displayName();
        auto* const item = new QListWidgetItem(
            fieldTypeIcon(m_desk.icons, resolved.field.type),
            source ? tr("%1 (from %2)").arg(name, source->name) : name, m_above);
        item->setData(keyRole, resolved.field.key);
        item->setToolTip(resolved.field.description);
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
        item->setCheckState(isCheckedFromAbove(resolved.field.key) ? Qt::Checked : Qt::Unchecked);
    }
    connect(m_above, &QListWidget::itemChanged, this, [this](const QListWidgetItem* item) {
        setFromAbove(item->data(keyRole).toString(), item->checkState() == Qt::Checked);
    });
}

bool CategoryPropertiesDialog::isCheckedFromAbove(const QString& key) const
{
    const bool isExcluded = m_properties.excludedKeys.contains(key);
    return isUnderEntity() ? m_properties.inheritedKeys.contains(key) && !isExcluded : isExcluded;
}

void CategoryPropertiesDialog::setFromAbove(const QString& key, bool isChecked)
{
    QStringList& keys = isUnderEntity() ? m_properties.inheritedKeys : m_properties.excludedKeys;
    keys.removeAll(key);
    if (isChecked)
        keys.append(key);
    // Asked for is not left out.
    if (isUnderEntity() && isChecked)
        m_properties.excludedKeys.removeAll(key);
}

void CategoryPropertiesDialog::showFields(int current)
{
    m_own->clear();
    for (const Field& field : m_properties.fields) {
        auto* const item =
            new QTreeWidgetItem(m_own, {field.displayName(), fieldTypeTitle(field.type), marksOf(field)});
        item->setIcon(0, fieldTypeIcon(m_desk.icons, field.type));
        item->setToolTip(0, field.description);
        item->setToolTip(2, marksOf(field));
    }
    for (int column = 0; column < 2; ++column) {
        m_own->resizeColumnToContents(column);
        m_own->setColumnWidth(column, m_own->columnWidth(column) + columnGap);
    }
    m_own->setCurrentItem(m_own->topLevelItem(current));
    refreshButtons();
}

int CategoryPropertiesDialog::currentField() const
{
    return m_own->indexOfTopLevelItem(m_own->currentItem());
}

void CategoryPropertiesDialog::addField()
{
    FieldDialogSetup setup;
    setup.title = tr("New Property");
    setup.verb = tr("Add Property");
    setup.keyForLabel = [this](const QString& label) {
        return keyForNewField(label, m_properties.fields, m_subject.fromAbove);
    };
    setup.check = [this](const Field& field) {
        return FieldVerdict{
            checkFieldBeside(field, m_properties.fields).message(),
            overrideNotice(m_desk.session.project(), field, m_subject.fromAbove)};
    };
    if (const auto field = askForField(m_desk, std::move(setup), this)) {
        m_properties.fields.push_back(*field);
        showFields(static_cast<int>(m_properties.fields.size()) - 1);
    }
}

void CategoryPropertiesDialog::editField()
{
    const int index = currentField();
    if (index < 0)
        return;
    Field& edited = m_properties.fields[static_cast<std::size_t>(index)];
    FieldDialogSetup setup;
    setup.title = tr("Property “%1”").arg(edited.displayName());
    setup.verb = tr("Change Property");
    setup.field = edited;
    setup.keyForLabel = [](const QString& label) { return keyFromLabel(label); };
    setup.check = [this, index](const Field& field) {
        return FieldVerdict{checkFieldBeside(field, without(m_properties.fields, index)).message(), {}};
    };
    if (const auto field = askForField(m_desk, std::move(setup), this)) {
        edited = *field;
        showFields(index);
    }
}

void CategoryPropertiesDialog::moveField(int step)
{
    const int index = currentField();
    const int target = index + step;
    if (index < 0 || target < 0 || target >= m_own->topLevelItemCount())
        return;
    std::swap(
        m_properties.fields[static_cast<std::size_t>(index)],
        m_properties.fields[static_cast<std::size_t>(target)]);
    showFields(target);
}

void CategoryPropertiesDialog::removeField()
{
    const int index = currentField();
    if (index < 0)
        return;
    m_properties.fields = without(std::move(m_properties.fields), index);
    m_note->setNote(tr(
        "Values already entered are kept — but nothing will show them. Undo puts the property back with its "
        "data."));
    showFields(std::min(index, static_cast<int>(m_properties.fields.size()) - 1));
}

void CategoryPropertiesDialog::refreshButtons()
{
    const int index = currentField();
    m_edit->setEnabled(index >= 0);
    m_remove->setEnabled(index >= 0);
    m_moveUp->setEnabled(index > 0);
    m_moveDown->setEnabled(index >= 0 && index + 1 < m_own->topLevelItemCount());
}

void editCategoryProperties(const shell::DeskContext& desk, const core::CategoryId& id, QWidget* parent)
{
    const auto& project = desk.session.project();
    const auto* const category = project.taxonomy().category(id);
    if (!category)
        return;
    const auto* const entity = project.findAs<core::entity::Entity>(category->parentEntityId);
    CategoryPropertiesDialog dialog(
        desk,
        {category->name, entity ? shell::objectTitle(*entity) : QString(), propertiesOf(*category),
         fieldsFromAbove(project, *category)},
        parent);
    if (dialog.exec() == QDialog::Accepted)
        applyCategoryProperties(desk.session, id, dialog.properties());
}

} // namespace tw::desktop::codex
