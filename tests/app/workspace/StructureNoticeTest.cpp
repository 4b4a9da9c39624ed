#include "app/workspace/StructureNotice.h"

#include "core/document/Document.h"
#include "core/entity/Entity.h"

#include <gtest/gtest.h>

namespace tw::app::workspace {

using namespace Qt::Literals::StringLiterals;
using core::CategoryId;
using core::ContentId;
using core::document::Document;

namespace {

constexpr auto tail =
    " item(s) stand under themselves or under something that is missing; they are shown at the top level.";

ContentId numbered(int number)
{
    return ContentId::fromString(u"00000000-0000-4000-8000-%1"_s.arg(number, 12, 10, QChar(u'0')));
}

CategoryId category(int number)
{
    return CategoryId::fromString(numbered(number).toString());
}

} // namespace

TEST(StructureNoticeTest, countsWhatHangsOnDamagedLinks)
{
    // Things are numbered from 1 in the order of their parents; 0 is the top level, 9 is missing.
    const struct
    {
        const char* name;
        std::vector<int> documents;
        std::vector<int> categories;
        int entityAbove; ///< The category of the entity that the last category hangs under; 0 for none.
        int expected;
    } cases[] = {
        {"in order", {0, 1, 2, 0}, {0, 1, 0, 3}, 1, 0},
        {"missing parents", {0, 9, 2}, {9, 1}, 0, 2},
        {"a document under itself", {1, 1}, {}, 0, 2},
        {"a loop of three documents", {2, 3, 1, 0}, {}, 0, 3},
        {"a category under itself", {}, {1, 1}, 0, 1},
        {"a loop of categories is cut once", {}, {2, 3, 1, 3}, 0, 1},
        {"a loop through an entity", {}, {0, 3, 0}, 2, 1},
    };
    for (const auto& sample : cases) {
        core::project::Project project;
        for (std::size_t each = 0; each < sample.documents.size(); ++each) {
            auto document = std::make_unique<Document>(
                numbered(static_cast<int>(each) + 1), core::document::DocumentKind::Prose, u"x"_s);
            if (sample.documents[each] != 0)
                document->setParentId(numbered(sample.documents[each]));
            project.insert(std::move(document));
        }
        for (std::size_t each = 0; each < sample.categories.size(); ++each) {
            core::taxonomy::Category added;
            added.id = category(static_cast<int>(each) + 1);
            if (sample.categories[each] != 0)
                added.parentId = category(sample.categories[each]);
            if (sample.entityAbove != 0 && each + 1 == sample.categories.size()) {
                added.parentId = {};
                added.parentEntityId = numbered(20);
            }
            project.taxonomyForEdit().insert(std::move(added));
        }
        if (sample.entityAbove != 0)
            project.insert(
                std::make_unique<core::entity::Entity>(numbered(20), category(sample.entityAbove), u"e"_s));
        const QString expected =
            sample.expected == 0 ? QString() : QString::number(sample.expected) + QLatin1StringView(tail);
        EXPECT_EQ(structureNotice(project), expected) << sample.name;
    }
}

} // namespace tw::app::workspace
