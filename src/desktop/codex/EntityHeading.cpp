#include "desktop/codex/EntityHeading.h"

#include "core/entity/EntityCommands.h"
#include "desktop/codex/CategoryChooser.h"
#include "desktop/codex/CategoryPaths.h"
#include "desktop/codex/CodexEdits.h"
#include "desktop/fields/ChipField.h"
#include "desktop/fields/EditorKeys.h"
#include "desktop/icons/IconSet.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/theme/Fonts.h"

#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <QVBoxLayout>

namespace tw::desktop::codex {

using namespace Qt::Literals::StringLiterals;
using core::entity::Entity;

namespace {

constexpr qreal nameScale = 2.0;
constexpr int chevronSize = 12;

} // namespace

EntityHeading::EntityHeading(const shell::DeskContext& desk, const core::ContentId& entityId, QWidget* parent)
    : EntitySection(desk, entityId, parent)
    , m_parentEntity(new QLabel(this))
    , m_category(new QToolButton(this))
    , m_name(new QLineEdit(this))
    , m_aliases(new fields::ChipField(desk.themes, desk.icons, this))
{
    auto* const place = new QHBoxLayout;
    place->setSpacing(0);
    place->addWidget(m_parentEntity);
    place->addWidget(m_category);
    place->addStretch();
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addLayout(place);
    layout->addWidget(m_name);
    layout->addWidget(m_aliases);
    makeName();

    m_category->setAutoRaise(true);
    m_category->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    m_category->setIcon(desk.icons.icon(icons::Icon::ChevronDown));
    m_category->setIconSize({chevronSize, chevronSize});
    m_category->setToolTip(tr("Move to another category"));
    m_category->setForegroundRole(QPalette::Link);
    connect(m_category, &QToolButton::clicked, this, &EntityHeading::chooseCategory);
    connect(m_parentEntity, &QLabel::linkActivated, this, [this] {
        this->desk().navigator.open(m_parentEntityId);
    });

    QLineEdit& aliasEdit = m_aliases->lineEdit();
    aliasEdit.setPlaceholderText(tr("Add another name"));
    aliasEdit.setAccessibleName(tr("Other names"));
    new fields::EditorKeys(aliasEdit, [this] { m_aliases->lineEdit().clear(); });
    connect(&aliasEdit, &QLineEdit::textEdited, this, &EntityHeading::typed);
    connect(&aliasEdit, &QLineEdit::editingFinished, this, &EntityHeading::commitAlias);
    connect(m_aliases, &fields::ChipField::removeRequested, this, [this](int index) {
        if (const Entity* const present = entity()) {
            QStringList aliases = present->aliases();
            aliases.removeAt(index);
            setAliases(aliases);
        }
    });
}

void EntityHeading::makeName()
{
    QFont font = theme::defaultPageFont();
    font.setPointSizeF(this->font().pointSizeF() * nameScale);
    font.setWeight(QFont::DemiBold);
    m_name->setFont(font);
    m_name->setFrame(false);
    m_name->setTextMargins(-2, 0, 0, 0);
    m_name->setPlaceholderText(tr("Name"));
    m_name->setAccessibleName(tr("Name"));
    new fields::EditorKeys(*m_name, [this] { m_name->setText(m_shownName); });
    connect(m_name, &QLineEdit::textEdited, this, &EntityHeading::typed);
    connect(m_name, &QLineEdit::editingFinished, this, &EntityHeading::commitName);
}

void EntityHeading::showEntity(const Entity& entity)
{
    if (entity.name() != m_shownName) {
        m_shownName = entity.name();
        m_name->setText(m_shownName);
        m_name->setCursorPosition(0);
    }
    showPlace(entity);
    std::vector<fields::Chip> chips;
    for (const QString& alias : entity.aliases())
        chips.push_back({alias, {}, fields::Chip::State::Plain});
    m_aliases->setChips(chips);
}

void EntityHeading::showPlace(const Entity& entity)
{
    const auto& project = desk().session.project();
    const auto chain = project.taxonomy().ancestorChain(entity.categoryId());
    QStringList names;
    for (const core::CategoryId& id : chain)
        names.append(project.taxonomy().category(id)->name);
    const QString path = names.isEmpty() ? tr("No category") : names.join(u" › "_s);
    m_category->setText(QString(path).replace(u'&', u"&&"_s));
    m_category->setAccessibleName(tr("Category: %1").arg(path));

    const auto* const root = chain.empty() ? nullptr : project.taxonomy().category(chain.front());
    const auto* const parent = root ? project.findAs<Entity>(root->parentEntityId) : nullptr;
    m_parentEntityId = parent ? parent->id() : core::ContentId();
    m_parentEntity->setVisible(parent != nullptr);
    if (parent) {
        m_parentEntity->setText(u"<a href=\"#\" style=\"text-decoration:none\">%1</a> ›"_s.arg(
            shell::objectTitle(*parent).toHtmlEscaped()));
    }
}

void EntityHeading::setReadOnly(bool readOnly)
{
    m_name->setReadOnly(readOnly);
    m_aliases->setReadOnly(readOnly);
    m_category->setEnabled(!readOnly);
}

void EntityHeading::chooseCategory()
{
    const Entity* const present = entity();
    if (!present)
        return;
    auto* const chooser = new CategoryChooser(desk().session.project(), present->categoryId(), this);
    connect(chooser, &CategoryChooser::chosen, this, [this](const core::CategoryId& id) {
        static_cast<void>(moveInCodex(desk().session, {{entityId()}, {}}, {{id, {}}, {}}));
    });
    chooser->popUpUnder(*m_category);
}

void EntityHeading::commit()
{
    commitName();
    commitAlias();
}

void EntityHeading::commitName()
{
    const QString name = m_name->text().trimmed();
    if (name == m_shownName)
        return;
    if (name.isEmpty()) {
        m_name->setText(m_shownName);
        return;
    }
    m_shownName = name;
    renameEntity(desk().session, entityId(), name);
}

void EntityHeading::commitAlias()
{
    const QString alias = m_aliases->lineEdit().text().trimmed();
    const Entity* const present = entity();
    if (alias.isEmpty() || !present)
        return;
    m_aliases->lineEdit().clear();
    if (!present->aliases().contains(alias, Qt::CaseInsensitive))
        setAliases(present->aliases() + QStringList{alias});
}

void EntityHeading::setAliases(const QStringList& aliases)
{
    if (Entity* const edited = entityForCommands()) {
        desk().session.apply(std::make_unique<core::entity::SetEntityAliasesCommand>(*edited, aliases));
    }
}

} // namespace tw::desktop::codex
