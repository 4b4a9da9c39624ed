#include "desktop/shell/StatusStrip.h"

#include "core/calendar/Reckoning.h"
#include "core/document/Document.h"
#include "desktop/goals/WritingSession.h"
#include "desktop/icons/IconSet.h"
#include "desktop/manuscript/TextPage.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/theme/ThemeManager.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QSettings>
#include <QStatusBar>

namespace tw::desktop::shell {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int iconSize = 16;
constexpr int barHeight = 4;

QString grouped(qint64 number)
{
    return QLocale().toString(number);
}

/** One place in the bar that comes and goes as a whole. */
QWidget* addPlace(QStatusBar& bar)
{
    auto* const place = new QWidget(&bar);
    auto* const row = new QHBoxLayout(place);
    row->setContentsMargins({});
    row->setSpacing(bar.fontMetrics().averageCharWidth());
    bar.addPermanentWidget(place);
    return place;
}

QLabel* addLabel(QWidget& place)
{
    auto* const label = new QLabel(&place);
    place.layout()->addWidget(label);
    return label;
}

QLabel* addPermanentLabel(QStatusBar& bar)
{
    auto* const label = new QLabel(&bar);
    bar.addPermanentWidget(label);
    return label;
}

bool showsWordCount(const QSettings& settings)
{
    return settings.value("editor/showWordCount", true).toBool();
}

} // namespace

StatusStrip::StatusStrip(const DeskContext& desk, const goals::WritingSession& writing, QStatusBar& bar)
    : QObject(&bar)
    , m_desk(desk)
    , m_writing(writing)
    , m_bar(bar)
    , m_counts(addPlace(bar))
    , m_pageText(addLabel(*m_counts))
    , m_storyDate(addLabel(*m_counts))
    , m_projectWords(addLabel(*m_counts))
    , m_sessionWords(addLabel(*m_counts))
    , m_dailyTarget(new QProgressBar(m_counts))
    , m_saveIcon(addPermanentLabel(bar))
    , m_saveText(addPermanentLabel(bar))
{
    m_dailyTarget->setTextVisible(false);
    m_dailyTarget->setFixedHeight(barHeight);
    m_dailyTarget->setFixedWidth(bar.fontMetrics().averageCharWidth() * 12);
    m_dailyTarget->setAccessibleName(tr("Words of the day's target"));
    m_counts->layout()->addWidget(m_dailyTarget);
    connect(&bar, &QStatusBar::messageChanged, this, &StatusStrip::giveRoomTo);
    // It hears of changes of the project first.
    connect(&writing, &goals::WritingSession::changed, this, &StatusStrip::followChanges);
    connect(&desk.session, &ProjectSession::saveStateChanged, this, &StatusStrip::refreshSaveState);
    connect(&desk.themes, &theme::ThemeManager::themeChanged, this, &StatusStrip::refreshSaveState);
    refreshWords();
    refreshSaveState();
}

void StatusStrip::giveRoomTo(const QString& message)
{
    m_counts->show();
    if (message.isEmpty())
        return;
    // Where they stand is known only once they are laid out again.
    m_bar.layout()->activate();
    const int room = m_counts->geometry().left() - m_bar.fontMetrics().averageCharWidth();
    m_counts->setVisible(m_bar.fontMetrics().horizontalAdvance(message) <= room);
}

void StatusStrip::setPage(WorkPage* page)
{
    if (m_page)
        disconnect(m_page, nullptr, this, nullptr);
    m_page = page;
    if (page)
        connect(page, &WorkPage::statusTextChanged, this, &StatusStrip::refreshPage);
    refreshPage();
}

void StatusStrip::followSettings()
{
    refreshWords();
    refreshPage();
}

void StatusStrip::followChanges()
{
    refreshWords();
    refreshPage();
    refreshSaveState();
}

void StatusStrip::refreshPage()
{
    m_pageText->setText(m_page ? m_page->statusText() : QString());
    m_pageText->setVisible(!m_pageText->text().isEmpty() && showsWordCount(m_desk.settings));
    const auto& project = m_desk.session.project();
    const auto* const document = project.findAs<core::document::Document>(manuscript::objectWorkedOn(m_page));
    const bool hasDate = document && document->sceneInstant();
    m_storyDate->setText(hasDate ? project.calendar().formatInstant(*document->sceneInstant()) : QString());
    QString explained = tr("When the scene happens in the story");
    for (const core::calendar::Reckoning& reckoning : project.reckonings()) {
        if (hasDate)
            explained += u"\n%1: %2"_s.arg(
                reckoningTitle(reckoning),
                core::calendar::formatInstantIn(reckoning, *document->sceneInstant()));
    }
    m_storyDate->setToolTip(explained);
    m_storyDate->setVisible(hasDate);
}

void StatusStrip::refreshWords()
{
    const bool isShown = m_desk.session.isProjectOpen() && showsWordCount(m_desk.settings);
    for (QWidget* const widget :
         {static_cast<QWidget*>(m_projectWords), static_cast<QWidget*>(m_sessionWords)})
        widget->setVisible(isShown);
    const qint64 total = m_desk.session.words().total();
    const qint64 session = m_writing.sessionWords();
    m_projectWords->setText(tr("Manuscript: %Ln words", nullptr, static_cast<int>(total)));
    m_sessionWords->setText(
        session >= 0 ? tr("Session: +%1").arg(grouped(session)) : tr("Session: −%1").arg(grouped(-session)));
    m_sessionWords->setToolTip(tr("Words since the project was opened"));
    const qint64 target = m_desk.session.project().writingGoal().dailyWordTarget;
    m_dailyTarget->setVisible(isShown && target > 0);
    if (target > 0) {
        constexpr int steps = 1000;
        m_dailyTarget->setRange(0, steps);
        const qint64 today = m_writing.wordsToday();
        m_dailyTarget->setValue(static_cast<int>(std::clamp<qint64>(today, 0, target) * steps / target));
        m_dailyTarget->setToolTip(
            tr("%1 of %Ln words of the daily target", nullptr, static_cast<int>(target)).arg(grouped(today)));
    }
}

void StatusStrip::refreshSaveState()
{
    const ProjectSession& session = m_desk.session;
    const bool isOpen = session.isProjectOpen();
    m_saveIcon->setVisible(isOpen);
    m_saveText->setVisible(isOpen);
    const theme::Theme& colors = m_desk.themes.theme();
    switch (session.saveState()) {
    case SaveState::Saved:
        m_saveIcon->setPixmap(m_desk.icons.icon(icons::Icon::Check, colors.color(theme::Role::Success))
                                  .pixmap(iconSize, iconSize));
        m_saveText->setText(tr("Saved"));
        break;
    case SaveState::Modified:
        m_saveIcon->setPixmap(m_desk.icons.icon(icons::Icon::Save).pixmap(iconSize, iconSize));
        m_saveText->setText(session.workspace().hasPath() ? tr("Unsaved changes") : tr("Never saved"));
        break;
    case SaveState::Failed:
        m_saveIcon->setPixmap(m_desk.icons.icon(icons::Icon::Error, colors.color(theme::Role::Error))
                                  .pixmap(iconSize, iconSize));
        m_saveText->setText(tr("Not saved"));
        break;
    }
    m_saveText->setToolTip(session.saveFailure());
}

} // namespace tw::desktop::shell
