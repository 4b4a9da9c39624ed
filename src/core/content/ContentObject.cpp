#include "core/content/ContentObject.h"

#include "core/canvas/Canvas.h"
#include "core/chart/Chart.h"
#include "core/conlang/Language.h"
#include "core/document/Document.h"
#include "core/entity/Entity.h"
#include "core/map/Map.h"
#include "core/media/Media.h"
#include "core/research/Comment.h"
#include "core/research/Source.h"
#include "core/spreadsheet/Spreadsheet.h"
#include "core/task/Task.h"
#include "core/timeline/Timeline.h"
#include "core/timeline/TimelineEvent.h"
#include "core/ttrpg/RandomTable.h"
#include "core/ttrpg/StatBlock.h"

#include <atomic>

namespace tw::core::content {

quint64 ChangeNotes::drawStamp()
{
    static std::atomic<quint64> stamps = 0;
    return ++stamps;
}

ContentObject::~ContentObject() = default;

bool ContentObject::isVisibleTo(const QString& audience) const
{
    return m_visibleTo.empty() || m_visibleTo.contains(audience);
}

void ContentObject::touch()
{
    ++m_revision;
    if (!m_notes)
        return;
    m_notes->unannounced.insert(m_id);
    m_notes->noteMove(m_id);
}

void ContentObject::enterProject(quint64 firstRevision, ChangeNotes* notes)
{
    m_revision = firstRevision;
    m_notes = notes;
}

bool operator==(const ContentObject& left, const ContentObject& right)
{
    return left.m_id == right.m_id && left.m_kind == right.m_kind && left.m_visibleTo == right.m_visibleTo &&
           left.m_tags == right.m_tags && left.m_aiExcluded == right.m_aiExcluded &&
           left.m_locked == right.m_locked && left.m_plotThreadIds == right.m_plotThreadIds;
}

namespace {

template <class Kind>
bool isSameKindData(const ContentObject& left, const ContentObject& right)
{
    return static_cast<const Kind&>(left) == static_cast<const Kind&>(right);
}

} // namespace

bool isSameData(const ContentObject& left, const ContentObject& right)
{
    if (left.kind() != right.kind())
        return false;
    switch (left.kind()) {
    case ContentKind::Document:
        return isSameKindData<document::Document>(left, right);
    case ContentKind::Entity:
        return isSameKindData<entity::Entity>(left, right);
    case ContentKind::Spreadsheet:
        return isSameKindData<spreadsheet::Spreadsheet>(left, right);
    case ContentKind::Chart:
        return isSameKindData<chart::Chart>(left, right);
    case ContentKind::Map:
        return isSameKindData<map::Map>(left, right);
    case ContentKind::Timeline:
        return isSameKindData<timeline::Timeline>(left, right);
    case ContentKind::TimelineEvent:
        return isSameKindData<timeline::TimelineEvent>(left, right);
    case ContentKind::Media:
        return isSameKindData<media::Media>(left, right);
    case ContentKind::Source:
        return isSameKindData<research::Source>(left, right);
    case ContentKind::Task:
        return isSameKindData<task::Task>(left, right);
    case ContentKind::Canvas:
        return isSameKindData<canvas::Canvas>(left, right);
    case ContentKind::Comment:
        return isSameKindData<research::Comment>(left, right);
    case ContentKind::Language:
        return isSameKindData<conlang::Language>(left, right);
    case ContentKind::RandomTable:
        return isSameKindData<ttrpg::RandomTable>(left, right);
    case ContentKind::StatBlock:
        return isSameKindData<ttrpg::StatBlock>(left, right);
    }
    return false;
}

} // namespace tw::core::content
