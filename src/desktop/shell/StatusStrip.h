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

/** What the status bar always shows: words, the day's target, the scene's story date, whether all is saved.
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
    void followChanges();
    void refreshWords();
    void refreshPage();
    void refreshSaveState();

    DeskContext m_desk;
    const goals::WritingSession& m_writing;
    QPointer<WorkPage> m_page;
    QLabel* m_pageText;
    QLabel* m_storyDate;
    QLabel* m_projectWords;
    QLabel* m_sessionWords;
    QProgressBar* m_dailyTarget;
    QLabel* m_saveIcon;
    QLabel* m_saveText;
};

} // namespace tw::desktop::shell
