#include "app/workspace/templates/ProjectTemplates.h"

#include "app/workspace/templates/TemplateBuilder.h"

namespace tw::app::workspace::templates {

std::vector<TemplateDescription> templateDescriptions()
{
    return {
        {ProjectTemplate::Novel, TemplateText::tr("Novel"),
         TemplateText::tr(
             "Three acts with chapters and scenes, and a codex for characters, places and items.")},
        {ProjectTemplate::Screenplay, TemplateText::tr("Screenplay"),
         TemplateText::tr(
             "Three acts of screenplay scenes, a treatment, and a codex for characters and locations.")},
        {ProjectTemplate::Campaign, TemplateText::tr("Campaign"),
         TemplateText::tr(
             "Sessions, characters, locations and factions for a game table, a random table, and audiences "
             "for players and game master.")},
        {ProjectTemplate::Empty, TemplateText::tr("Empty"),
         TemplateText::tr("Nothing at all: an empty manuscript and an empty world.")},
    };
}

void fillProject(core::project::Project& project, ProjectTemplate chosen)
{
    TemplateBuilder builder(project);
    switch (chosen) {
    case ProjectTemplate::Novel:
        return fillNovel(builder);
    case ProjectTemplate::Screenplay:
        return fillScreenplay(builder);
    case ProjectTemplate::Campaign:
        return fillCampaign(builder);
    case ProjectTemplate::Empty:
        return;
    }
}

} // namespace tw::app::workspace::templates
