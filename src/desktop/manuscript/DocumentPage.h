#pragma once

#include "core/project/ProjectChanges.h"
#include "desktop/shell/DeskContext.h"
#include "desktop/shell/WorkPage.h"

#include <QTimer>

class QLabel;

namespace tw::desktop::manuscript {

class MarkdownPage;

/**
 * The editor of one document. Typing goes into the project in bursts, each one undo step: when the writer
 * rests, ends a paragraph, leaves the page, or when anything else wants the project's true state.
 */
class DocumentPage final : public shell::WorkPage
{
    Q_OBJECT

public:
    DocumentPage(const shell::DeskContext& desk, const core::ContentId& id, QWidget* parent);
    ~DocumentPage() override;

    [[nodiscard]] QString title() const override;
    [[nodiscard]] QIcon icon() const override;
    void takeFocus() override;
    [[nodiscard]] QString statusText() const override;

    [[nodiscard]] MarkdownPage& page() { return *m_page; }

    /** Takes up the font and the zoom of the settings. */
    void applyStyle();

private:
    void stepZoom(int step);
    void noteTyping();
    void commit();
    void followChanges(const core::project::ProjectChanges& changes);
    void showDocument();
    void recount();

    shell::DeskContext m_desk;
    QLabel* m_lockNotice;
    MarkdownPage* m_page;
    QTimer m_burst;
    QTimer m_recount;
    qint64 m_words = 0;
    bool m_hasTyping = false;
    bool m_showing = false;
};

} // namespace tw::desktop::manuscript
