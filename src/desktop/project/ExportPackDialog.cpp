#include "desktop/project/ExportPackDialog.h"

#include "desktop/fields/NoteLabel.h"
#include "desktop/icons/IconSet.h"
#include "desktop/shell/ProjectSession.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

namespace tw::desktop::project {

using namespace Qt::Literals::StringLiterals;
using core::CategoryId;
using core::taxonomy::Taxonomy;

namespace {

constexpr int charactersWide = 72;
constexpr int linesHigh = 32;
constexpr int idRole = Qt::UserRole;

} // namespace

ExportPackDialog::ExportPackDialog(const shell::DeskContext& desk, const PackExport& start, QWidget* parent)
    : QDialog(parent)
    , m_desk(desk)
    , m_tree(new QTreeWidget(this))
    , m_name(new QLineEdit(start.info.name, this))
    , m_description(new QLineEdit(start.info.description, this))
    , m_author(new QLineEdit(start.info.author, this))
    , m_version(new QLineEdit(start.info.version, this))
    , m_note(new fields::NoteLabel(desk.themes, this))
{
    setWindowTitle(tr("Export Content Pack"));
    setSizeGripEnabled(true);
    auto* const form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    form->addRow(tr("&Name"), m_name);
    form->addRow(tr("&Description"), m_description);
    form->addRow(tr("&Author"), m_author);
    form->addRow(tr("&Version"), m_version);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_export = buttons->addButton(tr("Export…"), QDialogButtonBox::AcceptRole);
    m_export->setDefault(true);
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(m_tree, 1);
    layout->addWidget(m_note);
    layout->addWidget(buttons);
    fillTree(start.selected);
    connect(buttons, &QDialogButtonBox::accepted, this, &ExportPackDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ExportPackDialog::reject);
    connect(m_name, &QLineEdit::textChanged, this, &ExportPackDialog::refresh);
    connect(m_tree, &QTreeWidget::itemChanged, this, &ExportPackDialog::refresh);
    refresh();
    resize(fontMetrics().averageCharWidth() * charactersWide, fontMetrics().height() * linesHigh);
}

void ExportPackDialog::fillTree(const std::set<CategoryId>& selected)
{
    m_tree->setObjectName(u"packCategories"_s);
    m_tree->setAccessibleName(tr("Categories of the pack"));
    m_tree->header()->hide();
    addCategories({}, *m_tree->invisibleRootItem(), selected);
    // Those that hang under an entity, or whose parent is gone, stand at the top: there are no entities here.
    const Taxonomy& taxonomy = m_desk.session.project().taxonomy();
    for (const auto& [id, category] : taxonomy.categories()) {
        const bool isLoose = !category.parentId.isNull() && !taxonomy.category(category.parentId);
        if (isLoose || !category.parentEntityId.isNull())
            addCategory(id, *m_tree->invisibleRootItem(), selected);
    }
    m_tree->expandAll();
    m_tree->setCurrentItem(m_tree->topLevelItem(0));
}

void ExportPackDialog::addCategories(
    const CategoryId& parent, QTreeWidgetItem& under, const std::set<CategoryId>& selected)
{
    for (const CategoryId& id : m_desk.session.project().taxonomy().childrenOf(parent))
        addCategory(id, under, selected);
}

void ExportPackDialog::addCategory(
    const CategoryId& id, QTreeWidgetItem& under, const std::set<CategoryId>& selected)
{
    const Taxonomy& taxonomy = m_desk.session.project().taxonomy();
    auto* const item = new QTreeWidgetItem(&under, {taxonomy.category(id)->name});
    item->setIcon(0, m_desk.icons.icon(icons::Icon::Category));
    item->setData(0, idRole, id.toString());
    item->setFlags(item->flags() | Qt::ItemIsUserCheckable | Qt::ItemIsAutoTristate);
    item->setCheckState(0, selected.contains(id) ? Qt::Checked : Qt::Unchecked);
    addCategories(id, *item, selected);
}

PackExport ExportPackDialog::pack() const
{
    PackExport pack{
        {m_name->text().trimmed(), m_description->text().trimmed(), m_author->text().trimmed(),
         m_version->text().trimmed()},
        {}};
    for (QTreeWidgetItemIterator item(m_tree, QTreeWidgetItemIterator::Checked); *item; ++item)
        pack.selected.insert(CategoryId::fromString((*item)->data(0, idRole).toString()));
    return pack;
}

void ExportPackDialog::refresh()
{
    const PackExport present = pack();
    const auto packed =
        app::persistence::packedCategories(m_desk.session.project().taxonomy(), present.selected);
    m_export->setEnabled(!present.info.name.isEmpty() && !packed.empty());
    if (present.info.name.isEmpty())
        m_note->setNote(tr("Give the pack a name."));
    else if (packed.empty())
        m_note->setNote(tr("Tick the categories that go into the pack."));
    else
        m_note->setNote(
            tr("%n categories go into the pack, those that they need included.", nullptr,
               static_cast<int>(packed.size())));
}

} // namespace tw::desktop::project
