// Values for random edits, one for each type that a field command sets.
#pragma once

#include "core/calendar/CalendarCommands.h"
#include "core/canvas/CanvasCommands.h"
#include "core/chart/ChartCommands.h"
#include "core/conlang/LanguageCommands.h"
#include "core/content/ContentCommands.h"
#include "core/document/DocumentCommands.h"
#include "core/entity/EntityCommands.h"
#include "core/map/MapCommands.h"
#include "core/media/MediaCommands.h"
#include "core/plot/PlotCommands.h"
#include "core/project/ProjectCommands.h"
#include "core/research/ResearchCommands.h"
#include "core/spreadsheet/SpreadsheetCommands.h"
#include "core/task/TaskCommands.h"
#include "core/taxonomy/TaxonomyCommands.h"
#include "core/timeline/TimelineCommands.h"
#include "core/ttrpg/TtrpgCommands.h"
#include "core/writing/WritingCommands.h"
#include "support/RandomCommands.h"

#include <functional>
#include <map>
#include <vector>

namespace tw::test {

using namespace Qt::Literals::StringLiterals;
using namespace tw::core;

/** A random value of each type that a field command sets. */
struct RandomValues
{
    RandomCommands& random;
    std::function<ContentId()> anyId;
    std::function<CategoryId()> anyCategory;

    QString text() const { return random.text(); }
    double real() const { return random.number(-1000, 1000) / 8.0; }
    qint64 instant() const { return qint64(random.number(-1000000, 1000000)) * 525600; }

    template <class Element>
    std::vector<Element> list() const
    {
        std::vector<Element> elements;
        for (int count = random.number(0, 3); count > 0; --count)
            elements.push_back(make(static_cast<Element*>(nullptr)));
        return elements;
    }
    QStringList texts() const
    {
        QStringList list;
        for (int count = random.number(0, 3); count > 0; --count)
            list.append(text());
        return list;
    }

    QString make(QString*) const { return text(); }
    bool make(bool*) const { return random.chance(); }
    qint32 make(qint32*) const { return random.number(-5, 5); }
    qint64 make(qint64*) const { return instant(); }
    double make(double*) const { return real(); }
    QStringList make(QStringList*) const { return texts(); }
    ContentId make(ContentId*) const { return anyId(); }
    CategoryId make(CategoryId*) const { return anyCategory(); }
    content::NameSet make(content::NameSet*) const
    {
        const QStringList names = texts();
        return {names.begin(), names.end()};
    }
    std::map<QString, QString> make(std::map<QString, QString>*) const
    {
        std::map<QString, QString> values;
        for (int count = random.number(0, 3); count > 0; --count)
            values.insert_or_assign(text(), text());
        return values;
    }
    template <class Element>
    std::vector<Element> make(std::vector<Element>*) const
    {
        return list<Element>();
    }
    template <class Value>
    std::optional<Value> make(std::optional<Value>*) const
    {
        return random.chance() ? std::optional(make(static_cast<Value*>(nullptr))) : std::nullopt;
    }

