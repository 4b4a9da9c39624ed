#include "desktop/codex/EntityHeading.h"

#include "core/entity/EntityCommands.h"
#include "desktop/codex/CategoryChooser.h"
#include "desktop/codex/CodexEdits.h"
#include "desktop/fields/ChipField.h"
#include "desktop/fields/EditorKeys.h"
#include "desktop/icons/IconSet.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/shell/ProjectSession.h"
#include "desktop/theme/Fonts.h"
#include "desktop/theme/InterfaceSize.h"
#include "desktop/theme/ThemeManager.h"

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
const QString parentLink = u"entity"_s;

} // namespace

EntityHeading::EntityHeading(const shell::DeskContext& desk, const core::ContentId& entityId, QWidget* parent)
    : EntitySection(desk, entityId, parent)
    , m_place(new QLabel(this))
    , m_move(new QToolButton(this))
    , m_name(new QLineEdit(this))
    , m_aliases(new fields::ChipField(desk.themes, desk.icons, fields::ChipField::Frame::None, this))
{
    auto* const place = new QHBoxLayout;
    place->setSpacing(4);
    place->addWidget(m_place);
    place->addWidget(m_move);
    place->addStretch();
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addLayout(place);
    layout->addWidget(m_name);
    layout->addWidget(m_aliases);
    makePlace();
    makeName();
    makeAliases();
}

void EntityHeading::makePlace()
{
    m_move->setAutoRaise(true);
    m_move->setIcon(desk().icons.icon(icons::Icon::ChevronDown));
    m_move->setIconSize({chevronSize, chevronSize});
    m_move->setToolTip(tr("Move to another category"));
    m_move->setAccessibleName(m_move->toolTip());
    m_place->setTextFormat(Qt::RichText);
    m_place->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Preferred);
    m_place->setTextInteractionFlags(Qt::LinksAccessibleByMouse);
    connect(m_move, &QToolButton::clicked, this, &EntityHeading::chooseCategory);
    connect(m_place, &QLabel::linkActivated, this, [this](const QString& link) {
        if (link == parentLink)
            desk().navigator.open(m_parentEntityId);
        else if (!m_isReadOnly)
            chooseCategory();
    });
    connect(&desk().themes, &theme::ThemeManager::themeChanged, this, [this] {
        if (const Entity* const present = entity())
            showPlace(*present);
    });
}

void EntityHeading::makeAliases()
{
    QLineEdit& edit = m_aliases->lineEdit();
    edit.setPlaceholderText(tr("Add another name"));
    edit.setAccessibleName(tr("Other names"));
    new fields::EditorKeys(edit, [this] {
        const bool isTyped = !m_aliases->lineEdit().text().isEmpty();
        m_aliases->lineEdit().clear();
        return isTyped;
    });
    connect(&edit, &QLineEdit::textEdited, this, &EntityHeading::typed);
    connect(&edit, &QLineEdit::editingFinished, this, &EntityHeading::commitAlias);
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
    font.setWeight(QFont::DemiBold);
    m_name->setFont(font);
    theme::followInterfaceSize(*m_name, nameScale);
    m_name->setFrame(false);
    m_name->setTextMargins(-2, 0, 0, 0);
    m_name->setPlaceholderText(tr("Name"));
    m_name->setAccessibleName(tr("Name"));
    new fields::EditorKeys(*m_name, [this] {
        const bool isTyped = m_name->text() != m_shownName;
        m_name->setText(m_shownName);
        return isTyped;
    });
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
    const auto* const root = chain.empty() ? nullptr : project.taxonomy().category(chain.front());
    const auto* const parent = root ? project.findAs<Entity>(root->parentEntityId) : nullptr;
    m_parentEntityId = parent ? parent->id() : core::ContentId();

    const auto& theme = desk().themes.theme();
    const auto link = [&theme](const QString& target, const QString& text, theme::Role role) {
        return u"<a href=\"%1\" style=\"color:%2; text-decoration:none\">%3</a>"_s.arg(
            target, theme.color(role).name(), text.toHtmlEscaped());
    };
    QString text = link(u"category"_s, path, theme::Role::QuietInk);
    if (parent)
        text.prepend(link(parentLink, shell::objectTitle(*parent), theme::Role::Link) + u" › "_s);
    if (text != m_place->text())
        m_place->setText(text);
}

void EntityHeading::setReadOnly(bool readOnly)
{
    m_name->setReadOnly(readOnly);
    m_aliases->setReadOnly(readOnly);
    m_move->setHidden(readOnly);
    m_isReadOnly = readOnly;
}

void EntityHeading::chooseCategory()
{
    const Entity* const present = entity();
    if (!present)
        return;
    auto* const chooser = new CategoryChooser(desk().session.project(), *present, this);
    connect(chooser, &CategoryChooser::chosen, this, [this](const core::CategoryId& id) {
        if (const auto moved = moveInCodex(desk().session, {{entityId()}, {}}, {{id, {}}, {}}); !moved)
            desk().navigator.say(moved.message());
    });
    chooser->popUpUnder(*m_place);
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
