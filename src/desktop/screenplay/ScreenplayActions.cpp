#include "desktop/screenplay/ScreenplayActions.h"

#include "core/document/DocumentCommands.h"
#include "desktop/icons/IconSet.h"
#include "desktop/manuscript/TextPage.h"
#include "desktop/screenplay/ScreenplayPage.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ProjectSession.h"

#include <QAction>
#include <QMenu>

namespace tw::desktop::screenplay {

using namespace Qt::Literals::StringLiterals;
using core::document::Document;

ScreenplayActions::ScreenplayActions(const shell::DeskContext& desk, QObject* parent)
    : QObject(parent)
    , m_desk(desk)
    , m_markRevision(new QAction(desk.icons.icon(icons::Icon::Pin), tr("&Mark Revision"), this))
    , m_clearRevision(new QAction(desk.icons.icon(icons::Icon::Close), tr("&Clear Revision Marks"), this))
{
    int number = 1;
    for (const Element element : core::document::screenplay::chosenElements()) {
        auto* const action = new QAction(elementName(element), this);
        action->setObjectName(u"screenplay.element%1"_s.arg(number));
        action->setShortcut(QKeySequence(Qt::ALT | static_cast<Qt::Key>(Qt::Key_0 + number)));
        action->setCheckable(true);
        connect(action, &QAction::triggered, this, [this, element] {
            if (m_page && !m_page->setElement(element))
                m_desk.navigator.say(tr("A line is only spoken below a character's name."));
            refresh();
        });
        m_elements.push_back({element, action});
        ++number;
    }
    m_markRevision->setObjectName(u"screenplay.markRevision"_s);
    connect(m_markRevision, &QAction::triggered, this, [this] {
        m_desk.session.commitPendingEdits();
        if (m_page)
            setBaseline(m_page->currentBody().text);
        m_desk.navigator.say(tr("From here on, changed lines carry an asterisk in the margin."));
    });
    m_clearRevision->setObjectName(u"screenplay.clearRevision"_s);
    connect(m_clearRevision, &QAction::triggered, this, [this] { setBaseline({}); });
    connect(&desk.session, &shell::ProjectSession::changed, this, &ScreenplayActions::refresh);
    refresh();
}

void ScreenplayActions::setPage(manuscript::TextPage* page)
{
    if (m_page)
        disconnect(m_page, nullptr, this, nullptr);
    if (m_textPage)
        disconnect(m_textPage, nullptr, this, nullptr);
    m_textPage = page;
    if (page)
        connect(page, &manuscript::TextPage::editorChanged, this, [this] { setPage(m_textPage); });
    m_page = page ? qobject_cast<ScreenplayPage*>(page->currentEditor()) : nullptr;
    if (m_page)
        connect(m_page, &ScreenplayPage::elementChanged, this, &ScreenplayActions::refresh);
    refresh();
}

void ScreenplayActions::fillMenu(QMenu& menu)
{
    for (const ElementAction& entry : m_elements)
        menu.addAction(entry.action);
    menu.addSeparator();
    menu.addAction(m_markRevision);
    menu.addAction(m_clearRevision);
}

void ScreenplayActions::setBaseline(const QString& text)
{
    auto* const document =
        m_textPage ? m_desk.session.projectForCommands().findAsForEdit<Document>(m_textPage->editedDocument())
                   : nullptr;
    if (document && !document->isLocked() && document->revisionBaseline() != text)
        m_desk.session.apply(
            std::make_unique<core::document::SetDocumentRevisionBaselineCommand>(*document, text));
}

void ScreenplayActions::refresh()
{
    const bool canEdit = m_page && !m_page->isReadOnly();
    for (const ElementAction& entry : m_elements) {
        entry.action->setEnabled(canEdit);
        entry.action->setChecked(canEdit && m_page->elementAtCursor() == entry.element);
    }
    const auto* const document =
        m_textPage ? m_desk.session.project().findAs<Document>(m_textPage->editedDocument()) : nullptr;
    m_markRevision->setEnabled(canEdit);
    m_clearRevision->setEnabled(canEdit && document && !document->revisionBaseline().isEmpty());
}

} // namespace tw::desktop::screenplay
