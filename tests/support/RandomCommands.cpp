#include "support/RandomCommands.h"

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
#include "support/RandomValues.h"

#include <algorithm>

namespace tw::test {

using namespace Qt::Literals::StringLiterals;
using namespace tw::core;
using core::undo::Command;

namespace {

constexpr int objectsOfAKind = 3;

std::unique_ptr<content::ContentObject> makeObject(content::ContentKind kind, const ContentId& id)
{
    using content::ContentKind;
    const QString title = u"Made"_s;
    switch (kind) {
    case ContentKind::Document:
        return std::make_unique<document::Document>(id, document::DocumentKind::Prose, title);
    case ContentKind::Entity:
        return std::make_unique<entity::Entity>(id, CategoryId(), title);
    case ContentKind::Spreadsheet:
        return std::make_unique<spreadsheet::Spreadsheet>(id, title);
    case ContentKind::Chart:
        return std::make_unique<chart::Chart>(id, chart::ChartDetails());
    case ContentKind::Map:
        return std::make_unique<map::Map>(id, title);
    case ContentKind::Timeline:
        return std::make_unique<timeline::Timeline>(id, title);
    case ContentKind::TimelineEvent:
        return std::make_unique<timeline::TimelineEvent>(id, timeline::EventDetails());
    case ContentKind::Media:
        return std::make_unique<media::Media>(id, u"image"_s, u"assets/x.png"_s);
    case ContentKind::Source:
        return std::make_unique<research::Source>(id, research::SourceDetails());
    case ContentKind::Task:
        return std::make_unique<task::Task>(id, title);
    case ContentKind::Canvas:
        return std::make_unique<canvas::Canvas>(id, title);
    case ContentKind::Comment:
        return std::make_unique<research::Comment>(id, research::CommentTarget(), research::CommentDetails());
    case ContentKind::Language:
        return std::make_unique<conlang::Language>(id, title);
    case ContentKind::RandomTable:
        return std::make_unique<ttrpg::RandomTable>(id, ttrpg::RandomTableDetails());
    case ContentKind::StatBlock:
        return std::make_unique<ttrpg::StatBlock>(id, ttrpg::StatBlockDetails());
    }
    return nullptr;
}

} // namespace

void fillWithEveryKind(project::Project& project)
{
    for (const content::ContentKind kind : content::allContentKinds) {
        for (int count = 0; count < objectsOfAKind; ++count)
            project.add(makeObject(kind, ContentId::create()));
    }
    taxonomy::Category root;
    root.id = CategoryId::create();
    root.name = u"Root"_s;
    taxonomy::Category child = root;
    child.id = CategoryId::create();
    child.parentId = root.id;
    project.taxonomyForEdit().insert(root);
    project.taxonomyForEdit().insert(child);
}

RandomCommands::RandomCommands(project::Project& project, quint32 seed)
    : m_project(project)
    , m_random(seed)
{
    addObjectCommands();
    addDocumentCommands();
    addCodexCommands();
    addTimelineCommands();
    addMapCommands();
    addTaskCommands();
    addSheetCommands();
    addLanguageCommands();
    addBoardCommands();
    addProjectCommands();
}

int RandomCommands::number(int least, int most)
{
    return std::uniform_int_distribution<int>(least, most)(m_random);
}

QString RandomCommands::text()
{
    static const QStringList words{u"salt"_s, u"ebb"_s,        u"ledger"_s, u"Ö"_s,     u"\"quoted\""_s,
                                   u"tide"_s, u"two\nlines"_s, u""_s,       u"%1 %2"_s, u"\U0001F30A"_s};
    return words[number(0, static_cast<int>(words.size()) - 1)] + QString::number(number(0, 999));
}

ContentId RandomCommands::anyId()
{
    if (m_project.objects().empty() || number(0, 9) == 0)
        return {};
    auto entry = m_project.objects().begin();
    std::advance(entry, number(0, static_cast<int>(m_project.objects().size()) - 1));
    return entry->first;
}

CategoryId RandomCommands::anyCategory()
{
    const auto& categories = m_project.taxonomy().categories();
    if (categories.empty() || number(0, 9) == 0)
        return {};
    auto entry = categories.begin();
    std::advance(entry, number(0, static_cast<int>(categories.size()) - 1));
    return entry->first;
}

template <class Owner>
Owner* RandomCommands::anyOwner()
{
    if constexpr (std::is_same_v<Owner, project::Project>) {
        return &m_project;
    } else if constexpr (std::is_same_v<Owner, content::ContentObject>) {
        return m_project.findForEdit(anyId());
    } else {
        const auto objects = m_project.objectsOfKind(Owner::staticKind);
        if (objects.empty())
            return nullptr;
        return static_cast<Owner*>(
            objects[static_cast<std::size_t>(number(0, static_cast<int>(objects.size()) - 1))]);
    }
}

template <class FieldCommand>
void RandomCommands::addField()
{
    add([this]() -> std::unique_ptr<Command> {
        auto* const owner = anyOwner<typename FieldCommand::Owner>();
        if (!owner)
            return nullptr;
        const RandomValues values{*this, [this] { return anyId(); }, [this] { return anyCategory(); }};
        return std::make_unique<FieldCommand>(
            *owner, values.make(static_cast<typename FieldCommand::Value*>(nullptr)));
    });
}

std::unique_ptr<Command> RandomCommands::next()
{
    for (;;) {
        auto& maker = m_makers[static_cast<std::size_t>(number(0, static_cast<int>(m_makers.size()) - 1))];
        if (auto command = maker.make()) {
            ++maker.uses;
            return command;
        }
    }
}

std::size_t RandomCommands::usedClassCount() const
{
    return static_cast<std::size_t>(
        std::ranges::count_if(m_makers, [](const CountedMaker& maker) { return maker.uses > 0; }));
}

void RandomCommands::addObjectCommands()
{
    add([this] {
        const auto kind = static_cast<content::ContentKind>(number(0, 14));
        return std::make_unique<content::AddObjectCommand>(m_project, makeObject(kind, ContentId::create()));
    });
    add([this] { return std::make_unique<content::RemoveObjectCommand>(m_project, anyId()); });
    add([this] { return std::make_unique<content::SetPinnedCommand>(m_project, anyId(), chance()); });
    addField<content::SetObjectTagsCommand>();
    addField<content::SetObjectLockCommand>();
    addField<content::SetObjectVisibilityCommand>();
    addField<content::SetAiExclusionCommand>();
    addField<content::SetAudiencesCommand>();
    addField<content::SetDefaultAudiencesCommand>();
    addField<plot::SetObjectPlotThreadsCommand>();
}

void RandomCommands::addDocumentCommands()
{
    using namespace document;
    addField<SetDocumentTitleCommand>();
    addField<SetDocumentBodyCommand>();
    addField<SetDocumentKindCommand>();
    addField<SetDocumentSynopsisCommand>();
    addField<SetDocumentStatusCommand>();
    addField<SetDocumentPointOfViewCommand>();
    addField<SetDocumentTensionLevelCommand>();
    addField<SetDocumentSceneInstantCommand>();
    addField<SetDocumentTargetCommand>();
    addField<SetDocumentFootnotesCommand>();
    addField<SetDocumentSourcesCommand>();
    addField<SetDocumentVariantsCommand>();
    addField<SetDocumentVersionsCommand>();
    addField<SetDocumentRevisionBaselineCommand>();
    const auto move = [this]() -> std::unique_ptr<Command> {
        const auto* const document = anyOwner<Document>();
        const auto* const parent = anyOwner<Document>();
        if (!document)
            return nullptr;
        return std::make_unique<MoveDocumentCommand>(
            m_project, document->id(), chance() ? parent->id() : ContentId(), number(-2, 6));
    };
    add(move);
}

void RandomCommands::addCodexCommands()
{
    using namespace taxonomy;
    addField<entity::SetEntityNameCommand>();
    addField<entity::SetEntityCategoryCommand>();
    addField<entity::SetEntityAliasesCommand>();
    addField<entity::SetEntityGalleryCommand>();
    addField<entity::SetEntityLifespanCommand>();
    addField<entity::SetEntityOwnFieldsCommand>();
    addField<entity::SetEntityTimedValuesCommand>();
    addField<entity::SetEntityTemplatesCommand>();
    add([this]() -> std::unique_ptr<Command> {
        auto* const entity = anyOwner<entity::Entity>();
        if (!entity)
            return nullptr;
        const auto value = chance() ? std::optional(text()) : std::nullopt;
        return std::make_unique<entity::SetFieldValueCommand>(*entity, u"key%1"_s.arg(number(0, 3)), value);
    });
    add([this] {
        Category category;
        category.id = CategoryId::create();
        category.name = text();
        category.parentId = anyCategory();
        return std::make_unique<AddCategoryCommand>(m_project, category);
    });
    add([this] { return std::make_unique<RemoveCategoryCommand>(m_project, anyCategory()); });
    add([this] { return std::make_unique<RenameCategoryCommand>(m_project, anyCategory(), text()); });
    add([this] {
        return std::make_unique<ReparentCategoryCommand>(
            m_project, anyCategory(), anyCategory(), number(0, 5));
    });
    add([this] {
        return std::make_unique<ReparentCategoryToEntityCommand>(m_project, anyCategory(), anyId());
    });
    add([this] {
        const auto list = chance() ? CategoryKeyList::Inherited : CategoryKeyList::Excluded;
        return std::make_unique<SetCategoryKeyListCommand>(
            m_project, anyCategory(), list, QStringList{text()});
    });
    const auto key = [this] { return u"field%1"_s.arg(number(0, 4)); };
    const auto position = [this] { return static_cast<std::size_t>(number(0, 5)); };
    add([this, key, position] {
        Field field;
        field.key = key();
        field.description = text();
        return std::make_unique<AddFieldCommand>(m_project, anyCategory(), field, position());
    });
    add([this, key] { return std::make_unique<RemoveFieldCommand>(m_project, anyCategory(), key()); });
    add([this, key, position] {
        return std::make_unique<MoveFieldCommand>(m_project, anyCategory(), key(), position());
    });
}

void RandomCommands::addTimelineCommands()
{
    addField<timeline::SetTimelineTitleCommand>();
    addField<timeline::SetTimelineEventCommand>();
    addField<timeline::SetTimelineErasCommand>();
    addField<timeline::SetTimelineMarkersCommand>();
    addField<timeline::SetTimelineBookmarksCommand>();
    addField<timeline::SetTimelineViewSettingsCommand>();
    addField<timeline::SetTimelineViewPresetsCommand>();
    addField<timeline::SetContinuityRulesCommand>();
    addField<calendar::SetCalendarCommand>();
    addField<calendar::SetReckoningsCommand>();
}

void RandomCommands::addMapCommands()
{
    addField<map::SetMapTitleCommand>();
    addField<map::SetMapImageCommand>();
    addField<map::SetMapGridCommand>();
    addField<map::SetMapPinsCommand>();
    addField<map::SetMapRegionsCommand>();
    addField<map::SetMapRoutesCommand>();
    addField<map::SetMapTokensCommand>();
    addField<map::SetMapTravelSettingsCommand>();
}

void RandomCommands::addTaskCommands()
{
    using namespace task;
    addField<SetTaskTitleCommand>();
    addField<SetTaskDescriptionCommand>();
    addField<SetTaskDoneCommand>();
    addField<SetTaskDueDateCommand>();
    addField<SetTaskPriorityCommand>();
    addField<SetTaskStatusCommand>();
    addField<SetTaskBoardCommand>();
    addField<SetTaskSubmissionCommand>();
    addField<SetTaskTargetCommand>();
    add([this] {
        const TaskColumn column{u"Board"_s, u"column%1"_s.arg(number(0, 1))};
        return std::make_unique<MoveTaskCommand>(m_project, anyId(), column, number(-2, 6));
    });
}

void RandomCommands::addSheetCommands()
{
    using namespace spreadsheet;
    addField<SetSpreadsheetTitleCommand>();
    addField<SetSpreadsheetGridCommand>();
    addField<SetSpreadsheetSizesCommand>();
    addField<SetSpreadsheetLinkedCategoryCommand>();
    add([this]() -> std::unique_ptr<Command> {
        auto* const sheet = anyOwner<Spreadsheet>();
        if (!sheet)
            return nullptr;
        const CellPosition position{number(0, 3), number(0, 3)};
        return std::make_unique<SetSpreadsheetCellCommand>(*sheet, position, chance() ? text() : QString());
    });
    add([this]() -> std::unique_ptr<Command> {
        auto* const sheet = anyOwner<Spreadsheet>();
        if (!sheet)
            return nullptr;
        CellFormat format;
        format.isItalic = chance();
        return std::make_unique<SetCellFormatsCommand>(
            *sheet, SetCellFormatsCommand::FormatMap{{{0, 0}, format}, {{1, 2}, format}}, u"Italic"_s);
    });
}

void RandomCommands::addLanguageCommands()
{
    addField<conlang::SetLanguageCommand>();
    addField<conlang::SetLanguageGrammarCommand>();
    addField<conlang::SetLanguageOrthographyCommand>();
    addField<conlang::SetLanguagePhonotacticsCommand>();
    addField<conlang::SetLanguageSoundChangesCommand>();
    addField<conlang::SetLanguageWritingSystemCommand>();
}

void RandomCommands::addBoardCommands()
{
    using namespace canvas;
    addField<SetCanvasTitleCommand>();
    const auto onCanvas = [this](auto make) {
        add([this, make]() -> std::unique_ptr<Command> {
            auto* const canvas = anyOwner<Canvas>();
            return canvas ? make(*canvas) : nullptr;
        });
    };
    onCanvas([this](Canvas& canvas) -> std::unique_ptr<Command> {
        return std::make_unique<SetCanvasCardCommand>(canvas, CanvasCard{anyId(), 1.5, 2.5, 100, 50});
    });
    onCanvas([this](Canvas& canvas) -> std::unique_ptr<Command> {
        return std::make_unique<RemoveCanvasCardCommand>(canvas, anyId());
    });
    onCanvas([this](Canvas& canvas) -> std::unique_ptr<Command> {
        return std::make_unique<AddCanvasConnectionCommand>(
            canvas, CanvasConnection{anyId(), anyId(), text()});
    });
    onCanvas([](Canvas& canvas) -> std::unique_ptr<Command> {
        const CanvasConnection connection =
            canvas.connections().empty() ? CanvasConnection() : canvas.connections().front();
        return std::make_unique<RemoveCanvasConnectionCommand>(canvas, connection);
    });
    addField<chart::SetChartCommand>();
    addField<media::SetMediaCaptionCommand>();
    addField<media::SetMediaCropCommand>();
    add([this]() -> std::unique_ptr<Command> {
        auto* const media = anyOwner<media::Media>();
        if (!media)
            return nullptr;
        return std::make_unique<media::AddMediaAnnotationCommand>(
            *media, media::MediaAnnotation{text(), text(), text()});
    });
    add([this]() -> std::unique_ptr<Command> {
        auto* const media = anyOwner<media::Media>();
        if (!media)
            return nullptr;
        return std::make_unique<media::RemoveMediaAnnotationCommand>(
            *media, static_cast<std::size_t>(number(0, 2)));
    });
    addField<research::SetSourceCommand>();
    addField<research::SetCommentCommand>();
    addField<research::SetCommentTargetCommand>();
    addField<ttrpg::SetRandomTableCommand>();
    addField<ttrpg::SetStatBlockCommand>();
}

void RandomCommands::addProjectCommands()
{
    addField<project::SetProjectNameCommand>();
    addField<project::SetSavedSearchesCommand>();
    addField<project::SetLibraryMountsCommand>();
    addField<project::SetPropertyMigrationAnswerCommand>();
    addField<plot::SetPlotThreadsCommand>();
    addField<plot::SetBeatSheetCommand>();
    addField<writing::SetWritingGoalCommand>();
    addField<writing::SetProofreadingCommand>();
}

} // namespace tw::test
