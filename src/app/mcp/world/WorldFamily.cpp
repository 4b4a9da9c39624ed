#include "app/mcp/ToolFamilies.h"
#include "app/mcp/world/WorldTools.h"

namespace tw::app::mcp {

ToolTable worldTools()
{
    return {
        getProjectOverviewTool(), searchTool(),         getEntityTool(),        renameObjectTool(),
        checkNameTool(),          listCategoryTool(),   getRelationshipsTool(), getCategoryTool(),
        createCategoryTool(),     updateCategoryTool(), addFieldTool(),         removeFieldTool(),
        entityPropertyTool(),     moveFieldTool(),      convertFieldTool(),     createEntityTool(),
        updateEntityTool(),       deleteObjectTool(),   mergeEntitiesTool(),    splitEntityTool(),
        setVisibilityTool(),      setAiExclusionTool(), addCommentTool(),       listCommentsTool(),
        replyCommentTool(),       resolveCommentTool(),
    };
}

void registerMcpWorldTools(McpServer& server, workspace::Workspace& workspace, McpChangeLog& changeLog)
{
    registerTools(server, workspace, changeLog, worldTools());
}

} // namespace tw::app::mcp
