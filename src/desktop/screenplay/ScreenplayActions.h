#pragma once

#include "desktop/screenplay/ScreenplayFormats.h"
#include "desktop/shell/DeskContext.h"

#include <QObject>
#include <QPointer>

#include <vector>

class QAction;
class QMenu;

namespace tw::desktop::manuscript {
class TextPage;
}

namespace tw::desktop::screenplay {

class ScreenplayPage;

/** The actions for screenplays: elements of lines, and revisions. They work on the page that is current. */
class ScreenplayActions final : public QObject
{
    Q_OBJECT

public:
    ScreenplayActions(const shell::DeskContext& desk, QObject* parent);

    /** Null when what is current is no document. */
    void setPage(manuscript::TextPage* page);
    void fillMenu(QMenu& menu);

private:
    void setBaseline(const QString& text);
    void refresh();

    struct ElementAction
    {
        Element element;
        QAction* action;
    };

    shell::DeskContext m_desk;
    QPointer<manuscript::TextPage> m_textPage;
    QPointer<ScreenplayPage> m_page;
    std::vector<ElementAction> m_elements;
    QAction* m_markRevision;
    QAction* m_clearRevision;
};

} // namespace tw::desktop::screenplay
