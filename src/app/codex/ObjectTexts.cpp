#include "app/codex/ObjectTexts.h"

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

namespace tw::app::codex {

using namespace core;
using content::ContentKind;
using content::ContentObject;

namespace {

/** Shows text after text until the visitor has had enough. */
class Walk
{
public:
    explicit Walk(const TextVisitor& visitor)
        : m_visitor(visitor)
    {}

    template <class... Texts>
    void show(const Texts&... texts)
    {
        (showOne(texts), ...);
    }

private:
    void showOne(const QString& text)
    {
        if (!m_isOver && !text.isEmpty())
            m_isOver = m_visitor(text);
    }
    void showOne(const QStringList& texts)
    {
        for (const QString& text : texts)
            showOne(text);
    }

    const TextVisitor& m_visitor;
    bool m_isOver = false;
};

void walk(Walk& texts, const document::Document& object)
{
    texts.show(object.synopsis(), object.pointOfView(), object.status());
    for (const document::Footnote& footnote : object.footnotes())
        texts.show(footnote.text);
}

void walk(Walk& texts, const entity::Entity& object)
{
    const auto showValue = [&texts](const QString& value) {
        // Nobody reads the id that a reference stores.
        if (ContentId::fromString(QStringView(value).left(36)).isNull())
            texts.show(value);
    };
    texts.show(object.aliases());
    for (const auto& [key, value] : object.values())
        showValue(value);
    for (const auto& [key, states] : object.timedValues()) {
        for (const entity::TimedValue& state : states)
            showValue(state.value);
    }
}

void walk(Walk& texts, const spreadsheet::Spreadsheet& object)
{
    for (const auto& [position, cell] : object.grid().cells)
        texts.show(cell.text);
}

void walk(Walk& texts, const chart::Chart& object)
{
    const chart::ChartDetails& details = object.details();
    texts.show(details.categories, details.categoryAxisTitle, details.valueAxisTitle);
    for (const chart::ChartSeries& series : details.series)
        texts.show(series.name);
}

void walk(Walk& texts, const map::Map& object)
{
    for (const map::MapPin& pin : object.pins())
        texts.show(pin.label, pin.note);
    for (const map::MapRegion& region : object.regions())
        texts.show(region.label);
    for (const map::MapToken& token : object.tokens())
        texts.show(token.label);
}

void walk(Walk& texts, const timeline::Timeline& object)
{
    texts.show(object.description());
}

void walk(Walk& texts, const timeline::TimelineEvent& object)
{
    const timeline::EventDetails& details = object.details();
    texts.show(details.description, details.dateQualifier, details.styleLabel);
}

void walk(Walk& texts, const media::Media& object)
{
    for (const media::MediaAnnotation& annotation : object.annotations())
        texts.show(annotation.text);
}

void walk(Walk& texts, const research::Source& object)
{
    texts.show(object.details().citationKey);
    for (const auto& [name, text] : object.details().fields)
        texts.show(text);
}

void walk(Walk& texts, const task::Task& object)
{
    texts.show(object.description(), object.status(), object.board());
    if (const auto& submission = object.submission())
        texts.show(submission->recipient, submission->kind, submission->notes);
}

void walk(Walk& texts, const canvas::Canvas& object)
{
    for (const canvas::CanvasConnection& connection : object.connections())
        texts.show(connection.label);
}

void walk(Walk& texts, const research::Comment& object)
{
    texts.show(object.details().body, object.target().anchor, object.details().author);
}

void walk(Walk& texts, const conlang::Language& object)
{
    texts.show(object.details().grammarNotes, object.grammar().notes);
    for (const conlang::LexiconEntry& entry : object.details().lexicon)
        texts.show(entry.word, entry.gloss, entry.senses, entry.notes, entry.etymology);
}

void walk(Walk& texts, const ttrpg::RandomTable& object)
{
    for (const ttrpg::RandomTableEntry& entry : object.details().entries)
        texts.show(entry.text);
}

void walk(Walk& texts, const ttrpg::StatBlock& object)
{
    texts.show(object.details().system, object.details().notes);
    for (const ttrpg::Stat& stat : object.details().stats)
        texts.show(stat.label, stat.value);
    for (const ttrpg::StatAction& action : object.details().actions)
        texts.show(action.name, action.text);
}

/** Calls the function above that is for the object's class. */
template <class... Kinds>
void walkAs(Walk& texts, const ContentObject& object)
{
    const auto walkIf = [&]<class Kind>(const Kind* typed) {
        if (typed)
            walk(texts, *typed);
    };
    (walkIf(content::objectCast<Kinds>(&object)), ...);
}

} // namespace

void visitTexts(const ContentObject& object, const TextVisitor& visitor)
{
    Walk texts(visitor);
    walkAs<
        document::Document, entity::Entity, spreadsheet::Spreadsheet, chart::Chart, map::Map,
        timeline::Timeline, timeline::TimelineEvent, media::Media, research::Source, task::Task,
        canvas::Canvas, research::Comment, conlang::Language, ttrpg::RandomTable, ttrpg::StatBlock>(
        texts, object);
    for (const QString& tag : object.tags())
        texts.show(tag);
}

} // namespace tw::app::codex
