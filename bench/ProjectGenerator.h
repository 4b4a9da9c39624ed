#pragma once

#include "core/project/Project.h"

namespace tw::bench {

/** Fewer would not hold one of every kind in its place. */
inline constexpr int fewestObjects = 100;

struct GeneratedSize
{
    /** Content objects of all kinds together, fewestObjects or more; categories come on top. */
    int objects = 50'000;
    quint64 seed = 1;
};

/**
 * Fills an empty project the way a long-lived one looks: documents of 4,000 words in an invented language, a
 * tree of categories with typed fields, entities that fill them and refer to each other, events with
 * participants and places, and some of every other kind. Equal sizes and seeds give equal projects.
 *
 * 50,000 objects are 300 documents of 1.2 million words, 20,000 entities, 15,000 events, and about 60 MB in
 * files.
 */
void generateProject(core::project::Project& project, const GeneratedSize& size);

} // namespace tw::bench
