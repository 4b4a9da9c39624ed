#include "desktop/shell/PanelHeader.h"

#include "desktop/icons/IconSet.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMenu>
#include <QToolButton>

namespace tw::desktop::shell {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int margin = 8;
constexpr int spacing = 4;

} // namespace

PanelHeader::PanelHeader(const icons::IconSet& icons, const QString& filterHint, QWidget* parent)
    : QWidget(parent)
    , m_icons(icons)
    , m_layout(new QHBoxLayout(this))
    , m_filter(new QLineEdit(this))
{
    m_layout->setContentsMargins(margin, spacing, margin, spacing);
    m_layout->setSpacing(spacing);
    m_filter->setPlaceholderText(filterHint);
    m_filter->setAccessibleName(filterHint);
    m_filter->setClearButtonEnabled(true);
    m_filter->addAction(icons.icon(icons::Icon::Filter), QLineEdit::LeadingPosition);
    m_layout->addWidget(m_filter, 1);
    connect(m_filter, &QLineEdit::textChanged, this, &PanelHeader::filterChanged);
}

void PanelHeader::addAction(QAction* action)
{
    auto* const button = new QToolButton(this);
    button->setDefaultAction(action);
    button->setAutoRaise(true);
    button->setAccessibleName(action->toolTip());
    m_layout->insertWidget(m_menuButton ? m_layout->count() - 1 : m_layout->count(), button);
}

QMenu& PanelHeader::menu()
{
    if (!m_menuButton) {
        m_menuButton = new QToolButton(this);
        m_menuButton->setIcon(m_icons.icon(icons::Icon::More));
        m_menuButton->setToolTip(tr("More actions"));
        m_menuButton->setAccessibleName(tr("More actions"));
        m_menuButton->setAutoRaise(true);
        m_menuButton->setObjectName(u"panelMenuButton"_s);
        m_menuButton->setPopupMode(QToolButton::InstantPopup);
        m_menuButton->setMenu(new QMenu(m_menuButton));
        m_layout->addWidget(m_menuButton);
    }
    return *m_menuButton->menu();
}

QString PanelHeader::filterText() const
{
    return m_filter->text();
}

void PanelHeader::focusFilter()
{
    m_filter->setFocus(Qt::ShortcutFocusReason);
    m_filter->selectAll();
}

} // namespace tw::desktop::shell
