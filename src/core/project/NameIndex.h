#pragma once

#include "core/foundation/Id.h"

#include <QHash>
#include <QStringList>

#include <set>
#include <vector>

namespace tw::core::content {
class ContentObject;
}

namespace tw::core::project {

class Project;

/**
 * The objects of a project by their names, and entities by their aliases, ignoring blanks around a name and
 * the case of its letters. Belongs to its project, which tells it what moved; it looks at that when somebody
 * asks next.
 */
class NameIndex
{
public:
    /** The objects with that name, of all kinds, by id. */
    [[nodiscard]] std::vector<ContentId> named(QStringView name) const;
    /** The entities with that alias, by id. An alias that is the entity's own name as well counts. */
    [[nodiscard]] std::vector<ContentId> aliased(QStringView alias) const;

private:
    friend class Project;

    using IdsByName = QHash<QString, std::set<ContentId>>;

    /** What an object is filed under. */
    struct Names
    {
        QString name;
        QStringList aliases;
    };

    [[nodiscard]] static Names namesOf(const content::ContentObject& object);

    /** Files the object anew, or takes it out when it is gone. */
    void update(const ContentId& id, const content::ContentObject* object);
    static void file(IdsByName& lists, const QString& name, const ContentId& id);
    static void takeOut(IdsByName& lists, const QString& name, const ContentId& id);

    IdsByName m_byName;
    IdsByName m_byAlias;
    QHash<ContentId, Names> m_filed;
};

} // namespace tw::core::project
