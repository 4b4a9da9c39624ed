#pragma once

#include "desktop/shell/DeskContext.h"
#include "desktop/shell/ProjectSession.h"

#include <QObject>
#include <QPointer>

class QLabel;
class QProgressBar;
class QStatusBar;

namespace tw::desktop::goals {
class WritingSession;
}

namespace tw::desktop::shell {

class WorkPage;

/**
 * What the status bar shows beside its messages: words, the day's target, the scene's story date, whether all
 * is saved. A message that would be cut has the room of all but the last.
 */
class StatusStrip final : public QObject
{
    Q_OBJECT

public:
    /** Adds its labels to the bar, which owns them. The writing session must outlive the bar. */
    StatusStrip(const DeskContext& desk, const goals::WritingSession& writing, QStatusBar& bar);

    void setPage(WorkPage* page);

    /** Word counts are shown unless "editor/showWordCount" is off. */
    void followSettings();

private:
    void giveRoomTo(const QString& message);
    void followChanges();
    void refreshWords();
    void refreshPage();
    void refreshSaveState();

    DeskContext m_desk;
    const goals::WritingSession& m_writing;
    QPointer<WorkPage> m_page;
    QStatusBar& m_bar;
    /** Holds everything up to the day's target. */
    QWidget* m_counts;
    QLabel* m_pageText;
    QLabel* m_storyDate;
    QLabel* m_projectWords;
    QLabel* m_sessionWords;
    QProgressBar* m_dailyTarget;
    QLabel* m_saveIcon;
    QLabel* m_saveText;
};

} // namespace tw::desktop::shell
