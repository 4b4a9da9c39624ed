#include "bench/ProjectGenerator.h"

#include "bench/GeneratedWorld.h"
#include "core/document/Document.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace tw::bench {

using core::ContentId;
using core::content::ContentKind;

namespace {

constexpr int wordsInDocument = 4'000;

/** How many of 50,000 objects are of each kind; together 50,000. */
struct Share
{
    ContentKind kind;
    int of50000;
};

constexpr std::array shares{
    Share{ContentKind::Document, 300},
    Share{ContentKind::Entity, 20'000},
    Share{ContentKind::Spreadsheet, 300},
    Share{ContentKind::Chart, 150},
    Share{ContentKind::Map, 150},
    Share{ContentKind::Timeline, 60},
    Share{ContentKind::TimelineEvent, 15'000},
    Share{ContentKind::Media, 2'000},
    Share{ContentKind::Source, 2'000},
    Share{ContentKind::Task, 3'000},
    Share{ContentKind::Canvas, 100},
    Share{ContentKind::Comment, 6'000},
    Share{ContentKind::Language, 40},
    Share{ContentKind::RandomTable, 300},
    Share{ContentKind::StatBlock, 600},
};

constexpr int shareSum = 50'000;

} // namespace

GeneratedWorld::GeneratedWorld(core::project::Project& filled, const GeneratedSize& size)
    : project(filled)
    , random(size.seed)
    , language(random)
{
    for (int index = 0; index < 40; ++index)
        m_tags.push_back(language.word());
    int left = size.objects;
    for (const Share& share : shares) {
        const auto wanted = static_cast<int>(qint64{size.objects} * share.of50000 / shareSum);
        std::vector<ContentId>& idsOfKind = m_ids.at(static_cast<std::size_t>(share.kind));
        for (int index = 0; index < std::max(wanted, 1); ++index, --left)
            idsOfKind.push_back(random.id<ContentId>());
    }
    // What rounding left over, or took too much of.
    std::vector<ContentId>& comments = m_ids.at(static_cast<std::size_t>(ContentKind::Comment));
    for (; left > 0; --left)
        comments.push_back(random.id<ContentId>());
    for (; left < 0 && comments.size() > 1; ++left)
        comments.pop_back();
}

std::vector<ContentId> GeneratedWorld::someIds(ContentKind kind, int fewest, int most)
{
    std::vector<ContentId> some;
    for (int count = random.count(fewest, most); count > 0; --count) {
        const ContentId id = anyId(kind);
        if (std::ranges::find(some, id) == some.end())
            some.push_back(id);
    }
    return some;
}

QString GeneratedWorld::color()
{
    static const std::vector<QString> colors{u"#2f6f8f"_s, u"#8f2f4a"_s, u"#4a8f2f"_s, u"#8f6f2f"_s,
                                             u"#5a2f8f"_s, u"#2f8f7a"_s, u"#707070"_s, u"#b0483a"_s};
    return random.oneOf(colors);
}

QString GeneratedWorld::day()
{
    return u"20%1-%2-%3"_s.arg(random.between(18, 29))
        .arg(random.between(1, 12), 2, 10, QLatin1Char('0'))
        .arg(random.between(1, 28), 2, 10, QLatin1Char('0'));
}

QString GeneratedWorld::time()
{
    return day() + u"T%1:%2:%3Z"_s.arg(random.between(0, 23), 2, 10, QLatin1Char('0'))
                       .arg(random.between(0, 59), 2, 10, QLatin1Char('0'))
                       .arg(random.between(0, 59), 2, 10, QLatin1Char('0'));
}

qint64 GeneratedWorld::instant()
{
    constexpr qint64 minutesInYear = 525'600;
    return random.between(-200 * minutesInYear, 1'400 * minutesInYear);
}

void GeneratedWorld::add(std::unique_ptr<core::content::ContentObject> object)
{
    if (random.chance(35)) {
        core::content::NameSet tags;
        for (int count = random.count(1, 4); count > 0; --count)
            tags.insert(tag());
        object->setTags(std::move(tags));
    }
    if (random.chance(5))
        object->setVisibleTo({u"Author"_s});
    object->setLocked(random.chance(2));
    object->setAiExcluded(random.chance(2));
    project.add(std::move(object));
}

void addDocuments(GeneratedWorld& world)
{
    using namespace core::document;
    const std::vector<ContentId>& ids = world.ids(ContentKind::Document);
    constexpr std::size_t chaptersInPart = 12;
    static const std::vector<QString> statuses{u"Draft"_s, u"Revised"_s, u"Final"_s};
    for (std::size_t index = 0; index < ids.size(); ++index) {
        auto document = std::make_unique<Document>(
            ids[index], index % 40 == 39 ? DocumentKind::Note : DocumentKind::Prose, world.language.name());
        document->setBody({world.language.prose(wordsInDocument), BodyFormat::Markdown});
        document->setSynopsis(world.language.sentences(world.random.count(15, 60)));
        document->setStatus(world.random.oneOf(statuses));
        document->setPointOfView(world.language.word());
        document->setTensionLevel(world.random.count(0, 10));
        document->setSceneInstant(world.instant());
        document->setWordCountTarget(wordsInDocument);
        // Every part opens with its own first document.
        if (const std::size_t place = index % chaptersInPart; place != 0)
            document->setParentId(ids[index - place]);
        document->setSortIndex(static_cast<qint32>(index));
        document->setSourceIds(world.someIds(ContentKind::Source, 0, 4));
        std::vector<Footnote> footnotes;
        for (int count = world.random.count(0, 3); count > 0; --count) {
            footnotes.push_back({QString::number(footnotes.size() + 1), world.language.sentences(20), false});
        }
        document->setFootnotes(std::move(footnotes));
        world.add(std::move(document));
    }
}

void generateProject(core::project::Project& project, const GeneratedSize& size)
{
    GeneratedWorld world(project, size);
    addDocuments(world);
    addCodex(world);
    addTimelines(world);
    addResearch(world);
    addPictures(world);
    addTables(world);
    addLanguages(world);
    addSettings(world);
}

} // namespace tw::bench
