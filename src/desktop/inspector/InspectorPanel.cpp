#include "desktop/inspector/InspectorPanel.h"

#include "core/document/Document.h"
#include "desktop/icons/IconSet.h"
#include "desktop/inspector/DocumentSection.h"
#include "desktop/inspector/ObjectSection.h"
#include "desktop/shell/Navigator.h"
#include "desktop/shell/ObjectTitles.h"
#include "desktop/shell/ProjectSession.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

namespace tw::desktop::inspector {

namespace {

constexpr int margin = 12;
constexpr int iconSize = 18;

} // namespace

InspectorPanel::InspectorPanel(const shell::DeskContext& desk, QWidget* parent)
    : QWidget(parent)
    , m_desk(desk)
    , m_hint(new QLabel(tr("Select a document or an entity to see its properties."), this))
    , m_scroll(new QScrollArea(this))
    , m_icon(new QLabel)
    , m_title(new QLabel)
    , m_document(new DocumentSection(desk, this))
    , m_object(new ObjectSection(desk, this))
{
    m_hint->setWordWrap(true);
    m_hint->setAlignment(Qt::AlignCenter);
    m_hint->setForegroundRole(QPalette::PlaceholderText);
    m_hint->setContentsMargins(2 * margin, 2 * margin, 2 * margin, 2 * margin);

    auto* const content = new QWidget;
    auto* const heading = new QHBoxLayout;
    heading->setSpacing(8);
    heading->addWidget(m_icon);
    heading->addWidget(m_title, 1);
    QFont titleFont = m_title->font();
    titleFont.setWeight(QFont::DemiBold);
    m_title->setFont(titleFont);
    m_title->setWordWrap(true);
    auto* const column = new QVBoxLayout(content);
    column->setContentsMargins(margin, margin, margin, margin);
    column->setSpacing(margin);
    column->addLayout(heading);
    column->addWidget(m_document);
    column->addWidget(m_object);
    column->addStretch(1);
    m_scroll->setAccessibleName(tr("Inspector"));
    m_scroll->setWidget(content);
    m_scroll->setWidgetResizable(true);
    m_scroll->viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    m_scroll->setFrameShape(QFrame::NoFrame);

    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_hint);
    layout->addWidget(m_scroll);
    setFocusProxy(m_scroll);
    connect(&desk.navigator, &shell::Navigator::currentChanged, this, &InspectorPanel::showCurrent);
    connect(&desk.session, &shell::ProjectSession::changed, this, &InspectorPanel::followChanges);
    showCurrent();
}

void InspectorPanel::followChanges(const core::project::ProjectChanges& changes)
{
    if (changes.concerns(m_desk.navigator.current()) || changes.areSettingsChanged)
        showCurrent();
}

InspectorPanel::~InspectorPanel()
{
    // The fields go after this; what is still being typed into one is committed on its way out.
    m_desk.session.disconnect(this);
    m_desk.navigator.disconnect(this);
}

void InspectorPanel::showCurrent()
{
    const core::ContentId& id = m_desk.navigator.current();
    const auto* const object = m_desk.session.project().find(id);
    m_hint->setVisible(!object);
    m_scroll->setVisible(object);
    const bool isDocument = object && object->kind() == core::content::ContentKind::Document;
    m_document->setVisible(isDocument);
    m_document->showDocument(isDocument ? id : core::ContentId());
    m_object->showObject(object ? id : core::ContentId());
    if (!object)
        return;
    m_title->setText(shell::objectTitle(*object));
    m_icon->setPixmap(m_desk.icons.icon(object->kind()).pixmap(iconSize, iconSize));
}

} // namespace tw::desktop::inspector
