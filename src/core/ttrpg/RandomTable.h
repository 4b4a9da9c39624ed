#pragma once

#include "core/content/ContentObject.h"

#include <vector>

namespace tw::core::ttrpg {

struct RandomTableEntry
{
    /** Relative chance; 0 and less never come up. */
    qint32 weight = 1;
    QString text;

    friend bool operator==(const RandomTableEntry&, const RandomTableEntry&) = default;
};

struct RandomTableDetails
{
    QString title;
    std::vector<RandomTableEntry> entries;

    friend bool operator==(const RandomTableDetails&, const RandomTableDetails&) = default;
};

/** A weighted table to roll on. */
class RandomTable final : public content::ContentObject
{
public:
    static constexpr auto staticKind = content::ContentKind::RandomTable;

    RandomTable(ContentId id, RandomTableDetails details);
    ~RandomTable() override;

    [[nodiscard]] const RandomTableDetails& details() const { return m_details; }
    void setDetails(RandomTableDetails details) { m_details = std::move(details); }

    friend bool operator==(const RandomTable& left, const RandomTable& right);

private:
    RandomTableDetails m_details;
};

} // namespace tw::core::ttrpg
