#include "desktop/shell/WelcomePage.h"

#include "desktop/icons/IconSet.h"
#include "desktop/theme/InterfaceSize.h"

#include <QCommandLinkButton>
#include <QDir>
#include <QEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace tw::desktop::shell {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int markSize = 72;
constexpr int columnCharacters = 52;
constexpr qsizetype shownRecent = 5;

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
        auto* const button = new QCommandLinkButton(text, hint, column);
        button->setIcon(m_icons.icon(icon));
        connect(button, &QCommandLinkButton::clicked, this, signal);
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
        icons::Icon::New, tr("New project"), tr("An empty manuscript and an empty world."),
        &WelcomePage::newRequested);
    addLink(
        icons::Icon::Open, tr("Open a project"), tr("A folder that holds project.json."),
        &WelcomePage::openRequested);

    m_recentLayout->setContentsMargins(0, 12, 0, 0);
    m_recentLayout->setSpacing(0);
    layout->addWidget(m_recent);

    auto* const outer = new QVBoxLayout(this);
    outer->addStretch(2);
    outer->addWidget(column, 0, Qt::AlignHCenter);
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
    m_column->setFixedWidth(fontMetrics().averageCharWidth() * columnCharacters);
}

void WelcomePage::setRecent(const QStringList& paths)
{
    qDeleteAll(m_recent->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly));
    m_recent->setVisible(!paths.isEmpty());
    m_recentLayout->addWidget(makeTitle(tr("Recent projects"), 1.1, m_recent));
    for (const QString& path : paths.first(std::min(paths.size(), shownRecent))) {
        auto* const button =
            new QCommandLinkButton(QDir(path).dirName(), QDir::toNativeSeparators(path), m_recent);
        button->setIcon(m_icons.icon(icons::Icon::History));
        connect(button, &QCommandLinkButton::clicked, this, [this, path] { emit recentRequested(path); });
        m_recentLayout->addWidget(button);
    }
}

void WelcomePage::setOpenProject(const QString& name)
{
    m_back->setVisible(!name.isEmpty());
    m_back->setText(tr("Go on with “%1”").arg(name));
    m_back->setDescription(tr("The project is open already."));
}

} // namespace tw::desktop::shell