    document::DocumentKind make(document::DocumentKind*) const
    {
        return static_cast<document::DocumentKind>(random.number(0, 2));
    }
    document::DocumentBody make(document::DocumentBody*) const { return {text(), {}}; }
    document::DocumentVersion make(document::DocumentVersion*) const { return {text(), text(), text(), {}}; }
    document::DocumentVariant make(document::DocumentVariant*) const { return {text(), text(), {}}; }
    document::DocumentVariants make(document::DocumentVariants*) const
    {
        return {list<document::DocumentVariant>(), text()};
    }
    document::Footnote make(document::Footnote*) const { return {text(), text(), random.chance()}; }
    taxonomy::Field make(taxonomy::Field*) const
    {
        taxonomy::Field field;
        field.key = text();
        field.label = text();
        field.type = static_cast<taxonomy::FieldType>(random.number(0, 6));
        field.isFixed = random.chance();
        field.fixedValue = text();
        field.options = texts();
        field.referenceCategory = anyCategory();
        return field;
    }
    entity::Lifespan make(entity::Lifespan*) const { return {instant(), std::nullopt}; }
    entity::TimedValues make(entity::TimedValues*) const
    {
        return {{text(), {{instant(), text()}, {instant(), text()}}}};
    }
    entity::EntityTemplate make(entity::EntityTemplate*) const
    {
        return {text(), anyCategory(), make(static_cast<entity::FieldValues*>(nullptr))};
    }
    project::SavedSearch make(project::SavedSearch*) const { return {text(), text()}; }
    project::LibraryMount make(project::LibraryMount*) const { return {text(), random.chance()}; }
    project::PropertyMigration make(project::PropertyMigration*) const { return {text()}; }
    timeline::EventDetails make(timeline::EventDetails*) const
    {
        timeline::EventDetails details;
        details.timelineId = anyId();
        details.title = text();
        details.startMinute = instant();
        details.participants = list<ContentId>();
        details.constraints = {{anyId(), timeline::ConstraintKind::EndsBefore}};
        details.layer = text();
        return details;
    }
    timeline::TimelineEra make(timeline::TimelineEra*) const
    {
        return {text(), text(), instant(), instant()};
    }
    timeline::TimelineMarker make(timeline::TimelineMarker*) const
    {
        return {text(), instant(), random.chance()};
    }
    timeline::TimelineBookmark make(timeline::TimelineBookmark*) const
    {
        return {text(), instant(), instant()};
    }
    timeline::TimelineViewSettings make(timeline::TimelineViewSettings*) const
    {
        timeline::TimelineViewSettings settings;
        settings.colorBy = text();
        settings.rowHeight = random.number(0, 99);
        settings.laneArrangements = {{text(), text(), random.chance(), random.chance()}};
        settings.seriesArrangements = {{text(), random.chance()}};
        return settings;
    }
    timeline::TimelineViewPreset make(timeline::TimelineViewPreset*) const
    {
        return {text(), make(static_cast<timeline::TimelineViewSettings*>(nullptr))};
    }
    timeline::ContinuityRule make(timeline::ContinuityRule*) const
    {
        return {text(), anyId(), text(), text(), text(), instant()};
    }
    calendar::Calendar make(calendar::Calendar*) const
    {
        calendar::Calendar calendar;
        calendar.setEraName(text());
        calendar.setMonths({{text(), random.number(1, 40)}, {text(), random.number(1, 40)}});
        calendar.setEras({{text(), random.number(-5, 5), random.chance()}});
        return calendar;
    }
    calendar::Reckoning make(calendar::Reckoning*) const
    {
        return {text(), make(static_cast<calendar::Calendar*>(nullptr)), instant()};
    }
    map::MapPoint make(map::MapPoint*) const { return {real(), real()}; }
    map::TravelSettings make(map::TravelSettings*) const { return {real(), text(), std::nullopt}; }
    map::MapGrid make(map::MapGrid*) const { return {map::GridKind::Square, random.number(0, 40)}; }
    map::MapPin make(map::MapPin*) const
    {
        return {text(), text(), anyId(), anyId(), text(), {real(), real()}};
    }
    map::MapRegion make(map::MapRegion*) const
    {
        return {text(), list<map::MapPoint>(), anyId(), anyId(), text(), random.chance(), text()};
    }
    map::MapRoute make(map::MapRoute*) const
    {
        return {anyId(), anyId(), real(), make(static_cast<map::TravelSettings*>(nullptr))};
    }
    map::MapToken make(map::MapToken*) const { return {text(), text(), anyId(), {real(), real()}}; }
    task::TaskPriority make(task::TaskPriority*) const
    {
        return static_cast<task::TaskPriority>(random.number(0, 3));
    }
    task::Submission make(task::Submission*) const { return {text(), text(), text(), text()}; }
    spreadsheet::CellFormat make(spreadsheet::CellFormat*) const
    {
        spreadsheet::CellFormat format;
        format.isBold = random.chance();
        format.decimalPlaces = random.number(0, 4);
        return format;
    }
    spreadsheet::CellPosition position() const { return {random.number(0, 5), random.number(0, 5)}; }
    spreadsheet::SheetGrid make(spreadsheet::SheetGrid*) const
    {
        return {random.number(0, 9), random.number(0, 9), {{position(), {text(), {}}}}};
    }
    spreadsheet::SheetSizes make(spreadsheet::SheetSizes*) const { return {list<qint32>(), list<qint32>()}; }
    conlang::LanguageDetails make(conlang::LanguageDetails*) const
    {
        conlang::LanguageDetails details;
        details.name = text();
        details.consonants = texts();
        details.lexicon.resize(2);
        details.lexicon[0].word = text();
        details.lexicon[1].senses = texts();
        return details;
    }
    conlang::Grammar make(conlang::Grammar*) const
    {
        conlang::Grammar grammar;
        grammar.wordOrder = text();
        grammar.paradigms = {{text(), {{text(), text(), text(), text(), text(), random.chance(), text()}}}};
        return grammar;
    }
    conlang::Orthography make(conlang::Orthography*) const
    {
        return {{{text(), {{text(), text()}}}}, text(), text()};
    }
    conlang::Phonotactics make(conlang::Phonotactics*) const
    {
        conlang::Phonotactics phonotactics;
        phonotactics.categories = {{text(), texts()}};
        phonotactics.harmonyGroups = {texts(), texts()};
        return phonotactics;
    }
    conlang::SoundChangeSet make(conlang::SoundChangeSet*) const
    {
        return {text(), {{text(), text(), text()}}};
    }
    QJsonObject make(QJsonObject*) const { return {{text(), text()}, {u"n"_s, random.number(0, 9)}}; }
    chart::ChartDetails make(chart::ChartDetails*) const
    {
        return {text(), text(), texts(), {{text(), list<double>()}}, text(), text()};
    }
    media::MediaCrop make(media::MediaCrop*) const { return {real(), real(), real(), real()}; }
    research::SourceDetails make(research::SourceDetails*) const
    {
        return {text(), text(), text(), make(static_cast<std::map<QString, QString>*>(nullptr))};
    }
    research::CommentDetails make(research::CommentDetails*) const
    {
        return {text(), text(), text(), text(), random.chance()};
    }
    research::CommentTarget make(research::CommentTarget*) const { return {anyId(), text()}; }
    plot::PlotThread make(plot::PlotThread*) const { return {text(), text(), text(), anyId(), text()}; }
    plot::BeatSheet make(plot::BeatSheet*) const { return {text(), {{text(), anyId()}}}; }
    ttrpg::RandomTableDetails make(ttrpg::RandomTableDetails*) const
    {
        return {text(), {{random.number(0, 9), text()}}};
    }
    ttrpg::StatBlockDetails make(ttrpg::StatBlockDetails*) const
    {
        return {text(), text(), text(), {{text(), text()}}, {{text(), text()}}};
    }
    writing::DocumentProofreading make(writing::DocumentProofreading*) const
    {
        return {anyId(), {text()}, {text(), text()}};
    }
    writing::WritingGoal make(writing::WritingGoal*) const
    {
        return {random.number(0, 5000), random.number(0, 90000), text()};
    }
};

} // namespace tw::test
