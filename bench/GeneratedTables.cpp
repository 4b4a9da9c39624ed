#include "bench/GeneratedWorld.h"

#include "core/chart/Chart.h"
#include "core/conlang/Language.h"
#include "core/spreadsheet/Spreadsheet.h"
#include "core/ttrpg/RandomTable.h"
#include "core/ttrpg/StatBlock.h"

using namespace Qt::Literals::StringLiterals;

namespace tw::bench {

using core::ContentId;
using core::content::ContentKind;

namespace {

void addSpreadsheet(GeneratedWorld& world, const ContentId& id)
{
    using namespace core::spreadsheet;
    auto sheet = std::make_unique<Spreadsheet>(id, world.language.name());
    SheetGrid grid{world.random.count(6, 16), world.random.count(3, 6), {}};
    for (qint32 row = 0; row < grid.rowCount; ++row) {
        for (qint32 column = 0; column < grid.columnCount; ++column) {
            Cell cell;
            cell.text = column == 0 ? world.language.name() : QString::number(world.random.between(0, 9999));
            cell.format.isBold = row == 0;
            grid.cells.insert_or_assign({row, column}, std::move(cell));
        }
    }
    sheet->setGrid(std::move(grid));
    sheet->setSizes({{160, 90, 90}, {}});
    world.add(std::move(sheet));
}

void addChart(GeneratedWorld& world, const ContentId& id)
{
    using namespace core::chart;
    ChartDetails chart;
    chart.title = world.language.name();
    for (int count = world.random.count(4, 12); count > 0; --count)
        chart.categories.append(world.language.word());
    for (int count = world.random.count(1, 4); count > 0; --count) {
        ChartSeries series{world.language.word(), {}};
        for (qsizetype index = 0; index < chart.categories.size(); ++index)
            series.values.push_back(static_cast<double>(world.random.between(0, 1000)) / 4);
        chart.series.push_back(std::move(series));
    }
    world.add(std::make_unique<Chart>(id, std::move(chart)));
}

void addRandomTable(GeneratedWorld& world, const ContentId& id)
{
    using namespace core::ttrpg;
    RandomTableDetails table{world.language.name(), {}};
    for (int count = world.random.count(6, 20); count > 0; --count)
        table.entries.push_back(
            {world.random.count(1, 5), world.language.sentences(world.random.count(4, 15))});
    world.add(std::make_unique<RandomTable>(id, std::move(table)));
}

void addStatBlock(GeneratedWorld& world, const ContentId& id)
{
    using namespace core::ttrpg;
    StatBlockDetails block{
        world.language.name(), world.language.word(), world.language.sentences(20), {}, {}};
    for (int count = 0; count < 6; ++count)
        block.stats.push_back({world.language.word(), QString::number(world.random.between(1, 20))});
    for (int count = world.random.count(1, 4); count > 0; --count)
        block.actions.push_back({world.language.phrase(2), world.language.sentences(18)});
    world.add(std::make_unique<StatBlock>(id, std::move(block)));
}

void addLanguage(GeneratedWorld& world, const ContentId& id)
{
    using namespace core::conlang;
    auto language = std::make_unique<Language>(id, world.language.name());
    LanguageDetails details = language->details();
    details.consonants = {u"p"_s, u"t"_s, u"k"_s, u"m"_s, u"n"_s, u"s"_s, u"l"_s};
    details.vowels = {u"a"_s, u"e"_s, u"i"_s, u"o"_s, u"u"_s};
    details.patterns = {u"CV"_s, u"CVC"_s};
    details.grammarNotes = world.language.sentences(80);
    details.speakerIds = world.someIds(ContentKind::Entity, 1, 12);
    for (int count = world.random.count(150, 400); count > 0; --count) {
        LexiconEntry entry;
        entry.word = world.language.word();
        entry.gloss = world.language.word();
        entry.partOfSpeech = world.random.chance(60) ? u"noun"_s : u"verb"_s;
        if (world.random.chance(30))
            entry.notes = world.language.sentences(8);
        details.lexicon.push_back(std::move(entry));
    }
    language->setDetails(std::move(details));
    Phonotactics phonotactics;
    phonotactics.categories = {{u"C"_s, {u"p"_s, u"t"_s, u"k"_s}}, {u"V"_s, {u"a"_s, u"e"_s}}};
    phonotactics.templates = {{u"CV"_s, 2}, {u"CVC"_s, 1}};
    language->setPhonotactics(std::move(phonotactics));
    language->setSoundChanges(
        {{world.language.name(), {{u"p"_s, u"f"_s, u"V_V"_s}, {u"k"_s, u"h"_s, u"_#"_s}}}});
    world.add(std::move(language));
}

} // namespace

void addTables(GeneratedWorld& world)
{
    for (const ContentId& id : world.ids(ContentKind::Spreadsheet))
        addSpreadsheet(world, id);
    for (const ContentId& id : world.ids(ContentKind::Chart))
        addChart(world, id);
    for (const ContentId& id : world.ids(ContentKind::RandomTable))
        addRandomTable(world, id);
    for (const ContentId& id : world.ids(ContentKind::StatBlock))
        addStatBlock(world, id);
}

void addLanguages(GeneratedWorld& world)
{
    for (const ContentId& id : world.ids(ContentKind::Language))
        addLanguage(world, id);
}

void addSettings(GeneratedWorld& world)
{
    core::project::Project& project = world.project;
    project.setName(world.language.name());
    project.setAudiences({u"Author"_s, u"First readers"_s});
    for (const ContentId& id : world.someIds(ContentKind::Entity, 5, 20))
        project.setPinned(id, true);
    project.setSavedSearches({{world.language.phrase(2), world.language.word()}});
    std::vector<core::writing::WritingLogEntry> log;
    QDate day(2021, 1, 1);
    for (int index = 0; index < 700; ++index, day = day.addDays(1))
        log.push_back({day.toString(Qt::ISODate), world.random.between(0, 2500)});
    project.setWritingLog(std::move(log));
    std::vector<core::plot::PlotThread> threads;
    for (int index = 0; index < 12; ++index) {
        threads.push_back(
            {world.language.word() + QString::number(index), world.language.name(),
             world.language.sentences(30), world.anyId(ContentKind::Entity), world.color()});
    }
    project.setPlotThreads(std::move(threads));
    project.setTimelineEras(
        {{world.language.name(), world.color(), -100'000'000, 0},
         {world.language.name(), world.color(), 0, 600'000'000}});
}

} // namespace tw::bench
