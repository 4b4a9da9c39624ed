#include "desktop/shell/Navigator.h"

namespace tw::desktop::shell {

Navigator::Navigator(QObject* parent)
    : QObject(parent)
{}

void Navigator::setCurrent(const core::ContentId& id)
{
    if (m_current == id)
        return;
    m_current = id;
    emit currentChanged(m_current);
}

void Navigator::open(const core::ContentId& id)
{
    setCurrent(id);
    emit openRequested(id);
}

void Navigator::openView(const core::ContentId& id, const QString& view)
{
    if (!id.isNull())
        setCurrent(id);
    emit viewRequested(id, view);
}

void Navigator::openPassage(const core::ContentId& id, const TextPassage& passage)
{
    open(id);
    emit passageRequested(id, passage);
}

void Navigator::setAudience(const QString& audience)
{
    if (m_audience == audience)
        return;
    m_audience = audience;
    emit audienceChanged(m_audience);
}

void Navigator::say(const QString& text)
{
    emit said(text);
}

} // namespace tw::desktop::shell
