#pragma once

#include "core/foundation/Id.h"

#include <QHash>
#include <QString>
#include <QStringView>

#include <vector>

namespace tw::core::project {
class Project;
}

namespace tw::app::typing {

/** A name, and whose it is. */
struct Name
{
    QString text;
    core::ContentId id;
};

/** A stretch of text that names something. */
struct NameMatch
{
    qsizetype start = 0;
    qsizetype length = 0;
    core::ContentId id;

    friend bool operator==(const NameMatch&, const NameMatch&) = default;
};

/** The names and aliases of all entities of a project. */
[[nodiscard]] std::vector<Name> entityNames(const core::project::Project& project);

/**
 * Finds names in running text, as whole words, the longest first. A name of several words is found whatever
 * its case, for an article opens it in capitals here and small there; a single word only as it is written,
 * for "Will" is no "will". Built once for many texts; finding takes time in proportion to the text, however
 * many names there are.
 */
class NameMatcher
{
public:
    NameMatcher() = default;
    /** Of names that are equal the first counts. */
    explicit NameMatcher(const std::vector<Name>& names);

    [[nodiscard]] bool isEmpty() const { return m_byFirstWord.isEmpty(); }
    /** In order, without overlaps. */
    [[nodiscard]] std::vector<NameMatch> find(QStringView text) const;

private:
    /** By the first word in lower case, the longest name first. */
    QHash<QString, std::vector<Name>> m_byFirstWord;
};

} // namespace tw::app::typing
