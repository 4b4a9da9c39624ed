#pragma once

#include "core/foundation/Id.h"

#include <QString>

#include <vector>

namespace tw::core::plot {

/** A strand of the plot that objects are tagged with. */
struct PlotThread
{
    /** Text, chosen when the thread is made and never changed. */
    QString id;
    QString name;
    QString description;
    /** The entity whose thread it is; null for none. */
    ContentId characterId;
    QString color;

    friend bool operator==(const PlotThread&, const PlotThread&) = default;
};

struct BeatAssignment
{
    QString beatName;
    ContentId documentId;

    friend bool operator==(const BeatAssignment&, const BeatAssignment&) = default;
};

/** The story-structure template in use and the scenes that fill its beats. */
struct BeatSheet
{
    QString templateId;
    std::vector<BeatAssignment> assignments;

    friend bool operator==(const BeatSheet&, const BeatSheet&) = default;
};

} // namespace tw::core::plot
