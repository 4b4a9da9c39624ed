#include "desktop/shell/WelcomePage.h"

#include "desktop/icons/IconSet.h"
#include "desktop/shell/LinkButton.h"
#include "desktop/theme/InterfaceSize.h"

#include <QDir>
#include <QEvent>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include <ranges>

namespace tw::desktop::shell {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int markSize = 72;
constexpr int columnCharacters = 60;
constexpr int shownRecent = 5;
/** The column has its full width before the page beside it gets any. */
constexpr int columnStretch = 1000;

icons::Icon iconOf(RecentProject::State state)
{
    switch (state) {
    case RecentProject::State::SingleFile:
        return icons::Icon::Manuscript;
    case RecentProject::State::Folder:
        return icons::Icon::Folder;
    case RecentProject::State::Missing:
        break;
    }
    return icons::Icon::Warning;
}

/** The form and the place, in one line. */
QString placeText(const RecentProject& project)
{
    const QString path = QDir::toNativeSeparators(project.path);
    switch (project.state) {
    case RecentProject::State::SingleFile:
        return WelcomePage::tr("File %1").arg(path);
    case RecentProject::State::Folder:
        return WelcomePage::tr("Folder %1").arg(path);
    case RecentProject::State::Missing:
        break;
    }
    return path;
}

QLabel* makeTitle(const QString& text, qreal scale, QWidget* parent)
{
    auto* const label = new QLabel(text, parent);
    QFont font = label->font();
    font.setWeight(QFont::DemiBold);
    label->setFont(font);
    theme::followInterfaceSize(*label, scale);
    return label;
}

} // namespace

WelcomePage::WelcomePage(const icons::IconSet& icons, bool hasSample, QWidget* parent)
    : QWidget(parent)
    , m_icons(icons)
    , m_column(new QWidget(this))
    , m_recent(new QWidget(this))
    , m_recentLayout(new QVBoxLayout(m_recent))
{
    QWidget* const column = m_column;
    fitColumn();
    auto* const layout = new QVBoxLayout(column);
    layout->setSpacing(8);
    auto* const mark = new QLabel(column);
    mark->setPixmap(icons::applicationIcon().pixmap(markSize, markSize));
    layout->addWidget(mark);
    layout->addWidget(makeTitle(tr("Welcome to Vellory"), 1.8, column));
    auto* const subtitle =
        new QLabel(tr("A quiet desk for long stories and the worlds they live in."), column);
    subtitle->setWordWrap(true);
    layout->addWidget(subtitle);
    layout->addSpacing(12);

    const auto addLink = [&](icons::Icon icon, const QString& text, const QString& hint, auto signal) {
        auto* const button = new LinkButton(text, hint, column);
        button->setIcon(m_icons.icon(icon));
        connect(button, &LinkButton::clicked, this, signal);
        layout->addWidget(button);
        return button;
    };
    m_back = addLink(icons::Icon::ChevronRight, {}, {}, &WelcomePage::backRequested);
    m_back->hide();
    if (hasSample) {
        addLink(
            icons::Icon::Manuscript, tr("Look around in the sample"),
            tr("A copy of “Low Water”, an opening of a novel with its world."),
            &WelcomePage::sampleRequested);
    }
    addLink(
        icons::Icon::New, tr("New project"), tr("A novel, a screenplay, a campaign, or an empty desk."),
        &WelcomePage::newRequested);
    addLink(
        icons::Icon::Open, tr("Open a project"), tr("A .vellory file, or a backup of one."),
        &WelcomePage::openRequested);
    addLink(
        icons::Icon::Folder, tr("Open a project folder"), tr("A folder that holds project.json."),
        &WelcomePage::openFolderRequested);

    m_recentLayout->setContentsMargins(0, 12, 0, 0);
    m_recentLayout->setSpacing(0);
    layout->addWidget(m_recent);

    auto* const outer = new QVBoxLayout(this);
    outer->addStretch(2);
    // An alignment would have the height reckoned for the width of the whole page, where no line breaks.
    auto* const centered = new QHBoxLayout;
    centered->addStretch();
    centered->addWidget(column, columnStretch);
    centered->addStretch();
    outer->addLayout(centered);
    outer->addStretch(3);
}

void WelcomePage::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        fitColumn();
}

void WelcomePage::fitColumn()
{
    m_column->setMaximumWidth(fontMetrics().averageCharWidth() * columnCharacters);
}

void WelcomePage::setRecent(const std::vector<RecentProject>& projects)
{
    qDeleteAll(m_recent->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly));
    qDeleteAll(m_recentLayout->findChildren<QLayout*>(QString(), Qt::FindDirectChildrenOnly));
    m_recent->setVisible(!projects.empty());
    m_recentLayout->addWidget(makeTitle(tr("Recent projects"), 1.1, m_recent));
    for (const RecentProject& project : projects | std::views::take(shownRecent))
        addRecent(project);
    fitColumn();
}

void WelcomePage::addRecent(const RecentProject& project)
{
    const bool isMissing = project.state == RecentProject::State::Missing;
    auto* const open = new LinkButton(
        isMissing ? tr("%1 (missing)").arg(project.name) : project.name, placeText(project), m_recent);
    open->setIcon(m_icons.icon(iconOf(project.state)));
    open->setToolTip(QDir::toNativeSeparators(project.path));
    connect(open, &LinkButton::clicked, this, [this, path = project.path] { emit recentRequested(path); });
    auto* const forget = new QToolButton(m_recent);
    forget->setIcon(m_icons.icon(icons::Icon::Close));
    forget->setAutoRaise(true);
    forget->setToolTip(tr("Remove “%1” from this list").arg(project.name));
    forget->setAccessibleName(forget->toolTip());
    connect(forget, &QToolButton::clicked, this, [this, path = project.path] { emit forgetRequested(path); });
    auto* const row = new QHBoxLayout;
    row->addWidget(open, 1);
    row->addWidget(forget);
    m_recentLayout->addLayout(row);
}

void WelcomePage::setOpenProject(const QString& name)
{
    m_back->setVisible(!name.isEmpty());
    m_back->setText(tr("Go on with “%1”").arg(name));
    m_back->setDescription(tr("The project is open already."));
}

} // namespace tw::desktop::shell
