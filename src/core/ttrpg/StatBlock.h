#pragma once

#include "core/content/ContentObject.h"

#include <vector>

namespace tw::core::ttrpg {

struct Stat
{
    QString label;
    QString value;

    friend bool operator==(const Stat&, const Stat&) = default;
};

struct StatAction
{
    QString name;
    QString text;

    friend bool operator==(const StatAction&, const StatAction&) = default;
};

struct StatBlockDetails
{
    QString title;
    /** The game system the numbers belong to. */
    QString system;
    QString notes;
    std::vector<Stat> stats;
    std::vector<StatAction> actions;

    friend bool operator==(const StatBlockDetails&, const StatBlockDetails&) = default;
};

class StatBlock final : public content::ContentObject
{
public:
    static constexpr auto staticKind = content::ContentKind::StatBlock;

    StatBlock(ContentId id, StatBlockDetails details);
    ~StatBlock() override;

    [[nodiscard]] const StatBlockDetails& details() const { return m_details; }
    void setDetails(StatBlockDetails details) { m_details = std::move(details); }

    friend bool operator==(const StatBlock& left, const StatBlock& right);

private:
    StatBlockDetails m_details;
};

} // namespace tw::core::ttrpg
